// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/1300_hints.txt.
namespace varnholt::Text {

// Lines of the status bar for the entries of the menus.
constexpr int newBoreholeHint = 1300;
constexpr int newHorizontalHint = 1301;
constexpr int newSurfaceWaterHint = 1302;
constexpr int openHint = 1303;
constexpr int openProjectHint = 1304;
constexpr int saveHint = 1305;
constexpr int saveAsHint = 1306;
constexpr int saveProjectHint = 1307;
constexpr int printPreviewHint = 1308;
constexpr int printSetupHint = 1309;
constexpr int exitProgramHint = 1310;
constexpr int showToolbarHint = 1311;
constexpr int averageBlockHint = 1312;
constexpr int zoneManagerHint = 1313;
constexpr int linkLoadsHint = 1314;
constexpr int unlinkLoadsHint = 1315;
constexpr int monthlyImporterHint = 1316;
constexpr int editPumpsHint = 1317;
constexpr int diffusivityToolHint = 1318;
constexpr int equivalentHoursToolHint = 1319;
constexpr int pumpPowerToolHint = 1320;
constexpr int metricUnitsHint = 1321;
constexpr int englishUnitsHint = 1322;
constexpr int fluidPropertiesHint = 1323;
constexpr int soilPropertiesHint = 1324;
constexpr int pipePropertiesHint = 1325;
constexpr int conversionTablesHint = 1326;
constexpr int helpContentsHint = 1327;
constexpr int aboutHint = 1328;
constexpr int undoHint = 1330;
constexpr int redoHint = 1331;
constexpr int cutHint = 1332;
constexpr int copyHint = 1333;
constexpr int pasteHint = 1334;
constexpr int selectAllHint = 1335;

}  // namespace varnholt::Text
