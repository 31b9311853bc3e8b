// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of a field of bores.
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/reports.h"
#include "forms/text_numbers/surface_water.h"
#include "reports/project_report_blocks.h"
#include "reports/project_reports.h"

namespace varnholt {
namespace boreholeReport {
namespace {

constexpr ResultLine resultLines[] = {
    {"TotalLength", "CATotalLengthLabel"},
    {"BoreholeNumber", "CABoreholeNumberLabel"},
    {"BoreholeLength", "CABoreholeLengthLabel"},
    unitInletLine,
    unitOutletLine,
    totalCapacityLine,
    peakLoadLine,
    peakDemandLine,
    pumpCopLine,
    systemCopLine,
    systemFlowLine,
    groundChangeLine,
};

// clang-format off
constexpr TableRow longTermRows[] = {
    {{"LongTermSoilTemperaturesLabel", words(Text::longTermSoilTemperatures)},
     {"LongTermSoilTemperaturesCoolingTextLabel", computed(longTermCoolingOf)},
     {"LongTermSoilTemperaturesHeatingTextLabel", computed(longTermHeatingOf)}},
};

constexpr Pair pipingPairs[] = {
    {{"PipeSizeTextLabel", shown("PIPipeDiameterCombo")}, words(Text::pipeSize)},
    {{"FlowTypeTextLabel", computed(flowTypeOf)}, words(Text::flowType)},
    {{"PipeResistanceTextLabel", shown("PIPipeResistanceText", "PIPipeResistanceUnitsLabel")}, words(Text::pipeResistance)},
    {{"ConfigurationTextLabel", computed(configurationOf)}, words(Text::uTubeConfiguration)},
    {{"RadialPlacementTextLabel", computed(placementOf)}, words(Text::pipeRadialPlacement)},
    {{"BoreholeDiameterTextLabel", shown("PIBoreholeDiameterText", "PIBoreholeDiameterUnitsLabel")}, words(Text::boreholeDiameter)},
    {{"GroutThermalConductivityTextLabel", shown("PIGroutConductivityText", "PIGroutThermalConductivityUnitsLabel")}, words(Text::groutConductivity)},
    {{"BoreholeThermalResistanceTextLabel", shown("PIThermalResistanceText", "PIThermalResistanceUnitsLabel")}, words(Text::boreholeResistance)},
};

constexpr Pair patternPairs[] = {
    {{"ArrangementTextLabel", computed(arrangementOf)}, words(Text::verticalGridArrangement)},
    {{"BoreholeSeparationTextLabel", shown("PASeparationText", "PASeparationUnitsLabel")}, words(Text::boreholeSeparation)},
    {{"BoresPerCircuitTextLabel", shown("PABoresPerParallelLoopText")}, words(Text::boresPerParallelCircuit)},
};
// clang-format on

constexpr Block fluidAndSoil[] = {fluidBlock, soilBlock};
constexpr Block piping[] = {{{"PipingLabel", words(Text::loopPipingPage)}, pipingPairs}};
constexpr Block pattern[] = {{{"PatternLabel", words(Text::patternPage)}, patternPairs}};
constexpr Block timeAndPower[] = {predictionBlock, extraPowerBlock};

constexpr Part parts[] = {
    resultsHeading,
    Results{resultLines, longTermRows},
    coolingTowerPart,
    inputsHeading,
    Blocks{fluidAndSoil, piping},
    inputsContHeading,
    Blocks{pattern, timeAndPower},
};

}  // namespace
}  // namespace boreholeReport

constinit const std::array<ProjectReportDefinition, 2> boreholeReports{{
    {"frmBHDesign", detailedForm, "rptBH", Text::boreholeDesignTitle, boreholeReport::parts},
    {"frmBHDesign", shortForm, "rptBHShort", Text::boreholeDesignTitle, boreholeReport::parts},
}};

}  // namespace varnholt
