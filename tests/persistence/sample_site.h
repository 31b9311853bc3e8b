// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <array>

#include "design/frmBHDesign.h"

namespace varnholt {

/// The site of the sample files of projects and defaults, as it was written into each by hand:
/// temperatures and flows, fluid, ground, pipe, bore and field.
inline void expectSampleSite(const frmBHDesign& d) {
    EXPECT_EQ(d.conditions().inletTemp, (ByMode<double>{86.5, 48.5}));
    EXPECT_EQ(d.results().outlet.outletTemp, (ByMode<double>{96.25, 43.75}));
    EXPECT_EQ(d.conditions().inletLoadAirTemp, (ByMode<double>{66, 71}));
    EXPECT_EQ(d.conditions().inletLoadWaterTemp, (ByMode<double>{54, 101}));
    EXPECT_EQ(d.conditions().minflowRate, (ByMode<double>{2.7, 4.1}));
    EXPECT_EQ(d.conditions().flowRate, 2.9);
    EXPECT_EQ(d.project().fluid.percentAntifreeze, 20);
    EXPECT_EQ(d.project().fluid.fluidTypeIndex, 4);
    EXPECT_EQ(d.project().fluid.density, 61.5);
    EXPECT_EQ(d.project().fluid.specificHeat, 0.98);
    EXPECT_EQ(d.project().soil.groundTemp, 58.5);
    EXPECT_EQ(d.project().soil.conductivity, 1.45);
    EXPECT_EQ(d.project().soil.diffusivity, 0.9);
    EXPECT_EQ(d.project().pipe.pipeSizeIndex, 2);
    EXPECT_EQ(d.project().pipe.pipeSdrIndex, 1);
    EXPECT_EQ(d.project().pipe.flowTypeIndex, 1);
    EXPECT_EQ(d.project().pipe.pipeDiameter, (std::array<double, 2>{1.66, 1.36}));
    EXPECT_EQ(d.project().pipe.pipeResistance, 0.0625);
    EXPECT_EQ(d.project().bore.pipePlacement, 0);
    EXPECT_EQ(d.project().bore.uTubeConfig, 0);
    EXPECT_EQ(d.project().bore.boreDiameter, 5.5);
    EXPECT_EQ(d.project().bore.groutConductivity, 0.95);
    EXPECT_EQ(d.project().bore.boreResistance, 0.1875);
    EXPECT_EQ(d.project().arrangement.patternRows, (std::array<double, 2>{5, 8}));
    EXPECT_EQ(d.project().arrangement.boreSeparation, 18.5);
    EXPECT_EQ(d.project().arrangement.boresPerCircuit, 1);
    EXPECT_EQ(d.project().arrangement.predictionTime, 12.5);
}

}  // namespace varnholt
