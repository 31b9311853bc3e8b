// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/surface_water_results.h"
#include "design/surface_water_rules.h"
#include "sample_building.h"

namespace varnholt {

/// The sample building on coils of 1 inch pipe: two main headers of 3 inches with three branches
/// each, in water and in soil, and a flow other than the table's. The first of the designs in
/// tests/independent/surface_water_road.py.
inline SurfaceWaterInputs coilPond() {
    SurfaceWaterInputs pond;
    pond.loads = {sampleBuilding(), {1.0, 0.85, 0.5}, {85, 38}, 3.4, {63.6, 0.95}};
    pond.minimumLoopFlow = {2.8, 4.2};
    pond.soil.groundTemp = 58;
    pond.soil.airTempSwing = 24;
    pond.soil.extremeDay = {205, 20};
    pond.soil.headerDepth = 5;
    chooseSoilType(pond.soil, 2);
    chooseLoopPipe(pond.loop, 1);
    pond.loop.extraEqvLength = 15;
    pond.loop.loopHeadLoss = {3.2, 3.9};
    pond.loop.parallelLoops = {12, 4};
    pond.header.headerCount = {2, 3};
    chooseHeaderPipe(pond.header, 0, 5);
    chooseHeaderPipe(pond.header, 1, 3);
    pond.header.headerHeadLoss = {1.8, 2.1, 2.5, 2.9};
    pond.header.headerLength = {120, 200, 60, 40};
    pond.water.loopWaterTemp = {77, 43};
    pond.water.headerWaterTemp = {74, 44, 76, 43};
    return pond;
}

/// The sample building on slinkies of 3/4 inch pipe, with one buried header of 2 inches and fluid
/// far from the water's temperature. The second of those designs.
inline SurfaceWaterInputs slinkyPond() {
    SurfaceWaterInputs pond;
    pond.loads = {sampleBuilding(), {}, {92, 30}, 2.5, {62.4, 1.0}};
    pond.soil.groundTemp = 54;
    pond.soil.airTempSwing = 20;
    pond.soil.extremeDay = {212, 30};
    pond.soil.headerDepth = 4;
    chooseSoilType(pond.soil, 0);
    pond.loop.loopStyle = 1;
    chooseLoopPipe(pond.loop, 0);
    pond.loop.loopHeadLoss = {4.5, 5.1};
    pond.loop.parallelLoops = {10, 8};
    chooseHeaderPipe(pond.header, 0, 4);
    pond.header.headerHeadLoss = {2.2, 2.6, 0, 0};
    pond.header.headerLength = {0, 250, 0, 0};
    pond.water.loopWaterTemp = {70, 46};
    pond.water.headerWaterTemp = {70, 45, 70, 45};
    return pond;
}

}  // namespace varnholt
