// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/5000_horizontal.txt.
namespace varnholt::Text {

// The horizontal design: its title and its page.
constexpr int horizontalDesignTitle = 5001;
constexpr int configurationPage = 5002;

// Trenches and the pipes in them.
constexpr int trenchNumber = 5005;
constexpr int trenchSeparation = 5006;
constexpr int trenchDepth = 5007;
constexpr int trenchWidth = 5008;
constexpr int widthUnitsMetric = 5009;
constexpr int widthUnitsEnglish = 5010;
constexpr int trenchLayout = 5011;
constexpr int pipeConfigurationInTrench = 5012;
constexpr int verticalSeparation = 5016;
constexpr int coilPitch = 5017;
constexpr int coilDiameter = 5018;
constexpr int totalNumberOfPipes = 5019;
constexpr int oneColumnOfPipes = 5021;
constexpr int twoColumnsOfPipes = 5022;
constexpr int threeColumnsOfPipes = 5023;
constexpr int slinkyLyingFlat = 5024;
constexpr int slinkyOnEdge = 5025;
constexpr int offsetRows = 5026;
constexpr int trenchWidened = 5033;
constexpr int horizontalSeparation = 5034;
constexpr int trenchDeepened = 5036;

// Lengths of pipe and trench.
constexpr int requiredTrenchLengths = 5041;
constexpr int totalPipeLengthMetric = 5042;
constexpr int totalPipeLengthEnglish = 5043;
constexpr int totalTrenchLengthMetric = 5044;
constexpr int totalTrenchLengthEnglish = 5045;
constexpr int singleTrenchLengthMetric = 5046;
constexpr int singleTrenchLengthEnglish = 5047;
constexpr int trenchNumberResult = 5048;
constexpr int pipeLengthPerTrenchMetric = 5049;
constexpr int pipeLengthPerTrenchEnglish = 5050;
constexpr int soilTemperatureChangeMetric = 5051;
constexpr int soilTemperatureChangeEnglish = 5052;
constexpr int noticeOneDayForBoth = 5081;

// What stands in the pictures, and what a screen reader says of them.
constexpr int pipesInTrenchPicture = 5061;
constexpr int lyingSlinkyPicture = 5062;
constexpr int standingSlinkyPicture = 5063;
constexpr int slinkyTooWidePicture = 5064;
constexpr int groundSurfacePicture = 5065;
constexpr int trenchPictureEmpty = 5066;
constexpr int pipeTrenchesPicture = 5071;
constexpr int lyingSlinkyTrenchesPicture = 5072;
constexpr int standingSlinkyTrenchesPicture = 5073;
constexpr int trenchesCutPicture = 5074;

}  // namespace varnholt::Text
