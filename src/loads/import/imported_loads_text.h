// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "loads/import/monthly_loads.h"

namespace varnholt {

/// What the importer holds as lines of text, one item a line.
std::string importedLoadsText(const ImportedLoads& loads);
/// Reads such lines. Throws RunTimeError 62 or 6 where they are none; what was read before then
/// stands in `loads`.
void readImportedLoads(std::string_view bytes, ImportedLoads& loads);

}  // namespace varnholt
