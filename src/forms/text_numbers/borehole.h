// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/2000_borehole.txt.
namespace varnholt::Text {

// The borehole design: its title and its pages.
constexpr int boreholeDesignTitle = 2001;
constexpr int resultsPage = 2002;
constexpr int fluidPage = 2003;
constexpr int soilPage = 2004;
constexpr int pipingPage = 2005;
constexpr int patternPage = 2006;
constexpr int extraPowerPage = 2007;
constexpr int informationPage = 2010;
constexpr int designMetricSwitch = 2011;

// Results.
constexpr int requiredBoreLengths = 2101;
constexpr int resultsCooling = 2102;
constexpr int resultsHeating = 2103;
constexpr int totalLengthMetric = 2104;
constexpr int totalLengthEnglish = 2105;
constexpr int boreholeNumber = 2106;
constexpr int boreholeLengthMetric = 2107;
constexpr int boreholeLengthEnglish = 2108;
constexpr int unitInletMetric = 2109;
constexpr int unitInletEnglish = 2110;
constexpr int unitOutletMetric = 2111;
constexpr int unitOutletEnglish = 2112;
constexpr int totalCapacityMetric = 2113;
constexpr int totalCapacityEnglish = 2114;
constexpr int peakLoadMetric = 2115;
constexpr int heatPumpCopMetric = 2116;
constexpr int peakLoadEnglish = 2117;
constexpr int systemCopMetric = 2118;
constexpr int peakDemand = 2119;
constexpr int heatPumpCopEnglish = 2120;
constexpr int systemCopEnglish = 2121;
constexpr int systemFlowRateMetric = 2122;
constexpr int systemFlowRateEnglish = 2123;
constexpr int groundTemperatureChangeMetric = 2124;
constexpr int groundTemperatureChangeEnglish = 2125;
constexpr int calculate = 2130;

// The cooling tower.
constexpr int loadBalance = 2141;
constexpr int optionalCoolingTower = 2142;
constexpr int condenserCapacityMetric = 2143;
constexpr int condenserCapacityEnglish = 2144;
constexpr int towerFlowRateMetric = 2145;
constexpr int towerFlowRateEnglish = 2146;
constexpr int coolingRangeMetric = 2147;
constexpr int coolingRangeEnglish = 2148;
constexpr int towerOperatingHours = 2149;
constexpr int loadBalanceUnits = 2150;
constexpr int calculationFailed = 2151;

// Fluid.
constexpr int fluidTemperaturesAndFlow = 2201;
constexpr int designInletTemperatures = 2202;
constexpr int inletTemperatureCooling = 2203;
constexpr int inletTemperatureHeating = 2204;
constexpr int inletTemperatureUnitsMetric = 2205;
constexpr int inletTemperatureUnitsEnglish = 2206;
constexpr int designSystemFlowRate = 2207;
constexpr int designFlowRate = 2208;
constexpr int designFlowRateUnitsMetric = 2209;
constexpr int designFlowRateUnitsEnglish = 2210;
constexpr int solutionProperties = 2211;
constexpr int fluidType = 2212;
constexpr int percentAntifreeze = 2213;
constexpr int specificHeat = 2216;
constexpr int specificHeatUnitsMetric = 2217;
constexpr int specificHeatUnitsEnglish = 2218;
constexpr int density = 2219;
constexpr int densityUnitsMetric = 2220;
constexpr int densityUnitsEnglish = 2221;
constexpr int fluidTablesButton = 2222;
constexpr int water = 2224;
constexpr int propyleneGlycol = 2225;
constexpr int ethyleneGlycol = 2226;
constexpr int methanol = 2227;
constexpr int ethanol = 2228;
constexpr int potassiumAcetate = 2229;
constexpr int calciumChloride = 2230;

// Soil.
constexpr int soilTemperaturesAndProperties = 2301;
constexpr int undisturbedGroundTemperature = 2302;
constexpr int groundTemperature = 2303;
constexpr int groundTemperatureUnitsMetric = 2304;
constexpr int groundTemperatureUnitsEnglish = 2305;
constexpr int soilThermalProperties = 2306;
constexpr int thermalDiffusivity = 2307;
constexpr int thermalDiffusivityUnitsMetric = 2308;
constexpr int thermalDiffusivityUnitsEnglish = 2309;
constexpr int diffusivityButton = 2310;
constexpr int soilTablesButton = 2312;

// Pipe and bore.
constexpr int pipeSizeAndResistance = 2401;
constexpr int boreholeEquivalentResistance = 2402;
constexpr int boreholeResistance = 2403;
constexpr int thermalResistanceUnitsMetric = 2404;
constexpr int thermalResistanceUnitsEnglish = 2405;
constexpr int pipeParameters = 2406;
constexpr int pipeResistance = 2408;
constexpr int sdr9 = 2409;
constexpr int sdr11 = 2410;
constexpr int sdr17 = 2411;
constexpr int schedule40 = 2412;
constexpr int schedule80 = 2413;
constexpr int turbulentFlow = 2414;
constexpr int transitionFlow = 2415;
constexpr int laminarFlow = 2416;
constexpr int pipeTablesButton = 2417;
constexpr int threeQuarterInchPipe = 2418;
constexpr int oneInchPipe = 2419;
constexpr int oneAndAQuarterInchPipe = 2420;
constexpr int oneAndAHalfInchPipe = 2421;
constexpr int groutInformation = 2422;
constexpr int boreholeDiameterHeading = 2423;
constexpr int boreholeDiameter = 2424;
constexpr int groutConductivity = 2426;
constexpr int uTubeConfiguration = 2429;
constexpr int singleUTube = 2430;
constexpr int doubleUTube = 2431;
constexpr int pipeRadialPlacement = 2432;
constexpr int placementAlongOuterWall = 2433;
constexpr int placementAverage = 2434;
constexpr int placementCloseTogether = 2435;
constexpr int pipeSize = 2436;
constexpr int flowType = 2437;
constexpr int pipeType = 2439;
constexpr int outerDiameter = 2440;
constexpr int innerDiameter = 2441;
constexpr int thermalConductivity = 2445;
constexpr int thermalConductivityUnitsMetric = 2446;
constexpr int thermalConductivityUnitsEnglish = 2447;
constexpr int diameterUnitsMetric = 2448;
constexpr int diameterUnitsEnglish = 2449;
constexpr int pipesDoNotFit = 2453;
constexpr int widthOfPipes = 2454;
constexpr int pumpDataMissing = 2455;

// Arrangement of the bores.
constexpr int groundFieldArrangement = 2501;
constexpr int verticalGridArrangement = 2502;
constexpr int rowsAcross = 2503;
constexpr int rowsDown = 2504;
constexpr int separationBetweenBores = 2505;
constexpr int boreholeSeparation = 2506;
constexpr int boresPerParallelCircuit = 2507;
constexpr int parallelCircuits = 2508;
constexpr int modelingTimePeriod = 2509;
constexpr int predictionTime = 2510;
constexpr int lengthUnitsMetric = 2511;
constexpr int lengthUnitsEnglish = 2512;
constexpr int predictionTimeUnits = 2513;

// Extra power.
constexpr int circulationPumps = 2601;
constexpr int additionalPowerRequirements = 2602;
constexpr int coolingTowerPower = 2603;
constexpr int additionalPower = 2604;
constexpr int pumpShaftPower = 2605;
constexpr int circulationMotorEfficiency = 2606;
constexpr int requiredInputPower = 2607;
constexpr int fanShaftPower = 2608;
constexpr int towerMotorEfficiency = 2609;
constexpr int powerUnitsMetric = 2611;
constexpr int powerUnitsEnglish = 2612;
constexpr int motorEfficiencyUnits = 2613;
constexpr int pumpPowerButton = 2614;
constexpr int coolingTowerPump = 2622;
constexpr int coolingTowerFan = 2623;

// Project information.
constexpr int projectInformation = 2700;
constexpr int projectName = 2701;
constexpr int designerName = 2702;
constexpr int clientName = 2703;
constexpr int addressLine1 = 2704;
constexpr int addressLine2 = 2705;
constexpr int city = 2706;
constexpr int state = 2707;
constexpr int zip = 2708;
constexpr int phone = 2709;
constexpr int fax = 2710;
constexpr int email = 2711;
constexpr int projectDate = 2712;
constexpr int projectStartDate = 2713;
constexpr int projectComments = 2714;

// The diffusivity calculator.
constexpr int showSoilTables = 2311;

// Which of them says more.
constexpr int secondOpinionTotal = 2170;
constexpr int secondOpinionEachBore = 2171;
constexpr int secondOpinionCommand = 2172;
constexpr int secondOpinionStands = 2173;
constexpr int secondOpinionDiffers = 2174;
constexpr int secondOpinionTip = 2175;

// The window of What If.
constexpr int whatIfCommand = 2176;
constexpr int whatIfTip = 2177;

}  // namespace varnholt::Text
