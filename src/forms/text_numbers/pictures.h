// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/2460_pictures.txt.
namespace varnholt::Text {

// What stands in the pictures, and what a screen reader says of them.
constexpr int singleUTubePicture = 2461;
constexpr int doubleUTubePicture = 2462;
constexpr int pipesDoNotFitPicture = 2463;
constexpr int boresWithoutNeighbour = 2531;
constexpr int boresAtEnd = 2532;
constexpr int boresAtCorner = 2533;
constexpr int boresAtEdge = 2534;
constexpr int boresInside = 2535;
constexpr int boresInLine = 2536;
constexpr int fieldPictureEmpty = 2541;
constexpr int fieldPicture = 2542;
constexpr int pictureLowEnd = 2543;
constexpr int pictureHighEnd = 2544;
constexpr int groundChartDepth = 3351;
constexpr int groundChartDay = 3352;
constexpr int groundChartTemperature = 3353;
constexpr int groundChartWarmestDay = 3354;
constexpr int groundChartColdestDay = 3355;
constexpr int groundChart = 3356;
constexpr int groundChartEmpty = 3357;
constexpr int groundChartAtDepth = 3358;
constexpr int circuit = 3550;
constexpr int circuitHeatPumps = 3551;
constexpr int circuitPrimaryHeaders = 3552;
constexpr int circuitBranches = 3553;
constexpr int circuitLoops = 3554;
constexpr int circuitInSoil = 3555;
constexpr int circuitInWater = 3556;
constexpr int circuitCountAndFlow = 3557;
constexpr int circuitPicture = 3558;
constexpr int loopChartDifference = 3561;
constexpr int loopChartPerTon = 3562;
constexpr int loopChart = 3563;
constexpr int loopChartAtDesign = 3564;
constexpr int loopChartEmpty = 3565;
constexpr int linkedWithZoneManager = 2980;
constexpr int linkedWithAverageBlock = 2981;
constexpr int notLinked = 2982;
constexpr int chartCooling = 2983;
constexpr int chartHeating = 2984;
constexpr int dayChartEmpty = 2985;
constexpr int pumpCurvesEmpty = 2990;
constexpr int pumpCurves = 2991;
constexpr int pumpCurvesAtDesign = 2992;
constexpr int pumpCurvesCapacity = 2993;
constexpr int pumpCurvesPower = 2994;
constexpr int pumpCurvesEnteringWater = 2995;
constexpr int pumpCurvesCatalogue = 2996;
constexpr int pumpCurvesDesign = 2997;
constexpr int enterLoadsFirst = 2160;

}  // namespace varnholt::Text
