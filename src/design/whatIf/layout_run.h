// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/whatIf/layout_search.h"
#include "design/whatIf/what_if.h"

namespace varnholt {

/// The search that a window's inputs ask for, by its own measure and with the second opinion's
/// settings. Inputs that a field would refuse are taken for those that are built in.
LayoutSearch layoutSearchOf(const WhatIfCase& theCase);

}  // namespace varnholt
