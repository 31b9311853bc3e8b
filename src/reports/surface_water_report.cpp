// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of pipe in surface water.
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/reports.h"
#include "forms/text_numbers/surface_water.h"
#include "reports/project_report_blocks.h"
#include "reports/project_reports.h"

namespace varnholt {
namespace surfaceWaterReport {
namespace {

constexpr ResultLine resultLines[] = {
    {"CircuitLength", "CALoopLengthLabel"},
    {"NumberOfCircuits", "CALoopNumberLabel", words(Text::loopNumber)},
    {"MaxParallelCircuits", "CAMaxParallelLoopNumberLabel", words(Text::maxParallelLoops)},
    {"ApproachTemp", "CAApproachTempLabel"},
    unitInletLine,
    unitOutletLine,
    peakLoadLine,
    peakDemandLine,
    pumpCopLine,
    systemCopLine,
    systemFlowLine,
    {"CircuitLoss", "CALoopLossLabel"},
    {"HeaderLoss", "CAHeaderLossLabel"},
    {"TotalLoss", "CATotalLossLabel"},
    {"PrimaryHeaderFlowRate", "CAPrimaryHeaderFlowRateLabel"},
    {"BranchHeaderFlowRate", "CABranchHeaderFlowRateLabel"},
    {"CircuitFlowRate", "CACircuitFlowRateLabel"},
};

// clang-format off
constexpr Pair waterSoilPairs[] = {
    {{"GroundTempTextLabel", shown("SOGroundTempText", "SOGroundTempUnitsLabel")}, words(Text::groundTemperature)},
    {{"RegionalSwingTextLabel", shown("SOAirTempSwingText", "SOSwingdegCLabel")}, words(Text::airTemperatureSwing)},
    {{"DepthOfHeaderTextLabel", shown("SOHeaderDepthText", "SOHeaderDepthUnitsLabel")}, words(Text::headerDepth)},
    {{"SoilTypeTextLabel", shown("SOSoilTypeCombo")}, words(Text::soilType)},
};

constexpr Pair circuitPairs[] = {
    {{"CircuitPipeSizeTextLabel", shown("PILoopPipeSizeCombo")}, words(Text::loopPipeSize)},
    {{"CircuitStyleTextLabel", computed(loopStyleOf)}, words(Text::loopStyle)},
    {{"EqvLengthTextLabel", shown("PIExtraEqvLengthText", "PIExtraEqvLengthUnitsLabel")}, words(Text::extraEquivalentLength)},
};

constexpr Pair waterPairs[] = {
    {{"SurfaceWaterTypeTextLabel", shown("WASurfaceWaterTypeCombo")}, words(Text::surfaceWaterType)},
    {{"SurfaceAreaTextLabel", shown("WASurfaceAreaText", "WASurfaceAreaUnitsLabel")}, words(Text::surfaceArea)},
    {{"CircuitPipeDepthTextLabel", shown("WALoopPipeDepthText", "WALoopPipeDepthUnitsLabel")}, words(Text::loopPipeDepth)},
};

constexpr TableRow modeRows[] = {
    {{"MinimumFlowLabel", words(Text::minimumLoopFlow)},
     {"CoolingTextLabel1", shown("FLMinFlowText(0)", "FLMinFlowUnitsLabel(0)")},
     {"HeatingTextLabel1", shown("FLMinFlowText(1)", "FLMinFlowUnitsLabel(1)")}},
    {{"CircuitHeadLossLabel", shown("PIHeadLossFrame")},
     {"CoolingTextLabel4", shown("PILoopHeadLossText(0)", "PILoopHeadLossUnitsLabel(0)")},
     {"HeatingTextLabel4", shown("PILoopHeadLossText(1)", "PILoopHeadLossUnitsLabel(1)")}},
};

constexpr TableRow seasonRows[] = {
    {{"ExtremeDayLabel", words(Text::extremeDay)},
     {"ExtremeDaySummerLabel", shown("SODayText(0)")}, {"ExtremeDayWinterLabel", shown("SODayText(1)")}},
    {{"CorrectedTempLabel", words(Text::correctedTemperature)},
     {"CorrectedTempSummerLabel", shown("SOCorrectedTempText(0)", "SOSwingdegCLabel")},
     {"CorrectedTempWinterLabel", shown("SOCorrectedTempText(1)", "SOSwingdegCLabel")}},
    {{"CircuitTempLabel", words(Text::circuitWaterTemperature)},
     {"CircuitSummerTextLabel", shown("WALoopTempText(0)", "WALoopTempUnitsLabel(0)")},
     {"CircuitWinterTextLabel", shown("WALoopTempText(1)", "WALoopTempUnitsLabel(1)")}},
    {{"HeaderTempLabel", words(Text::headerWaterTemperature)},
     {"HeaderSummerTextLabel", shown("WAHeaderTempText(0)", "WAHeaderTempUnitsLabel(0)")},
     {"HeaderWinterTextLabel", shown("WAHeaderTempText(1)", "WAHeaderTempUnitsLabel(1)")}},
};

constexpr TableRow headerRows[] = {
    {{"NumberOfHeadersLabel", words(Text::numberOfHeaders)},
     {"NumberOfHeadersTextLabel", shown("PIHeaderNumberText(0)")}, {"NumberOfBranchHeadersTextLabel", shown("PIHeaderNumberText(1)")}},
    {{"HeaderPipeSizeLabel", words(Text::reportHeaderPipeSize)},
     {"HeaderPipeSizeTextLabel", shown("PIHeaderPipeSizeCombo(0)")}, {"SubHeaderPipeSizeTextLabel", shown("PIHeaderPipeSizeCombo(1)")}},
    {{"HeaderLengthLabel", words(Text::headerLength)}},
    {{"InWaterLabel", words(Text::inWaterColumn)},
     {"InWaterTextLabel", shown("PIHeaderLengthText(0)", "PIHeaderLengthUnitsLabel(0)")},
     {"InWaterSubHeaderTextLabel", shown("PIHeaderLengthText(2)", "PIHeaderLengthUnitsLabel(2)")}},
    {{"InSoilLabel", words(Text::inSoilColumn)},
     {"InSoilTextLabel", shown("PIHeaderLengthText(1)", "PIHeaderLengthUnitsLabel(1)")},
     {"InSoilSubHeaderTextLabel", shown("PIHeaderLengthText(3)", "PIHeaderLengthUnitsLabel(3)")}},
    {{"HeaderHeadLossLabel", shown("PIHeaderHeadLossFrame")}},
    {{"HeaderHeadLossCoolingLabel", words(Text::coolingColumn)},
     {"CoolingTextLabel5", shown("PIHeaderHeadLossText(0)", "PIHeaderHeadLossUnitsLabel(0)")},
     {"SubHeaderCoolingTextLabel", shown("PIHeaderHeadLossText(2)", "PIHeaderHeadLossUnitsLabel(2)")}},
    {{"HeaderHeadLossHeatingLabel", words(Text::heatingColumn)},
     {"HeatingTextLabel5", shown("PIHeaderHeadLossText(1)", "PIHeaderHeadLossUnitsLabel(1)")},
     {"SubHeaderHeatingTextLabel", shown("PIHeaderHeadLossText(3)", "PIHeaderHeadLossUnitsLabel(3)")}},
};
// clang-format on

constexpr Block fluidAndPower[] = {fluidBlock, extraPowerBlock};
constexpr Block soilAndWater[] = {
    {{"SoilLabel", words(Text::soilPage)}, waterSoilPairs},
    {{"SurfaceWaterPropertiesLabel", words(Text::surfaceWaterProperties)}, waterPairs}};
constexpr Block circuit[] = {
    {{"CircuitParametersLabel", words(Text::circuitParameters)}, circuitPairs}};

constexpr Part pipingHeading =
    Heading{{"PipingLabel", words(Text::loopPipingPage)}, ItemStyle::subheading};
constexpr Part modeTable =
    Table{{{{{"CoolingLabel1", words(Text::resultsCooling)}, Tint::cooling},
            {{"HeatingLabel1", words(Text::resultsHeating)}, Tint::heating}}},
          modeRows};
constexpr Part seasonTable =
    Table{{{{{"SummerLabel", words(Text::inSummer)}}, {{"WinterLabel", words(Text::inWinter)}}}},
          seasonRows};
constexpr Part headersHeading =
    Heading{{"HeaderParametersLabel", words(Text::headerParameters)}, ItemStyle::subheading};
constexpr Part headerTable = Table{{{{{"PrimaryHeaderLabel", words(Text::primaryColumn)}},
                                     {{"BranchHeaderLabel", words(Text::branchColumn)}}}},
                                   headerRows};

constexpr Part parts[] = {
    resultsHeading,
    Results{resultLines},
    inputsHeading,
    Blocks{fluidAndPower, soilAndWater},
    // Of the soil and of the water.
    seasonTable,
    inputsContHeading,
    pipingHeading,
    Blocks{circuit, {}},
    modeTable,
    headersHeading,
    headerTable,
};

}  // namespace
}  // namespace surfaceWaterReport

constinit const std::array<ProjectReportDefinition, 2> surfaceWaterReports{{
    {"frmSWDesign", detailedForm, "rptSW", Text::surfaceWaterDesignTitle,
     surfaceWaterReport::parts},
    {"frmSWDesign", shortForm, "rptSWShort", Text::surfaceWaterDesignTitle,
     surfaceWaterReport::parts},
}};

}  // namespace varnholt
