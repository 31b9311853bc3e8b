// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/surface_water_rules.h"

#include <array>

#include "basis/run_time_error.h"
#include "design/modCalculations/ground_temp_at_depth.h"
#include "design/modCalculations/header_pipes.h"

namespace varnholt {
namespace {

using namespace modCalculations;

constexpr std::array<double, 3> soilDiffusivities{0.26, 0.6, 0.96};  // ft^2/day

Header headerOf(const HeaderValues& headers, const WaterTemperatures& water, std::size_t kind) {
    const std::size_t first = 2 * kind;
    const std::size_t second = first + 1;
    return {headers.headerCount[kind],
            headers.headerWaterFactor[kind],
            headers.headerSoilFactor[kind],
            headers.headerLength[first],
            headers.headerLength[second],
            {water.headerWaterTemp[first], water.headerWaterTemp[second]},
            {headers.headerHeadLoss[first], headers.headerHeadLoss[second]}};
}

void removeBranches(HeaderValues& headers) {
    headers.headerCount[branchHeaders] = 0;
    headers.headerHeadLoss[2] = 0;
    headers.headerHeadLoss[3] = 0;
    headers.headerLength[2] = 0;
}

}  // namespace

void chooseSoilType(HeaderSoilValues& soil, int soilType) {
    soil.soilDiffusivity = at(soilDiffusivities, soilType);
    soil.soilType = soilType;
}

ByMode<double> correctGroundTemp(const HeaderSoilValues& soil) {
    return groundTempAtDepth(soil.headerDepth, soil.soilDiffusivity,
                             {soil.groundTemp, soil.airTempSwing, soil.extremeDay});
}

void chooseLoopPipe(LoopValues& loop, int choice) {
    loop.loopPipeSize = loopPipeSizeOf(choice);
    loop.loopPipeOutsideDiameter = loopPipeOutsideDiameter(choice);
}

void chooseHeaderPipe(HeaderValues& headers, std::size_t kind, int choice) {
    const HeaderPipe& pipe = headerPipe(choice);
    headers.headerPipeSize.at(kind) = headerPipeSizeOf(choice);
    headers.headerOutsideDiameter[kind] = pipe.outsideDiameter;
    headers.headerWaterFactor[kind] = pipe.waterFactor;
    headers.headerSoilFactor[kind] = pipe.soilFactor;
}

void settleHeaderCount(HeaderValues& headers, std::size_t kind) {
    if (headers.headerCount.at(kind) >= 1) return;
    if (kind == branchHeaders)
        removeBranches(headers);
    else
        headers.headerCount[kind] = 1;
}

Headers headersOf(const HeaderValues& headers, const WaterTemperatures& water) {
    return {headerOf(headers, water, 0), headerOf(headers, water, branchHeaders)};
}

}  // namespace varnholt
