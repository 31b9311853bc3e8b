// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of a field of trenches.
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/horizontal.h"
#include "forms/text_numbers/reports.h"
#include "forms/text_numbers/surface_water.h"
#include "reports/project_report_blocks.h"
#include "reports/project_reports.h"
#include "reports/trench_texts.h"

namespace varnholt {
namespace horizontalReport {
namespace {

constexpr ResultLine resultLines[] = {
    {"TotalLength", "CATotalLengthLabel"},
    {"TrenchNumber", "CATrenchNumberLabel"},
    {"SingleTrenchLength", "CATrenchLengthLabel"},
    {"TotalPipeLength", "CATotalPipeLengthLabel"},
    {"SingleTrenchPipeLength", "CAPipeLengthPerTrenchLabel"},
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
constexpr Pair trenchSoilPairs[] = {
    soilPairs[0],
    soilPairs[1],
    soilPairs[2],
    {{"RegionalSwingTextLabel", shown("SOAirTempSwingText", "SOSwingdegCLabel")}, words(Text::airTemperatureSwing)},
};

constexpr Pair pipingPairs[] = {
    {{"PipeSizeTextLabel", computed(pipeSizeWithFlowOf)}, words(Text::pipeSize)},
    {{"FlowTypeTextLabel", computed(flowTypeOf)}, words(Text::flowType)},
    {{"PipeResistanceTextLabel", shown("PIPipeResistanceText", "PIPipeResistanceUnitsLabel")}, words(Text::pipeResistance)},
};

constexpr Pair layoutPairs[] = {
    {{"NumberOfTrenchesTextLabel", shown("CATrenchNumberLabel(0)")}, words(Text::trenchNumber)},
    {{"TrenchSeparationTextLabel", shown("PASeparationText(0)", "PASeparationUnitsLabel(0)")}, shown("PASeparationLabel(0)")},
    {{"TrenchDepthTextLabel", shown("PASeparationText(1)", "PASeparationUnitsLabel(1)")}, shown("PASeparationLabel(1)")},
    {{"TrenchWidthTextLabel", shown("PASeparationText(2)", "PASeparationUnitsLabel(2)")}, shown("PASeparationLabel(2)")},
};

constexpr Pair configurationPairs[] = {
    {{"PipeConfigurationTextLabel", computed(pipeConfigurationOf)}, words(Text::pipeConfiguration)},
    {{"PipeLayoutTextLabel", computed(pipeLayoutOf)}, words(Text::pipeLayout)},
    {{"PipeVerticalSeparationOrPitchTextLabel", computed(firstDimensionOf)}, computed(firstDimensionCaptionOf)},
    {{"PipeHorizontalSeparationOrDiameterTextLabel", computed(secondDimensionOf)}, computed(secondDimensionCaptionOf)},
};

constexpr TableRow seasonRows[] = {
    {{"ExtremeDayLabel", words(Text::extremeDay)},
     {"ExtremeDaySummerLabel", shown("SODayText(0)")}, {"ExtremeDayWinterLabel", shown("SODayText(1)")}},
};
// clang-format on

constexpr Block fluidAndPower[] = {fluidBlock, extraPowerBlock};
constexpr Block soilAndPiping[] = {{{"SoilLabel", words(Text::soilPage)}, trenchSoilPairs},
                                   {{"PipingLabel", words(Text::loopPipingPage)}, pipingPairs}};
constexpr Block layoutAndTime[] = {{{"TrenchLayoutLabel", words(Text::trenchLayout)}, layoutPairs},
                                   predictionBlock};
constexpr Block configuration[] = {
    {{"PipeConfigurationInTrenchLabel", words(Text::pipeConfigurationInTrench)},
     configurationPairs}};

constexpr Part seasonTable =
    Table{{{{{"SummerLabel", words(Text::inSummer)}}, {{"WinterLabel", words(Text::inWinter)}}}},
          seasonRows};

constexpr Part parts[] = {
    resultsHeading,
    Results{resultLines},
    coolingTowerPart,
    inputsHeading,
    Blocks{fluidAndPower, soilAndPiping},
    seasonTable,
    inputsContHeading,
    Blocks{layoutAndTime, configuration},
};

}  // namespace
}  // namespace horizontalReport

constinit const std::array<ProjectReportDefinition, 2> horizontalReports{{
    {"frmHZDesign", detailedForm, "rptHZ", Text::horizontalDesignTitle, horizontalReport::parts},
    {"frmHZDesign", shortForm, "rptHZShort", Text::horizontalDesignTitle, horizontalReport::parts},
}};

}  // namespace varnholt
