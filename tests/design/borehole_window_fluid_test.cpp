// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "borehole_window.h"

namespace varnholt {
namespace {

using FluidOfADesign = BoreholeWindow;

TEST_F(FluidOfADesign, IsWaterWithoutAPercentage) {
    EXPECT_EQ(textOf("FLFluidTypeCombo"), "Water");
    EXPECT_EQ(design->control("FLFluidTypeCombo").items().size(), 7u);
    EXPECT_TRUE(design->control("FLPercentAntifreezeText").locked());
    EXPECT_FALSE(design->control("FLPercentAntifreezeUpDown").enabled());
}

TEST_F(FluidOfADesign, OtherThanWaterKeepsTheProperties) {
    design->calculationDone();
    type("FLFluidDensityText", "64.7");
    design->choose("FLFluidTypeCombo", 3);
    EXPECT_EQ(value("fluidTypeIndex"), 3);
    EXPECT_EQ(textOf("FLFluidTypeCombo"), "Methanol");
    EXPECT_EQ(value("fluidDensity"), 64.7);
    EXPECT_FALSE(design->control("FLPercentAntifreezeText").locked());
    EXPECT_TRUE(design->control("FLPercentAntifreezeUpDown").enabled());
    EXPECT_TRUE(design->isStale());
}

TEST_F(FluidOfADesign, SwitchedFromGlycolToWaterTakesTheWatersProperties) {
    design->choose("FLFluidTypeCombo", 1);
    type("FLFluidDensityText", "64.7");
    type("FLSpecificHeatText", "0.92");
    type("FLPercentAntifreezeText", "20");
    design->choose("FLFluidTypeCombo", 0);
    EXPECT_EQ(value("fluidDensity"), 62.4);
    EXPECT_EQ(value("specificHeat"), 1.0);
    EXPECT_EQ(value("percentAntifreeze"), 100);
    EXPECT_EQ(textOf("FLFluidDensityText"), "62.4");
    EXPECT_EQ(textOf("FLSpecificHeatText"), "1.00");
    EXPECT_EQ(textOf("FLPercentAntifreezeText"), "100");
    EXPECT_TRUE(design->control("FLPercentAntifreezeText").locked());
}

TEST_F(FluidOfADesign, CanBeTypedByName) {
    design->type("FLFluidTypeCombo", "Betaine");
    EXPECT_EQ(value("fluidTypeIndex"), 7);
    EXPECT_EQ(design->project().fluid.fluidName, "Betaine");
    design->leave("FLFluidTypeCombo");
    EXPECT_EQ(design->project().fluid.fluidName, "Betaine");
    EXPECT_EQ(textOf("FLFluidTypeCombo"), "Betaine");
}

TEST_F(FluidOfADesign, TypedInFullIsTheListedOne) {
    design->type("FLFluidTypeCombo", "Metha");
    EXPECT_EQ(value("fluidTypeIndex"), 7);
    design->type("FLFluidTypeCombo", "Methanol");
    EXPECT_EQ(value("fluidTypeIndex"), 3);
    EXPECT_EQ(design->project().fluid.fluidName, "Metha");
    design->leave("FLFluidTypeCombo");
    EXPECT_EQ(design->project().fluid.fluidName, "");
}

TEST_F(FluidOfADesign, ChosenFromTheListDropsTheTypedName) {
    design->type("FLFluidTypeCombo", "Betaine");
    design->leave("FLFluidTypeCombo");
    design->choose("FLFluidTypeCombo", 3);
    EXPECT_EQ(value("fluidTypeIndex"), 3);
    EXPECT_EQ(design->project().fluid.fluidName, "");
}

TEST_F(FluidOfADesign, ComesBackWithItsTypedName) {
    main.openCall = true;
    frmBHDesign* opened = newBorehole(main, [](frmBHDesign& window) {
        DesignFiles files;
        files.readProject = [&window] {
            change(window, [&](BoreholeProject& of) { of.fluid.fluidTypeIndex = 7; });
            change(window, [&](BoreholeProject& of) { of.fluid.fluidName = "Betaine"; });
        };
        return files;
    });
    EXPECT_EQ(opened->control("FLFluidTypeCombo").text(), "Betaine");
    EXPECT_EQ(opened->control("FLFluidTypeCombo").index(), -1);
    EXPECT_EQ(opened->project().fluid.fluidTypeIndex, 7);
}

TEST_F(FluidOfADesign, PercentageFollowsItsUpDown) {
    design->choose("FLFluidTypeCombo", 1);
    design->calculationDone();
    design->slide("FLPercentAntifreezeUpDown", 25);
    EXPECT_EQ(textOf("FLPercentAntifreezeText"), "25");
    EXPECT_EQ(value("percentAntifreeze"), 25);
    EXPECT_TRUE(design->isStale());
    type("FLPercentAntifreezeText", "30");
    EXPECT_EQ(design->control("FLPercentAntifreezeUpDown").value(), 30);
}

TEST_F(FluidOfADesign, FlowPerTonIsLitresForThreeAndAHalfKilowattsInMetric) {
    type("FLFlowRateText", "2.5");
    inMetric();
    EXPECT_EQ(textOf("FLFlowRateText"), "9.5");  // 2.5 * 3.785412 = 9.46
    type("FLFlowRateText", "3.785412");
    EXPECT_DOUBLE_EQ(value("flowRate"), 1);
}

}  // namespace
}  // namespace varnholt
