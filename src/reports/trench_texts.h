// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "reports/report_definition.h"

namespace varnholt {

// Texts of the reports of trenches that follow a rule of their own.

/// Straight pipes or a slinky.
std::string pipeConfigurationOf(const FillContext& context);
/// Columns by rows of the pipes in a trench, "2 x 3", and whether they are staggered.
std::string pipeLayoutOf(const FillContext& context);
// The two dimensions of the pipes: the steps between rows and columns, or pitch and diameter of a
// slinky. Captions, and values with their units.
std::string firstDimensionCaptionOf(const FillContext& context);
std::string firstDimensionOf(const FillContext& context);
std::string secondDimensionCaptionOf(const FillContext& context);
std::string secondDimensionOf(const FillContext& context);

}  // namespace varnholt
