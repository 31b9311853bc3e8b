// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "reports/report.h"

namespace varnholt {

/// A report as one page of the web that needs nothing beside itself: headings, tables whose heads
/// name rows and columns, drawings with a description, colours for light and dark, a layout that
/// prints.
std::string htmlOf(const Report& report);

/// A text between tags or in quotes: no character of it is markup, and those that a page may not
/// hold are left out.
std::string htmlText(const std::string& text);

}  // namespace varnholt
