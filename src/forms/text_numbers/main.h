// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/1000_main.txt.
namespace varnholt::Text {

// The main window: its title and its menus.
constexpr int programTitle = 1001;
constexpr int fileMenu = 1002;
constexpr int viewMenu = 1003;
constexpr int loadsMenu = 1004;
constexpr int heatPumpsMenu = 1005;
constexpr int toolsMenu = 1006;
constexpr int unitsMenu = 1007;
constexpr int tablesMenu = 1008;
constexpr int windowMenu = 1009;
constexpr int helpMenu = 1011;
constexpr int printTip = 1010;
constexpr int pumpsHeading = 1012;

// The entries of the menus.
constexpr int newBorehole = 1015;
constexpr int newHorizontal = 1016;
constexpr int newSurfaceWater = 1017;
constexpr int open = 1018;
constexpr int openProject = 1019;
constexpr int save = 1020;
constexpr int saveAs = 1021;
constexpr int saveProject = 1022;
constexpr int printPreview = 1023;
constexpr int printSetup = 1024;
constexpr int exitProgram = 1025;
constexpr int showToolbar = 1026;
constexpr int averageBlock = 1027;
constexpr int zoneManager = 1028;
constexpr int linkLoads = 1029;
constexpr int unlinkLoads = 1032;
constexpr int monthlyImporter = 1033;
constexpr int editPumps = 1034;
constexpr int diffusivityTool = 1035;
constexpr int equivalentHoursTool = 1036;
constexpr int pumpPowerTool = 1037;
constexpr int metricUnits = 1038;
constexpr int englishUnits = 1039;
constexpr int fluidProperties = 1040;
constexpr int soilProperties = 1041;
constexpr int pipeProperties = 1042;
constexpr int conversionTables = 1043;
constexpr int helpContents = 1044;
constexpr int about = 1045;

// In the caption of a linked loads window.
constexpr int averageBlockOf = 1030;
constexpr int zoneManagerOf = 1031;

// The toolbar.
constexpr int newBoreholeTip = 1050;
constexpr int newHorizontalTip = 1051;
constexpr int newSurfaceWaterTip = 1052;
constexpr int openProjectTip = 1053;
constexpr int saveProjectTip = 1054;
constexpr int printProjectTip = 1055;
constexpr int editPumpsTip = 1056;
constexpr int switchUnitsTip = 1057;
constexpr int averageBlockTip = 1058;
constexpr int zoneManagerTip = 1059;
constexpr int linkLoadsTip = 1060;
constexpr int unlinkLoadsTip = 1061;

// The start picture and the About window.
constexpr int aboutTitle = 1070;
constexpr int ok = 1071;
constexpr int systemInformation = 1072;
constexpr int version = 1073;
constexpr int trainedUsersNote = 1074;
constexpr int programDescription = 1075;

// The Edit menu.
constexpr int editMenu = 1080;
constexpr int undo = 1081;
constexpr int redo = 1082;
constexpr int cut = 1083;
constexpr int copy = 1084;
constexpr int paste = 1085;
constexpr int selectAll = 1086;

}  // namespace varnholt::Text
