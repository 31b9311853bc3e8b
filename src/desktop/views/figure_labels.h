// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "desktop/binding/binder.h"

namespace varnholt {

/// The label as a figure that stands at the right of its column.
QWidget* figureLabel(Binder& bind, const std::string& name);

/// The label as the muted head of such a column.
QWidget* headLabel(Binder& bind, const std::string& name);

}  // namespace varnholt
