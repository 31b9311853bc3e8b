// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/4100_heat_pump_editor.txt.
namespace varnholt::Text {

// The heat pump editor: the window and its lists.
constexpr int pumpEditorTitle = 4100;
constexpr int chooseManufacturer = 4101;
constexpr int addToCatalogue = 4102;
constexpr int noSeriesYet = 4103;
constexpr int chooseSeries = 4104;
constexpr int pumpsInSeries = 4105;
constexpr int noPumpInformation = 4121;
constexpr int pumpEditorHint = 4122;

// Its panel for manufacturer and series.
constexpr int chooseWhatToAddTo = 4107;
constexpr int newManufacturer = 4108;
constexpr int addSeriesTo = 4109;
constexpr int pumpInformation = 4110;
constexpr int manufacturerName = 4111;
constexpr int street = 4112;
constexpr int cityStateZip = 4113;
constexpr int manufacturerCountry = 4114;
constexpr int manufacturerPhone = 4115;
constexpr int seriesName = 4116;
constexpr int seriesFileName = 4117;
constexpr int applyInformation = 4118;
constexpr int proceedWithInformation = 4119;
constexpr int seriesDate = 4120;

// Its commands and their tool tips.
constexpr int newPump = 4201;
constexpr int copyPump = 4202;
constexpr int removePump = 4203;
constexpr int reorderPumps = 4204;
constexpr int clearPumps = 4205;
constexpr int pumpSummary = 4206;
constexpr int savePumps = 4207;
constexpr int editSeries = 4208;
constexpr int deleteSeries = 4209;
constexpr int exitEditor = 4210;
constexpr int newPumpTip = 4270;
constexpr int copyPumpTip = 4271;
constexpr int removePumpTip = 4272;
constexpr int reorderPumpsTip = 4273;
constexpr int clearPumpsTip = 4274;
constexpr int savePumpsTip = 4275;
constexpr int editSeriesTip = 4276;
constexpr int deleteSeriesTip = 4277;
constexpr int exitEditorTip = 4278;

// Names of its pumps.
constexpr int copiedPumpSuffix = 4215;
constexpr int pump = 4246;

// Its pages.
constexpr int pumpDetailsPage = 4220;
constexpr int coolingSpecifications = 4130;
constexpr int heatingSpecifications = 4131;
constexpr int loadTemperaturePage = 4251;
constexpr int loadFlow = 4252;
constexpr int temperatureCorrections = 4221;
constexpr int flowCorrections = 4222;
constexpr int testPage = 4260;

// Its rating tables.
constexpr int enteringWater = 4230;
constexpr int flowRateOne = 4132;
constexpr int flowRateTwo = 4133;
constexpr int ratedCapacity = 4233;
constexpr int ratedPower = 4236;
constexpr int ratedCop = 4237;
constexpr int ratedEer = 4238;
constexpr int secondCapacity = 4239;
constexpr int secondPower = 4240;
constexpr int copyTable = 4223;
constexpr int copyTableTip = 4219;
constexpr int pasteTable = 4218;
constexpr int rowOne = 4225;
constexpr int rowTwo = 4226;
constexpr int rowThree = 4227;
constexpr int rowFour = 4228;
constexpr int rowFive = 4229;

// A figure that is no heat pump's.
constexpr int unlikelySign = 4290;
constexpr int unlikelyCop = 4291;

// Its correction tables.
constexpr int enteringAirWetBulb = 4243;
constexpr int enteringAirDryBulb = 4244;
constexpr int percentOfNominal = 4253;
constexpr int capacityFactor = 4254;
constexpr int powerFactor = 4255;
constexpr int zeroRow = 4256;
constexpr int zeroRowTip = 4257;
constexpr int correctionTemperature = 4258;

// Units of the load flow of water-to-water pumps.
constexpr int loadWaterUnitsMetric = 3214;
constexpr int loadWaterUnitsEnglish = 3215;

// Its coefficients.
constexpr int coefficientsFrame = 4241;
constexpr int calculateCoefficients = 4242;
constexpr int flowFactors = 4245;
constexpr int coefficientA = 4247;
constexpr int coefficientB = 4248;
constexpr int coefficientC = 4249;
constexpr int coefficientD = 4250;
constexpr int coolingCapacityCurve = 4280;
constexpr int coolingPowerCurve = 4281;
constexpr int heatingCapacityCurve = 4282;
constexpr int heatingPowerCurve = 4283;
constexpr int fitDeviation = 4284;
constexpr int fitTurns = 4285;
constexpr int fitTurnsTip = 4286;
constexpr int percentUnit = 4287;

// Its test.
constexpr int testSourceTemperature = 4261;
constexpr int testSourceFlow = 4262;
constexpr int testLoadTemperature = 4263;
constexpr int testLoadFlow = 4264;
constexpr int testCapacityEnglish = 4265;
constexpr int testCapacityMetric = 4266;
constexpr int testPower = 4267;
constexpr int testCopEnglish = 4268;
constexpr int testCopMetric = 4269;
constexpr int runTest = 4279;

// Its pictures.
constexpr int ratingChart = 4292;
constexpr int correctionsChart = 4293;
constexpr int testChart = 4294;
constexpr int curveMet = 4295;
constexpr int curveStale = 4296;
constexpr int nothingMeasured = 4297;
constexpr int curveTested = 4298;
constexpr int nothingToTest = 4299;
constexpr int secondFlowLegend = 4211;
constexpr int staleLegend = 4212;
constexpr int loadPercentAxis = 4214;
constexpr int loadTemperatureAxis = 4216;
constexpr int testedLegend = 4217;

}  // namespace varnholt::Text
