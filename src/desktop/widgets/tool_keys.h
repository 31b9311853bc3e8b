// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAction;
class QToolBar;

namespace varnholt {

/// Makes the button of a toolbar's action one that Tab reaches and Enter presses as the blank does.
/// The toolkit leaves the buttons of toolbars to the pointer.
void workByKeyboard(const QToolBar& bar, QAction* action);

}  // namespace varnholt
