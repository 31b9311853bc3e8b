// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "reports/report_definition.h"

namespace varnholt {

// The bands of the zone reports, one table a report.

extern const std::span<const BandDefinition> shortFormBands;
extern const std::span<const BandDefinition> longFormBands;
extern const std::span<const BandDefinition> equipmentBands;
extern const std::span<const BandDefinition> loadsBands;
extern const std::span<const BandDefinition> nameBands;

}  // namespace varnholt
