// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/calculators.h"
#include "forms/text_numbers/reports.h"
#include "forms/text_numbers/surface_water.h"
#include "reports/computed_texts.h"
#include "reports/project_report_definition.h"

namespace varnholt {

// The blocks that the reports of several kinds of designs share.

// clang-format off
inline constexpr Pair fluidPairs[] = {
    {{"FlowRatePerTonTextLabel", shown("FLFlowRateText", "FLFlowRateUnitsLabel")}, words(Text::flowRateCaption)},
    {{"FluidTypeTextLabel", computed(fluidOf)}, words(Text::fluidPage)},
    {{"SpecificHeatTextLabel", shown("FLSpecificHeatText", "FLSpecificHeatUnitsLabel")}, words(Text::specificHeat)},
    {{"DensityTextLabel", shown("FLFluidDensityText", "FLDensityUnitsLabel")}, words(Text::density)},
};

inline constexpr Pair soilPairs[] = {
    {{"GroundTempTextLabel", shown("SOGroundTempText", "SOGroundTempUnitsLabel")}, words(Text::groundTemperature)},
    {{"ThermalConductivityTextLabel", shown("SOThermalConductivityText", "SOThermalConductivityUnitsLabel")}, words(Text::thermalConductivity)},
    {{"ThermalDiffusivityTextLabel", shown("SOThermalDiffusivityText", "SOThermalDiffusivityUnitsLabel")}, words(Text::soilThermalDiffusivity)},
};

inline constexpr Pair extraPowerPairs[] = {
    {{"CirculationPumpPowerTextLabel", shown("EKWPumpPowerText(0)", "EKWPumpPowerUnitsLabel(0)")}, words(Text::circulationPumpPower)},
    {{"AdditionalPowerTextLabel", shown("EKWPumpPowerText(2)", "EKWPumpPowerUnitsLabel(2)")}, words(Text::additionalPower)},
};

inline constexpr Pair predictionPairs[] = {
    {{"TimeTextLabel", shown("PATimeText", "PATimeUnitsLabel")}, words(Text::predictionTime)},
};

inline constexpr Pair heatPumpPairs[] = {
    {{"ManufacturerTextLabel", computed(manufacturerOf)}, words(Text::reportManufacturer)},
};
inline constexpr Pair heatPumpSeriesPairs[] = {
    {{"SeriesTextLabel", computed(seriesOf)}, words(Text::reportSeries)},
};

inline constexpr Pair towerPairs[] = {
    {{"LoadBalanceTextLabel", shown("CAPercentHybridLabel(0)")}, words(Text::loadBalance)},
    {{"CondenserCapacityTextLabel", shown("CACondenserCapacityLabel(0)")}, shown("CACondenserCapacityLabel(1)")},
    {{"CoolingTowerFlowRateTextLabel", shown("CACoolingTowerFlowRateLabel(0)")}, shown("CACoolingTowerFlowRateLabel(1)")},
};
inline constexpr Pair towerMorePairs[] = {
    {{"CoolingRangeTextLabel", shown("CACoolingTowerRangeLabel(0)")}, shown("CACoolingTowerRangeLabel(1)")},
    {{"CoolingTowerHoursTextLabel", shown("CACoolingTowerHoursLabel(0)")}, shown("CACoolingTowerHoursLabel(1)")},
    {{"CoolingTowerPumpTextLabel", shown("EKWPumpPowerText(5)", "EKWPumpPowerUnitsLabel(5)")}, words(Text::coolingTowerPump)},
    {{"CoolingTowerFanTextLabel", shown("EKWPumpPowerText(3)", "EKWPumpPowerUnitsLabel(3)")}, words(Text::coolingTowerFan)},
};

inline constexpr TableRow loadTempRows[] = {
    {{"WaterToAirLabel", Words{Text::reportWaterToAir, Text::reportWaterToAir, ":"}}, {"WALoadTempCoolLabel", computed(airCoolingOf)}, {"WALoadTempHeatLabel", computed(airHeatingOf)}},
    {{"WaterToWaterLabel", Words{Text::reportWaterToWater, Text::reportWaterToWater, ":"}}, {"WWLoadTempCoolLabel", computed(waterCoolingOf)}, {"WWLoadTempHeatLabel", computed(waterHeatingOf)}},
};
// clang-format on

inline constexpr Block fluidBlock{{"FluidLabel", words(Text::fluidPage)}, fluidPairs};
inline constexpr Block soilBlock{{"SoilLabel", words(Text::soilPage)}, soilPairs};
inline constexpr Block extraPowerBlock{{"ExtrakWLabel", words(Text::extraPowerPage)},
                                       extraPowerPairs};
inline constexpr Block predictionBlock{{"PredictionTimeLabel", words(Text::modelingTimePeriod)},
                                       predictionPairs};

// A block without a heading goes on beside one with it.
inline constexpr Block towerLeft[] = {
    {{"OptionalCoolingTowerLabel", shown("CAHybridFrame")}, towerPairs}};
inline constexpr Block towerRight[] = {{{nullptr, nothing()}, towerMorePairs}};
inline constexpr Block heatPumpLeft[] = {
    {{"HeatPumpLabel", words(Text::heatPumpsHeading)}, heatPumpPairs}};
inline constexpr Block heatPumpRight[] = {{{nullptr, nothing()}, heatPumpSeriesPairs}};

inline constexpr Part resultsHeading =
    Heading{{"CalculationResultsLabel", words(Text::calculationResults)}};
inline constexpr Part coolingTowerPart = Blocks{towerLeft, towerRight, Printed::withTower};
inline constexpr Part inputsHeading =
    Heading{{"InputParametersLabel", words(Text::inputParameters)}};
/// Where the input parameters of a detailed form go on.
inline constexpr Part inputsContHeading =
    Heading{{"InputParametersContLabel", computed(inputParametersContOf)},
            ItemStyle::heading,
            Printed::inDetail};

/// What ends every project report: pumps, loads, comments and drawings.
inline constexpr Part lastParts[] = {
    Blocks{heatPumpLeft, heatPumpRight},
    Heading{{"LoadTempsLabel", words(Text::loadInletTemperatures)}, ItemStyle::subheading},
    Table{{{{{"CoolingLabel2", words(Text::resultsCooling)}, Tint::cooling},
            {{"HeatingLabel2", words(Text::resultsHeating)}, Tint::heating}}},
          loadTempRows,
          ItemStyle::figure},
    Heading{{"LoadsFileLabel", words(Text::loadsFile)}, ItemStyle::subheading},
    Note{{"LoadsFilenameLabel", computed(loadsFileOf)}},
    Heading{{"CommentsLabel", words(Text::reportComments)}, ItemStyle::subheading},
    Note{{"CommentsTextLabel", project(&ProjectInformation::comments)}},
    Drawings{{"DrawingsLabel", words(Text::reportDrawings)}},
};

// The rows of results that every kind has.
inline constexpr ResultLine unitInletLine{"UnitInlet", "CAUnitInletLabel"};
inline constexpr ResultLine unitOutletLine{"UnitOutlet", "CAUnitOutletLabel"};
inline constexpr ResultLine totalCapacityLine{"TotalCapacity", "CATotalCapacityLabel"};
inline constexpr ResultLine peakLoadLine{"PeakLoad", "CAPeakLoadLabel"};
inline constexpr ResultLine peakDemandLine{"PeakDemand", "CAPeakDemandLabel"};
inline constexpr ResultLine pumpCopLine{"PumpCOP", "CAPumpCOPLabel",
                                        words(Text::heatPumpCopMetric, Text::reportPumpCopEnglish)};
inline constexpr ResultLine systemCopLine{
    "SystemCOP", "CASystemCOPLabel", words(Text::systemCopMetric, Text::reportSystemCopEnglish)};
inline constexpr ResultLine systemFlowLine{"SystemFlowRate", "CAFlowRateLabel"};
inline constexpr ResultLine groundChangeLine{"GroundTemperatureChange", "CASoilTempChangeLabel"};

}  // namespace varnholt
