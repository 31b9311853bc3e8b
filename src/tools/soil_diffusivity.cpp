// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soil_diffusivity.h"

#include <cmath>

namespace varnholt {
namespace {

constexpr double waterDensity = 62.4;  // lb/ft^3
constexpr double hoursOfDay = 24;

}  // namespace

double diffusivityOf(const DampSoil& soil) {
    const double dry = 100.0 - soil.moisture;
    const double specificHeat = (soil.moisture + dry * soil.specificHeat) / 100;
    const double density = (soil.moisture * waterDensity + dry * soil.dryDensity) / 100;
    if (specificHeat == 0 || density == 0) return 0;
    const double diffusivity = soil.conductivity * hoursOfDay / (specificHeat * density);
    return std::isfinite(diffusivity) ? diffusivity : 0;
}

}  // namespace varnholt
