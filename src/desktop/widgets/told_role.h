// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

class QWidget;

namespace varnholt {

/// Tells assistive technology what kind of thing a plain widget is. Without that the toolkit calls
/// it a filler, which screen readers pass over with its name and its description.
void tellAs(QWidget& widget, QAccessible::Role role);

}  // namespace varnholt
