// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "reports/report.h"

namespace varnholt {

/// A report as comma-separated values (RFC 4180), UTF-8: one row a pump for a report of zones, with
/// a column for each of its fields under the field's name; one row a label for any other.
std::string csvOf(const Report& report);

/// A text as one field: quoted where it must be. A text that a spreadsheet would take for a
/// formula, since it begins with "=", "+", "-" or "@", gets an apostrophe before it, unless the
/// whole of it is a number.
std::string csvField(const std::string& text);

}  // namespace varnholt
