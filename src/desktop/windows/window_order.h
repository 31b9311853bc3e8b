// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMdiArea;
class QMdiSubWindow;

namespace varnholt {

/// Lays the open windows one over another, each a title further down and to the right than the one
/// before, so that every title is in sight. Minimised windows stay what they are.
void cascade(QMdiArea& area);

/// Sets two windows side by side, each in one half of the area.
void setSideBySide(QMdiArea& area, QMdiSubWindow& left, QMdiSubWindow& right);

}  // namespace varnholt
