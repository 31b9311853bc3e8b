// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "reports/report_drawing.h"

namespace varnholt {

/// A drawing as an element of a web page, described by its title and drawn in the page's colours.
std::string svgOf(const ReportDrawing& drawing);

}  // namespace varnholt
