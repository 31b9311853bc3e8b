// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/3000_surface_water.txt.
namespace varnholt::Text {

// The surface water design: its title and its pages.
constexpr int surfaceWaterDesignTitle = 3001;
constexpr int loopPipingPage = 3002;
constexpr int surfaceWaterPage = 3003;

// Lengths, flows and losses of the loops and headers.
constexpr int requiredLoopLengths = 3101;
constexpr int loopLengthMetric = 3102;
constexpr int loopLengthEnglish = 3103;
constexpr int loopNumber = 3104;
constexpr int maxParallelLoops = 3105;
constexpr int approachTempMetric = 3106;
constexpr int approachTempEnglish = 3107;
constexpr int circuitFlowMetric = 3108;
constexpr int circuitFlowEnglish = 3109;
constexpr int primaryHeaderFlowMetric = 3110;
constexpr int primaryHeaderFlowEnglish = 3111;
constexpr int branchHeaderFlowMetric = 3112;
constexpr int branchHeaderFlowEnglish = 3113;
constexpr int loopLossMetric = 3114;
constexpr int loopLossEnglish = 3115;
constexpr int headerLossMetric = 3116;
constexpr int headerLossEnglish = 3117;
constexpr int totalLossMetric = 3118;
constexpr int totalLossEnglish = 3119;
constexpr int loopFlowUnitsMetric = 3210;
constexpr int loopFlowUnitsEnglish = 3211;

// What decides the length, how sure it is, what it costs: why there are no figures.
constexpr int minimumLoopFlow = 3212;

// Soil around buried headers.
constexpr int groundTemperatureCorrections = 3301;
constexpr int headersInSoil = 3302;
constexpr int correctedTemperatureMetric = 3303;
constexpr int correctedTemperatureEnglish = 3304;
constexpr int headerDepth = 3305;
constexpr int soilType = 3308;
constexpr int drySoil = 3309;
constexpr int dampSoil = 3310;
constexpr int wetSoil = 3311;
constexpr int airTemperatureSwing = 3312;
constexpr int extremeDays = 3313;
constexpr int summer = 3314;
constexpr int winter = 3315;
constexpr int swingTableButton = 3316;

// Loops and headers.
constexpr int circuitParameters = 3402;
constexpr int loopPipeSize = 3403;
constexpr int loopStyle = 3405;
constexpr int coil = 3406;
constexpr int slinky = 3407;
constexpr int numberOfLoops = 3408;
constexpr int loopHeadLoss = 3409;
constexpr int headLossUnitsMetric = 3410;
constexpr int headLossUnitsEnglish = 3411;
constexpr int extraEquivalentLength = 3412;
constexpr int headerParameters = 3413;
constexpr int numberOfHeaders = 3414;
constexpr int primaryHeader = 3415;
constexpr int branchHeader = 3416;
constexpr int lengthInWater = 3417;
constexpr int lengthInSoil = 3418;
constexpr int headerLength = 3419;
constexpr int headerHeadLoss = 3420;
constexpr int primaryCoolingLoss = 3421;
constexpr int primaryHeatingLoss = 3422;
constexpr int branchCoolingLoss = 3423;
constexpr int branchHeatingLoss = 3424;
constexpr int headerPipeSize = 3425;
constexpr int loopPipeThreeQuarterInch = 3430;
constexpr int loopPipeOneInch = 3431;
constexpr int loopPipeOneAndAQuarterInch = 3432;
constexpr int loopPipeOneAndAHalfInch = 3433;
constexpr int headerPipeTwoInch = 3434;
constexpr int headerPipeThreeInch = 3435;
constexpr int headerPipeFourInch = 3436;
constexpr int headerPipeSixInch = 3437;

// The water.
constexpr int surfaceWaterProperties = 3501;
constexpr int loopWaterTemperatures = 3502;
constexpr int primaryHeaderWaterTemperatures = 3503;
constexpr int branchHeaderWaterTemperatures = 3504;
constexpr int surfaceWaterDetails = 3505;
constexpr int surfaceWaterType = 3507;
constexpr int pond = 3508;
constexpr int lake = 3509;
constexpr int reservoir = 3510;
constexpr int river = 3511;
constexpr int otherWater = 3512;
constexpr int surfaceArea = 3513;
constexpr int areaUnitsMetric = 3514;
constexpr int areaUnitsEnglish = 3515;
constexpr int loopPipeDepth = 3516;

// The pump power calculator; a report's flow has the same caption.
constexpr int flowRateCaption = 3213;

}  // namespace varnholt::Text
