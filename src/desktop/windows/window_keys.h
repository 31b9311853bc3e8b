// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMdiSubWindow;

namespace varnholt {

class MainWindow;

/// The keys that work whatever window is in front: F9 calculates, Ctrl and PageUp or PageDown turn
/// the pages, F6 goes from pane to pane, Escape leaves an open panel, or a window that stands
/// beside another one.
void addWindowKeys(MainWindow& window);
/// Takes the toolkit's own keys from a window inside the main one, whose Window menu has them.
void leaveKeysToTheMenu(const QMdiSubWindow& frame);

}  // namespace varnholt
