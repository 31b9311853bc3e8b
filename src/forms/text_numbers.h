// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The numbers of the display texts, by name.
///
/// What a user reads is no part of the code: it stands in the language resource, in the files of
/// resources/language, one text a number, and is fetched by Texts::text(number). A language may
/// replace any of them, so a name tells what a text is for and not how it reads. Every text of the
/// English table has its name here, grouped as it stands there.
///
/// Of a caption that depends on the units there are two texts, whose names end in Metric and
/// English. A caption that keeps its unit in both systems has one. A name in Tip is a tool tip, a
/// name in Hint a line of the status bar.
namespace varnholt::Text {

// The whole program.
constexpr int makerAddress = 108;

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

// The browser window.
constexpr int browserTitle = 1087;
constexpr int browserAddress = 1088;
constexpr int browserWorking = 1089;
constexpr int browserBack = 1090;
constexpr int browserForward = 1091;
constexpr int browserRefresh = 1092;
constexpr int browserHome = 1093;
constexpr int browserSearch = 1094;
constexpr int browserStop = 1095;
constexpr int browserErrorTitle = 1096;
constexpr int browserErrorText = 1097;

// The language itself.
constexpr int tablesFolder = 1100;
constexpr int languageFont = 1101;
constexpr int tablesLanguageFolder = 1102;
constexpr int reportFont = 1103;

// Commands of the main window and their messages.
constexpr int fileInUse = 1201;
constexpr int aboutToClose = 1202;
constexpr int saveFileNow = 1203;
constexpr int zoneLoads = 1204;
constexpr int saveChangesTitle = 1205;
constexpr int saveLoadsToo = 1206;
constexpr int saveCancelled = 1207;
constexpr int tooManyDesigns = 1208;
constexpr int linkTitle = 1210;
constexpr int linkModuleSelection = 1211;
constexpr int linkModuleQuestion = 1212;
constexpr int linkZoneManager = 1213;
constexpr int linkAverageBlock = 1214;
constexpr int linkSelect = 1215;
constexpr int linkCancel = 1216;
constexpr int projectFileFilter = 1220;

// Lines in the browser window.
constexpr int browserAddressRefused = 1391;
constexpr int browserOpenedOutside = 1392;
constexpr int browserPageTooLarge = 1393;
constexpr int browserDownloadRefused = 1394;
constexpr int browserWindowRefused = 1395;
constexpr int browserCertificateRefused = 1396;

// The help.
constexpr int whatsThis = 1397;
constexpr int whatsThisHint = 1398;
constexpr int helpTitle = 1380;
constexpr int helpContentsPane = 1381;
constexpr int helpIndexPane = 1382;
constexpr int helpSearchPane = 1383;
constexpr int helpPrint = 1384;
constexpr int helpLookFor = 1385;
constexpr int helpFind = 1386;
constexpr int helpNothingFound = 1387;
constexpr int helpIndexing = 1388;
constexpr int helpResults = 1389;
constexpr int helpPageMissing = 1390;

// Notices at the top of a window.
constexpr int noticeOutOfDate = 1230;
constexpr int noticeCalculate = 1231;
constexpr int noticeOverflow = 1232;
constexpr int noticeRunTimeError = 1233;
constexpr int noticeZoneFileMissing = 1234;
constexpr int noticeFindZoneFile = 1235;
constexpr int noticeFileIncomplete = 1236;
constexpr int noticeEndsAtLine = 1242;
constexpr int noticeNumberTooLarge = 1243;
constexpr int noticeLeftoverLines = 1244;
constexpr int noticeReadingFailed = 1245;
constexpr int noticeUnreadPart = 1260;
constexpr int noticeZonesRead = 1246;
constexpr int noticePumpsRead = 1258;
constexpr int noticeManufacturersRead = 1259;
constexpr int noticeZonesLeftOut = 1247;
constexpr int noticeDoubtedResults = 1248;
constexpr int noticeSaveAsksForName = 1249;
constexpr int noticeOtherKind = 1250;
constexpr int kindProject = 1251;
constexpr int kindZones = 1252;
constexpr int kindDefaults = 1253;
constexpr int kindPumpList = 1254;
constexpr int kindPumpSeries = 1255;
constexpr int kindUtf16 = 1256;
constexpr int kindBinary = 1257;
constexpr int noticeValueOutsideRange = 1237;
constexpr int noticeValueTooSmall = 1238;
constexpr int noticeValueNotAbove = 1239;
constexpr int noticeValueTooLarge = 1240;
constexpr int noticeValueNotTaken = 1241;

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

// The windows themselves.
constexpr int staleResults = 1350;
constexpr int refusedValue = 1351;
constexpr int recentFiles = 1352;
constexpr int noRecentFiles = 1353;
constexpr int tileWindows = 1354;
constexpr int cascadeWindows = 1355;
constexpr int nextWindow = 1356;
constexpr int noWindows = 1357;
constexpr int startPageTitle = 1358;
constexpr int startPageBorehole = 1359;
constexpr int startPageHorizontal = 1370;
constexpr int startPageSurfaceWater = 1371;
constexpr int startPageZones = 1360;
constexpr int startPageOpen = 1361;
constexpr int startPageDrop = 1362;
constexpr int cannotOpenFile = 1363;
constexpr int tileWindowsHint = 1364;
constexpr int cascadeWindowsHint = 1365;
constexpr int nextWindowHint = 1366;
constexpr int loadsBesideDesign = 1372;
constexpr int loadsBesideDesignHint = 1373;
constexpr int noLinkedPair = 1374;
constexpr int programFault = 1367;
constexpr int toolbarName = 1368;
constexpr int chartPartMissing = 1369;

// Importing loads.
constexpr int importLoadsTip = 1501;

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
constexpr int copyWholeTable = 2320;
constexpr int copyWholeTableHint = 2321;
constexpr int copyPicture = 2322;
constexpr int copyPictureHint = 2323;
constexpr int savePicture = 2324;
constexpr int savePictureHint = 2325;
constexpr int pictureFileFilter = 2326;
constexpr int pictureNotSaved = 2327;
constexpr int tableCopied = 2328;
constexpr int pictureCopied = 2329;
constexpr int noTableHere = 2330;
constexpr int noPictureHere = 2331;
constexpr int cellsPasted = 2332;
constexpr int cellsRefused = 2333;
constexpr int cellsBeyond = 2334;
constexpr int zonesPasted = 2335;
constexpr int zoneCellsRefused = 2336;
constexpr int pasteZones = 2337;
constexpr int noZonesToPaste = 2338;
constexpr int findByName = 2340;
constexpr int findByNameHint = 2341;
constexpr int findByNamePrompt = 2342;
constexpr int kindCommands = 2343;
constexpr int kindFields = 2344;
constexpr int kindExamples = 2345;
constexpr int nothingOfThatName = 2346;
constexpr int savedAs = 2350;
constexpr int linkNeedsLoads = 2351;
constexpr int linkNeedsDesign = 2352;
constexpr int linkNeedsFreeDesign = 2353;
constexpr int linkIsNotClear = 2354;
constexpr int linkedAlready = 2355;
constexpr int noLinkToEnd = 2356;
constexpr int numberWanted = 2357;
constexpr int noticeValueNoNumber = 2358;
constexpr int warningsTitle = 2360;
constexpr int warningCapacity = 2361;
constexpr int warningNoPump = 2362;
constexpr int warningInlet = 2363;
constexpr int warningGround = 2364;
constexpr int warningTouch = 2365;
constexpr int warningDeep = 2366;
constexpr int warningInletOfSeveral = 2349;
constexpr int warningWater = 2347;
constexpr int warningPipesTouch = 2348;
constexpr int zoneWarned = 2367;
constexpr int modeHead = 2368;
constexpr int chartCapacityShort = 2313;
constexpr int chartCapacity = 2314;
constexpr int warningFeet = 2369;
constexpr int warningMetres = 2317;
constexpr int warningInches = 2318;
constexpr int warningMillimetres = 2319;
constexpr int warningLoadEnglish = 2316;
constexpr int warningLoadMetric = 2315;
constexpr int zoneColumnNumber = 2370;
constexpr int zoneColumnLabel = 2371;
constexpr int zoneColumnLoad = 2372;
constexpr int zoneColumnPump = 2373;
constexpr int zoneFilter = 2374;
constexpr int editSelectedZones = 2375;
constexpr int editZonesTitle = 2376;
constexpr int editZonesKeep = 2377;
constexpr int editZonesLabel = 2378;
constexpr int editZonesNumbered = 2379;
constexpr int takeOver = 2380;
constexpr int stopEditing = 2381;
constexpr int editZonesDone = 2382;
constexpr int noZonesYet = 2383;
constexpr int noBlockYet = 2384;
constexpr int startPageRecent = 2385;
constexpr int startPageExamples = 2386;
constexpr int startPageTemplates = 2387;
constexpr int templateOffice = 2388;
constexpr int templateSchool = 2389;
constexpr int templateHouse = 2390;
constexpr int exampleOffice = 2391;
constexpr int exampleSchool = 2392;
constexpr int exampleHouse = 2393;
constexpr int exampleTrench = 2394;
constexpr int examplePond = 2395;
constexpr int exampleSouth = 2396;

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
constexpr int whatIfNoLoads = 3120;
constexpr int whatIfNoConductivity = 3121;
constexpr int whatIfNoDiffusivity = 3122;
constexpr int whatIfNoBoreDiameter = 3123;
constexpr int whatIfNoRows = 3124;
constexpr int whatIfNoSeparation = 3125;
constexpr int whatIfNoPredictionTime = 3126;
constexpr int whatIfCoolingLimit = 3127;
constexpr int whatIfHeatingLimit = 3128;
constexpr int whatIfNotComputable = 3129;
constexpr int whatIfCoolingLimitAlone = 3130;
constexpr int whatIfHeatingLimitAlone = 3131;
constexpr int whatIfBoresTooClose = 3132;
constexpr int whatIfTooManyBores = 3133;
constexpr int whatIfNoDepthHolds = 3134;
constexpr int layoutNoPlace = 3140;
constexpr int layoutOutlineCrosses = 3141;
constexpr int layoutNoGoCrosses = 3142;
constexpr int layoutTooDeep = 3143;
constexpr int layoutTooManyShapes = 3144;
constexpr int layoutSpacingSwapped = 3145;
constexpr int layoutDepthSwapped = 3146;
constexpr int layoutStepDoubled = 3147;
constexpr int alternativeWithoutLength = 3150;
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
constexpr int singleUTubePicture = 2461;
constexpr int doubleUTubePicture = 2462;
constexpr int pipesDoNotFitPicture = 2463;
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
constexpr int boresWithoutNeighbour = 2531;
constexpr int boresAtEnd = 2532;
constexpr int boresAtCorner = 2533;
constexpr int boresAtEdge = 2534;
constexpr int boresInside = 2535;
constexpr int boresInLine = 2536;
constexpr int fieldPictureEmpty = 2541;
constexpr int fieldPicture = 2542;
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

// What only a screen reader tells.
constexpr int moreOfNumber = 3800;
constexpr int lessOfNumber = 3801;
constexpr int emptySearch = 3802;
constexpr int linkedWithDesign = 3803;
constexpr int notLinkedWithZoneManager = 3804;
constexpr int notLinkedWithAverageBlock = 3805;
constexpr int clearPumpTold = 3806;
constexpr int gainsByBlock = 3810;
constexpr int lossesByBlock = 3811;

// What a design comes to: the strip at the foot of its window, the page of its results.
constexpr int lengthsFresh = 2551;
constexpr int lengthsStale = 2552;
constexpr int lengthsNone = 2553;
constexpr int lengthStrip = 2554;
constexpr int coolingGovernsBores = 2555;
constexpr int heatingGovernsBores = 2556;
constexpr int coolingGovernsTrenches = 2557;
constexpr int heatingGovernsTrenches = 2558;
constexpr int coolingGovernsLoops = 2559;
constexpr int heatingGovernsLoops = 2560;
constexpr int heatingWouldNeed = 2561;
constexpr int coolingWouldNeed = 2562;
constexpr int governsAlone = 2563;
constexpr int noLengthFound = 2564;
constexpr int manyBores = 2565;
constexpr int oneBore = 2566;
constexpr int manyTrenches = 2567;
constexpr int oneTrench = 2568;
constexpr int manyLoops = 2569;
constexpr int oneLoop = 2570;
constexpr int aBore = 2571;
constexpr int aTrench = 2572;
constexpr int ofPipe = 2573;
constexpr int lengthParts = 2575;
constexpr int longTermPart = 2576;
constexpr int monthlyPart = 2577;
constexpr int shortTermPart = 2578;
constexpr int boreResistancePart = 2579;
constexpr int pipeResistancePart = 2580;
constexpr int penaltyPart = 2581;
constexpr int tableFlowPartEnglish = 2582;
constexpr int tableFlowPartMetric = 2583;
constexpr int designFlowPart = 2584;
constexpr int lengthPartsEmpty = 2585;
constexpr int lengthPartsOfMode = 2586;
constexpr int lengthPart = 2587;
constexpr int smallField = 2588;
constexpr int smallFieldWords = 2589;

// Commands of the loads windows.
constexpr int newZoneTip = 2801;
constexpr int copyZoneTip = 2802;
constexpr int removeZoneTip = 2803;
constexpr int renumberZonesTip = 2804;
constexpr int clearZonesTip = 2805;
constexpr int showSummaryTip = 2806;
constexpr int openZonesTip = 2807;
constexpr int saveZonesTip = 2808;
constexpr int autoSelectAllTip = 2809;
constexpr int updatePumpsTip = 2810;
constexpr int newZone = 2950;
constexpr int copyZone = 2951;
constexpr int removeZone = 2952;
constexpr int renumberZones = 2953;
constexpr int clearZones = 2954;
constexpr int showSummary = 2955;
constexpr int openZones = 2956;
constexpr int saveZones = 2957;
constexpr int printZones = 2958;
constexpr int importLoads = 2959;
constexpr int autoSelectAll = 2960;
constexpr int updatePumps = 2961;

// The loads windows and their pages.
constexpr int zoneManagerTitle = 2930;
constexpr int averageBlockTitle = 2932;
constexpr int zonesPage = 2811;
constexpr int loadsMetricSwitch = 2813;
constexpr int noLoads = 2814;
constexpr int zone = 2815;
constexpr int loadsAndHeatPumpOf = 2816;

// The loads of a zone.
constexpr int loadingInformation = 2832;
constexpr int referenceLabel = 2850;
constexpr int designDayLoads = 2818;
constexpr int timeOfDay = 2819;
constexpr int heatGains = 2820;
constexpr int heatLosses = 2821;
constexpr int loadUnitsEnglish = 2822;
constexpr int loadUnitsMetric = 2823;
constexpr int blockEightToNoon = 2824;
constexpr int blockNoonToFour = 2825;
constexpr int blockFourToEight = 2826;
constexpr int blockEightToEight = 2827;
constexpr int annualFullLoadHours = 2828;
constexpr int daysOccupiedPerWeek = 2830;
constexpr int calculateHours = 2831;
constexpr int fullLoadHours = 2934;

// The heat pump of a zone.
constexpr int heatPumpSpecifications = 2849;
constexpr int pumpName = 2836;
constexpr int representativePumpName = 2933;
constexpr int noPumpSelected = 2837;
constexpr int numberOfUnitsSign = 2838;
constexpr int cooling = 2839;
constexpr int heating = 2840;
constexpr int zonePumpCapacityMetric = 2841;
constexpr int zonePumpCapacityEnglish = 2842;
constexpr int zonePumpPower = 2843;
constexpr int zonePumpCopMetric = 2844;
constexpr int zonePumpCopEnglish = 2845;
constexpr int zonePumpFlowRateMetric = 2846;
constexpr int zonePumpFlowRateEnglish = 2847;
constexpr int partialLoadFactor = 2848;
constexpr int clearPump = 2833;
constexpr int autoSelectPump = 2834;
constexpr int selectPump = 2835;
constexpr int pumpDetails = 2851;
constexpr int customPump = 2864;

// Selecting a pump by hand.
constexpr int numberOfUnits = 2852;
constexpr int takeSelectedPump = 2853;
constexpr int manufacturer = 2858;
constexpr int series = 2859;
constexpr int cancelSelection = 2861;
constexpr int model = 2868;

// The load side of a pump.
constexpr int heatPumpDetails = 2867;
constexpr int returnToZone = 2854;
constexpr int loadSideAir = 2855;
constexpr int loadSideWater = 2856;
constexpr int nominalFlow = 2857;
constexpr int pumpType = 2860;
constexpr int waterToAir = 2865;
constexpr int waterToWater = 2866;
constexpr int loadSideTemperature = 2889;
constexpr int loadSideFlow = 2890;

// The heat pump tab.
constexpr int designConditions = 2891;
constexpr int sourceInletTemperatureMetric = 2869;
constexpr int sourceInletTemperatureEnglish = 2870;
constexpr int sourceFlowRate = 2871;
constexpr int sourceFlowRateUnitsMetric = 2872;
constexpr int sourceFlowRateUnitsEnglish = 2876;
constexpr int inletAirTemperatures = 2885;
constexpr int enteringWaterTemperatures = 2886;
constexpr int heatingDryBulb = 2887;
constexpr int coolingWetBulb = 2888;
constexpr int heatPumpCatalogue = 2893;
constexpr int pumpsOfSeries = 2892;

// Units.
constexpr int airFlowUnitsMetric = 2873;
constexpr int airFlowUnitsEnglish = 2874;
constexpr int waterFlowUnitsMetric = 2877;
constexpr int waterFlowUnitsEnglish = 2878;
constexpr int temperatureUnitsMetric = 2879;
constexpr int temperatureUnitsEnglish = 2880;

// The summary of the building.
constexpr int buildingSummary = 2894;
constexpr int summaryEightToNoon = 2881;
constexpr int summaryNoonToFour = 2882;
constexpr int summaryFourToEight = 2883;
constexpr int summaryEightToEight = 2884;
constexpr int summaryPump = 2895;
constexpr int summaryDayLoadsEnglish = 2896;
constexpr int summaryDayLoadsMetric = 2897;
constexpr int summaryCapacity = 2898;
constexpr int summaryCapacityUnitsEnglish = 2899;
constexpr int summaryPower = 2901;
constexpr int summaryCopEnglish = 2915;
constexpr int summaryEer = 2916;
constexpr int summaryPartialLoadFactor = 2917;
constexpr int summaryCopMetric = 2918;
constexpr int summaryHeating = 2919;
constexpr int summaryCooling = 2920;
constexpr int summaryTotalCapacityEnglish = 2921;
constexpr int summaryTotalCapacityMetric = 2922;
constexpr int summaryPeakLoadEnglish = 2923;
constexpr int summaryPeakLoadMetric = 2924;
constexpr int summaryPeakDemand = 2925;
constexpr int summaryHeatPumpCop = 2926;
constexpr int summaryPeakLoadPeriod = 2928;

// What the charts of the loads windows show.
constexpr int zoneDayChart = 2945;
constexpr int buildingDayChart = 2946;
constexpr int pumpChart = 2947;

// Messages about pumps.
constexpr int pumpNoLongerListed = 2875;
constexpr int noPumpForZone = 2940;
constexpr int noPumpForZones = 2941;
constexpr int selectingPumps = 2943;
constexpr int updatingPumps = 2944;

// Zone files.
constexpr int zoneFileFilter = 2962;
constexpr int openZoneFileTitle = 2963;
constexpr int saveZoneFileTitle = 2964;
constexpr int zonesNotSaved = 2942;

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

// Messages of the heat pump editor: fitting.
constexpr int correctionPlaceMissing = 4510;
constexpr int correctionDataTitle = 4511;
constexpr int correctionRowNotPositive = 4512;

// Its messages about manufacturer and series.
constexpr int informationMissing = 4513;
constexpr int manufacturerTaken = 4514;
constexpr int seriesTaken = 4515;
constexpr int fileNameTaken = 4516;
constexpr int fileNameUnusable = 4527;
constexpr int tooManySeries = 4528;

// Its questions.
constexpr int deleteSeriesQuestion = 4517;
constexpr int deleteSeriesTitle = 4518;
constexpr int clearPumpsQuestion = 4519;
constexpr int clearPumpsTitle = 4520;
constexpr int removePumpQuestion = 4521;
constexpr int removePumpTitle = 4522;
constexpr int savePumpsQuestion = 4523;
constexpr int dropInformationQuestion = 4534;
constexpr int seriesFileChanged = 4524;
constexpr int damagedFileReplaced = 4525;
constexpr int indexFileChanged = 4540;
constexpr int fileWasNotThere = 4541;
constexpr int replaceFileTitle = 4529;

// Files that it could not write.
constexpr int pumpsNotWritten = 4526;

// Its notices.
constexpr int noticeStaleCurves = 4530;
constexpr int noticeFitAction = 4531;
constexpr int noticeSavedStale = 4532;
constexpr int noticeManyPumps = 4533;

// Starting and files.
constexpr int loadsWindowInUse = 8539;
constexpr int zoneFileNotFound = 8540;
constexpr int systemInformationUnavailable = 8541;
constexpr int zoneFileDamaged = 8543;
constexpr int zoneFileNotOpened = 8900;
constexpr int changedOnDisk = 8544;
constexpr int changedOnDiskTitle = 8545;
constexpr int openElsewhere = 8546;
constexpr int openElsewhereTitle = 8547;
constexpr int saveWasCutOff = 8548;
constexpr int saveWasCutOffTitle = 8549;
constexpr int unsavedWork = 8550;
constexpr int unsavedFileNewer = 8551;
constexpr int unsavedFileOlder = 8552;
constexpr int unsavedWithoutFile = 8553;
constexpr int unsavedQuestion = 8554;
constexpr int unsavedTitle = 8555;
constexpr int noticeOpenElsewhere = 8556;
constexpr int noticeSetAside = 8557;
constexpr int noticeFileNotFound = 8560;
constexpr int readingFile = 8558;
constexpr int noticeStillKept = 8559;
constexpr int noticeOpenLine = 8901;
constexpr int noticeLeftUnread = 8902;

// The importer.
constexpr int importTitle = 1502;
constexpr int readSimulationTip = 1503;
constexpr int pasteMonthsTip = 1504;
constexpr int importModify = 1505;
constexpr int importTotalMax = 1506;
constexpr int importTableTip = 1507;
constexpr int noSimulationFile = 1508;
constexpr int openSimulationTitle = 1509;
constexpr int simulationFileFilter = 1510;
constexpr int importMonth = 1511;
constexpr int importTotal = 1512;
constexpr int importPeak = 1513;
constexpr int importFactor = 1514;
constexpr int importFile = 1515;
constexpr int importGenerator = 1530;
constexpr int trane700 = 1531;
constexpr int systemAnalyzer = 1532;
constexpr int importTransfer = 1519;
constexpr int importTarget = 1520;
constexpr int importNoTarget = 1521;
constexpr int importNoZone = 1522;
constexpr int designDayEven = 1523;
constexpr int designDayFromHours = 1524;
constexpr int coolingNotLookedAt = 1525;
constexpr int heatingNotLookedAt = 1526;
constexpr int importMonthsPicture = 1527;
constexpr int importDayPicture = 1528;

// The question which mode a transfer serves.
constexpr int transferQuestion = 1516;
constexpr int transferSelection = 1517;
constexpr int transferTitle = 1518;

// The picture of the year.
constexpr int monthsPictureEmpty = 1535;
constexpr int monthsPicture = 1536;
constexpr int monthsPictureEnergy = 1537;
constexpr int monthsPicturePeak = 1538;

// Hours and months from a table.
constexpr int importTableTitle = 1540;
constexpr int openTableTitle = 1541;
constexpr int tableFileFilter = 1542;
constexpr int tableTooLarge = 1543;
constexpr int tableFromClipboard = 1544;
constexpr int tableLayout = 1545;
constexpr int tableHourly = 1546;
constexpr int tableMonthly = 1547;
constexpr int tableSeparator = 1548;
constexpr int tableComma = 1549;
constexpr int tableSemicolon = 1550;
constexpr int tableTab = 1551;
constexpr int tableDecimal = 1552;
constexpr int tableDecimalPoint = 1553;
constexpr int tableDecimalComma = 1554;
constexpr int tableUnit = 1555;
constexpr int tableKilowatts = 1556;
constexpr int tableWatts = 1557;
constexpr int tableKilowattHours = 1558;
constexpr int tableJoules = 1559;
constexpr int tableBtuPerHour = 1560;
constexpr int tableMBtuPerHour = 1561;
constexpr int tableTons = 1562;
constexpr int tableDateColumn = 1563;
constexpr int tableCoolingColumn = 1564;
constexpr int tableHeatingColumn = 1565;
constexpr int tableSigned = 1566;
constexpr int tableNoColumn = 1567;
constexpr int tableColumn = 1568;
constexpr int tableHoursHeadEnglish = 1569;
constexpr int tableHoursHeadMetric = 1570;
constexpr int tableMonthsHeadEnglish = 1571;
constexpr int tableMonthsHeadMetric = 1572;
constexpr int tableImport = 1573;
constexpr int tableOpen = 1574;
constexpr int tablePaste = 1575;
constexpr int tableChooseColumn = 1576;
constexpr int tableHoursFound = 1577;
constexpr int tableMonthsFound = 1578;
constexpr int tableWrongHours = 1579;
constexpr int tableWrongMonths = 1580;
constexpr int tableLeapDay = 1581;
constexpr int tableLinesWithout = 1582;
constexpr int tableLinesBlank = 1583;
constexpr int tableLinesNegative = 1584;
constexpr int tableWithoutPeaks = 1585;
constexpr int tableLineHead = 1586;
constexpr int tableDateHead = 1587;

// Units of the importer and of the hours calculator.
constexpr int importPeakUnitsMetric = 5104;
constexpr int importTotalUnitsMetric = 5105;
constexpr int importTotalUnitsEnglish = 5109;
constexpr int hoursUnits = 5127;

// The hours calculator.
constexpr int annualHoursFrame = 5103;
constexpr int annualHoursTitle = 5110;
constexpr int peakHourlyLoad = 5111;
constexpr int monthlyTotalLoads = 5112;
constexpr int january = 5113;
constexpr int february = 5114;
constexpr int march = 5115;
constexpr int april = 5116;
constexpr int may = 5117;
constexpr int june = 5118;
constexpr int july = 5119;
constexpr int august = 5120;
constexpr int september = 5121;
constexpr int october = 5122;
constexpr int november = 5123;
constexpr int december = 5124;
constexpr int fullLoadHoursResult = 5125;
constexpr int closeWindow = 5126;

// The diffusivity calculator.
constexpr int showSoilTables = 2311;
constexpr int diffusivityCalculatorTitle = 5134;
constexpr int moisture = 5135;
constexpr int dryDensity = 5136;
constexpr int drySpecificHeat = 5137;
constexpr int soilThermalConductivity = 5138;
constexpr int soilThermalDiffusivity = 5139;

// The pump power calculator; a report's flow has the same caption.
constexpr int flowRateCaption = 3213;
constexpr int pumpPowerFrame = 5156;
constexpr int requiredPumpPower = 5157;
constexpr int pumpHead = 5158;
constexpr int pumpEfficiency = 5159;
constexpr int headMetric = 5160;

// Reports.
constexpr int reportWord = 9101;

// The project block at the head of a report.
constexpr int reportProjectName = 2902;
constexpr int reportDesignerName = 2903;
constexpr int reportDate = 2904;
constexpr int reportProjectStartDate = 2905;
constexpr int reportClientName = 2906;
constexpr int reportAddressLine1 = 2907;
constexpr int reportAddressLine2 = 2908;
constexpr int reportCity = 2909;
constexpr int reportState = 2910;
constexpr int reportZip = 2911;
constexpr int reportPhone = 2912;
constexpr int reportFax = 2913;
constexpr int reportEmail = 2914;

// Headings and captions of project reports.
constexpr int reportPumpCopEnglish = 9102;
constexpr int reportSystemCopEnglish = 9103;
constexpr int calculationResults = 9104;
constexpr int inputParameters = 9105;
constexpr int loadsFile = 9107;
constexpr int reportComments = 9108;
constexpr int continued = 9111;
constexpr int reportManufacturer = 9112;
constexpr int reportSeries = 9113;
constexpr int loadInletTemperatures = 9114;
constexpr int circulationPumpPower = 9115;
constexpr int extremeDay = 9116;
constexpr int correctedTemperature = 9117;
constexpr int circuitWaterTemperature = 9119;
constexpr int headerWaterTemperature = 9120;
constexpr int inSummer = 9121;
constexpr int inWinter = 9122;
constexpr int primaryColumn = 9123;
constexpr int branchColumn = 9124;
constexpr int inWaterColumn = 9125;
constexpr int inSoilColumn = 9126;
constexpr int coolingColumn = 9127;
constexpr int heatingColumn = 9128;
constexpr int reportWaterToAir = 2862;
constexpr int reportWaterToWater = 2863;
constexpr int reportHeaderPipeSize = 2438;
constexpr int longTermSoilTemperatures = 9317;
constexpr int pipeConfiguration = 5037;
constexpr int pipeLayout = 5038;
constexpr int straightPipes = 5039;

// Notices, pictures and pages of reports.
constexpr int reportOutOfDate = 9130;
constexpr int reportDrawings = 9131;
constexpr int pageOfPages = 9132;
constexpr int buildingDayDrawing = 9133;
constexpr int boreDrawing = 9134;
constexpr int fieldDrawing = 9135;
constexpr int trenchSectionDrawing = 9136;
constexpr int trenchPlanDrawing = 9137;
constexpr int circuitDrawing = 9138;

// Columns of the zone reports.
constexpr int heatPumpsHeading = 2008;
constexpr int loadsHeading = 2009;
constexpr int zoneNameColumn = 2817;
constexpr int daysPerWeekColumn = 2829;
constexpr int pumpInformationColumn = 4106;
constexpr int reportPumpType = 4224;
constexpr int loadTemperatureUnitsMetric = 4231;
constexpr int loadTemperatureUnitsEnglish = 4232;
constexpr int reportLoadUnitsMetric = 4234;
constexpr int reportLoadUnitsEnglish = 4235;
constexpr int unitsColumn = 9201;
constexpr int reportLoadTempMetric = 9202;
constexpr int reportLoadTempEnglish = 9203;
constexpr int partialLoadColumn = 9204;
constexpr int flowColumnUnitsMetric = 9205;
constexpr int flowColumnUnitsEnglish = 9206;
constexpr int hoursColumn = 9207;
constexpr int columnEightToNoon = 9208;
constexpr int columnNoonToFour = 9209;
constexpr int columnFourToEight = 9210;
constexpr int columnEightToEight = 9211;
constexpr int flowRateColumn = 9212;
constexpr int loadTempColumn = 9213;
constexpr int modeColumn = 9214;
constexpr int equipmentReport = 9215;
constexpr int pumpDataColumn = 9216;
constexpr int nameReport = 9217;
constexpr int loadColumn = 9218;

// The choice of a zone report.
constexpr int zoneReportOptions = 9301;
constexpr int zoneReportSelection = 9302;
constexpr int shortForm = 9303;
constexpr int longForm = 9304;
constexpr int zoneReportOk = 9310;
constexpr int zoneReportCancel = 9311;
constexpr int zoneReportShortTitle = 9331;
constexpr int zoneReportLongTitle = 9332;
constexpr int zoneReportEquipmentTitle = 9333;
constexpr int zoneReportLoadsTitle = 9334;
constexpr int zoneReportNameTitle = 9335;

// The choice of a project report.
constexpr int projectReportOptions = 9321;
constexpr int projectReportSelection = 9322;
constexpr int detailedForm = 9323;
constexpr int conciseForm = 9324;
constexpr int projectReportOk = 9325;
constexpr int projectReportCancel = 9326;

// The picture beside the title of a report.
constexpr int makersLogo = 32003;

// The preview of a report.
constexpr int previewPrint = 9140;
constexpr int previewSavePdf = 9141;
constexpr int previewSaveHtml = 9142;
constexpr int previewSaveCsv = 9143;
constexpr int previewCopy = 9144;
constexpr int previewPreviousPage = 9145;
constexpr int previewNextPage = 9146;
constexpr int previewOfPages = 9147;
constexpr int previewFitWidth = 9148;
constexpr int previewFitPage = 9149;
constexpr int previewLarger = 9150;
constexpr int previewSmaller = 9151;
constexpr int previewContinuous = 9152;
constexpr int previewLandscape = 9153;
constexpr int previewSearch = 9154;
constexpr int paperA4 = 9155;
constexpr int paperLetter = 9156;
constexpr int previewPage = 9157;
constexpr int previewZoom = 9158;
constexpr int previewPaper = 9159;
constexpr int layingOutReport = 9160;
constexpr int writingReport = 9161;
constexpr int breakOff = 9162;
constexpr int saveReportTitle = 9163;
constexpr int pdfFileFilter = 9164;
constexpr int htmlFileFilter = 9165;
constexpr int csvFileFilter = 9166;
constexpr int reportNotSaved = 9167;
constexpr int noPrinter = 9168;
constexpr int printPartMissing = 9169;

// The second opinion.
constexpr int secondOpinionTotal = 2170;
constexpr int secondOpinionEachBore = 2171;
constexpr int secondOpinionCommand = 2172;
constexpr int secondOpinionStands = 2173;
constexpr int secondOpinionDiffers = 2174;
constexpr int secondOpinionTip = 2175;
constexpr int opinionTitle = 2630;
constexpr int opinionSizes = 2631;
constexpr int opinionClassicalEnglish = 2632;
constexpr int opinionClassicalMetric = 2633;
constexpr int opinionTotalEnglish = 2634;
constexpr int opinionTotalMetric = 2635;
constexpr int opinionClassicalEachEnglish = 2636;
constexpr int opinionClassicalEachMetric = 2637;
constexpr int opinionEachEnglish = 2638;
constexpr int opinionEachMetric = 2639;
constexpr int opinionDifference = 2640;
constexpr int opinionMonth = 2641;
constexpr int opinionMonthOfYear = 2642;
constexpr int opinionPartsEnglish = 2643;
constexpr int opinionPartsMetric = 2644;
constexpr int opinionPartField = 2645;
constexpr int opinionPartPulse = 2646;
constexpr int opinionPartMonths = 2647;
constexpr int opinionPercent = 2648;
constexpr int opinionInputs = 2649;
constexpr int opinionBuriedDepth = 2650;
constexpr int opinionPulse = 2651;
constexpr int opinionYears = 2652;
constexpr int opinionCylinder = 2653;
constexpr int opinionYear = 2654;
constexpr int opinionShape = 2655;
constexpr int opinionStandard = 2656;
constexpr int opinionImporter = 2657;
constexpr int opinionTyped = 2658;
constexpr int opinionSouth = 2659;
constexpr int opinionCoolingEnergy = 2660;
constexpr int opinionHeatingEnergy = 2661;
constexpr int opinionCoolingPeak = 2662;
constexpr int opinionHeatingPeak = 2663;
constexpr int opinionPaste = 2664;
constexpr int opinionCopy = 2665;
constexpr int opinionDrawnFor = 2666;
constexpr int opinionDepthOfDesign = 2667;
constexpr int opinionDepthOfOpinion = 2668;
constexpr int opinionThisDepth = 2669;
constexpr int opinionMonthsOf = 2670;
constexpr int opinionAllYears = 2671;
constexpr int opinionOneYear = 2672;
constexpr int opinionTable = 2673;
constexpr int opinionYearHead = 2674;
constexpr int opinionPenaltyEnglish = 2675;
constexpr int opinionPenaltyMetric = 2676;
constexpr int opinionHighEnglish = 2677;
constexpr int opinionHighMetric = 2678;
constexpr int opinionLowEnglish = 2679;
constexpr int opinionLowMetric = 2680;
constexpr int opinionClassicalPenaltyEnglish = 2681;
constexpr int opinionClassicalPenaltyMetric = 2682;
constexpr int opinionHistory = 2683;
constexpr int opinionMonths = 2684;
constexpr int opinionGFunction = 2685;
constexpr int opinionHistoryTells = 2686;
constexpr int opinionYearTells = 2687;
constexpr int opinionMonthsTell = 2688;
constexpr int opinionGTells = 2689;
constexpr int opinionEnergyUnitEnglish = 2690;
constexpr int opinionEnergyUnitMetric = 2691;
constexpr int opinionPeakUnitEnglish = 2692;
constexpr int opinionPeakUnitMetric = 2693;
constexpr int opinionEnergies = 2694;
constexpr int opinionPeaks = 2695;
constexpr int opinionField = 2696;
constexpr int opinionOneBore = 2697;
constexpr int opinionLimit = 2698;
constexpr int opinionSomeHours = 2751;
constexpr int opinionSomeDays = 2752;
constexpr int opinionSomeYears = 2753;
constexpr int opinionAssumed = 2720;
constexpr int opinionPeaksIn = 2721;
constexpr int opinionHeld = 2722;
constexpr int opinionEven = 2723;
constexpr int opinionAsTyped = 2724;
constexpr int opinionAsImported = 2725;
constexpr int opinionTower = 2726;
constexpr int opinionPeakLength = 2727;
constexpr int opinionNoLoads = 2730;
constexpr int opinionNoConductivity = 2731;
constexpr int opinionNoDiffusivity = 2732;
constexpr int opinionNoDiameter = 2733;
constexpr int opinionNoRows = 2734;
constexpr int opinionNoTime = 2735;
constexpr int opinionTooClose = 2736;
constexpr int opinionTooMany = 2737;
constexpr int opinionNoLoadOfMode = 2738;
constexpr int opinionNotAbove = 2739;
constexpr int opinionNotBelow = 2740;
constexpr int opinionOfMode = 2741;
constexpr int opinionNoDepth = 2742;
constexpr int opinionNotComputable = 2743;
constexpr int opinionNoDesignLength = 2744;
constexpr int opinionNoOpinionLength = 2745;
constexpr int opinionNoImporter = 2746;
constexpr int opinionTooFewLines = 2747;
constexpr int opinionNoNumber = 2748;
constexpr int opinionNotComputableAll = 2750;

// The window of What If.
constexpr int whatIfCommand = 2176;
constexpr int whatIfTip = 2177;
constexpr int whatIfTitle = 3600;
constexpr int whatIfDecidesPage = 3601;
constexpr int whatIfSurePage = 3602;
constexpr int whatIfLayoutPage = 3603;
constexpr int whatIfCostPage = 3604;
constexpr int whatIfAlternativesPage = 3605;
constexpr int whatIfTowerPage = 3606;
constexpr int whatIfNeed = 3607;
constexpr int whatIfNeedEnglish = 3608;
constexpr int whatIfNeedMetric = 3609;
constexpr int whatIfGoverning = 3610;
constexpr int whatIfEachBore = 3611;
constexpr int whatIfMeasure = 3612;
constexpr int whatIfClassical = 3613;
constexpr int whatIfByGFunctions = 3614;
constexpr int whatIfWorking = 3615;
constexpr int whatIfNoNeed = 3616;
constexpr int whatIfHiddenByRun = 3617;
constexpr int whatIfFailedCases = 3618;
constexpr int whatIfNotCounted = 3619;
constexpr int whatIfNotCountedBut = 3620;
constexpr int whatIfOpinionMore = 3621;
constexpr int whatIfOpinionLess = 3622;
constexpr int whatIfClassicalMore = 3623;
constexpr int whatIfClassicalLess = 3624;
constexpr int whatIfSpreadsBuiltIn = 3625;
constexpr int whatIfPricesBuiltIn = 3626;
constexpr int whatIfPricesIn = 3627;
constexpr int whatIfPricesOf = 3628;
constexpr int whatIfGround = 3629;
constexpr int whatIfTest = 3630;
constexpr int whatIfLog = 3631;
constexpr int whatIfTable = 3632;
constexpr int whatIfSpreads = 3633;
constexpr int whatIfLow = 3634;
constexpr int whatIfHigh = 3635;
constexpr int whatIfShare = 3636;
constexpr int whatIfConductivity = 3637;
constexpr int whatIfHeatCapacity = 3638;
constexpr int whatIfGroundTemperature = 3639;
constexpr int whatIfGroundTemperatureEnglish = 3640;
constexpr int whatIfGroundTemperatureMetric = 3641;
constexpr int whatIfResistance = 3642;
constexpr int whatIfCoolingLoads = 3643;
constexpr int whatIfHeatingLoads = 3644;
constexpr int whatIfCoolingHours = 3645;
constexpr int whatIfHeatingHours = 3646;
constexpr int whatIfPumpPower = 3647;
constexpr int whatIfMethodItself = 3648;
constexpr int whatIfTies = 3649;
constexpr int whatIfCapacityTie = 3650;
constexpr int whatIfResistanceTie = 3651;
constexpr int whatIfHeatingTie = 3652;
constexpr int whatIfTied = 3653;
constexpr int whatIfTornado = 3654;
constexpr int whatIfLeverCooling = 3655;
constexpr int whatIfLeverHeating = 3656;
constexpr int whatIfLeverSeparation = 3657;
constexpr int whatIfLeverYears = 3658;
constexpr int whatIfLeverFlow = 3659;
constexpr int whatIfInDoubt = 3660;
constexpr int whatIfChosen = 3661;
constexpr int whatIfBase = 3662;
constexpr int whatIfTornadoTells = 3663;
constexpr int whatIfBarTells = 3664;
constexpr int whatIfBarWithShareTells = 3665;
constexpr int whatIfHoldsIn = 3666;
constexpr int whatIfFewerThanOne = 3667;
constexpr int whatIfMoreThan99 = 3668;
constexpr int whatIfAsked = 3669;
constexpr int whatIfDrawn = 3670;
constexpr int whatIfConfidence = 3671;
constexpr int whatIfDepths = 3672;
constexpr int whatIfOneInTen = 3673;
constexpr int whatIfFiveInTen = 3674;
constexpr int whatIfNineInTen = 3675;
constexpr int whatIfDepthsRow = 3676;
constexpr int whatIfCoolingWater = 3677;
constexpr int whatIfHeatingWater = 3678;
constexpr int whatIfSampling = 3679;
constexpr int whatIfTestSaves = 3680;
constexpr int whatIfSafety = 3681;
constexpr int whatIfSure = 3682;
constexpr int whatIfDrawnDepth = 3683;
constexpr int whatIfAskedCases = 3684;
constexpr int whatIfSureTells = 3685;
constexpr int whatIfLand = 3686;
constexpr int whatIfAcross = 3687;
constexpr int whatIfDown = 3688;
constexpr int whatIfBoundary = 3689;
constexpr int whatIfClear = 3690;
constexpr int whatIfPasteLand = 3691;
constexpr int whatIfRectangle = 3692;
constexpr int whatIfCorners = 3693;
constexpr int whatIfCornerX = 3694;
constexpr int whatIfCornerY = 3695;
constexpr int whatIfOutline = 3696;
constexpr int whatIfNoGoArea = 3697;
constexpr int whatIfCornerLine = 3698;
constexpr int whatIfPasteNumbers = 3699;
constexpr int whatIfPasteCorners = 3700;
constexpr int whatIfPasteCrosses = 3701;
constexpr int whatIfSearchFor = 3702;
constexpr int whatIfSpacingFrom = 3703;
constexpr int whatIfSpacingTo = 3704;
constexpr int whatIfSpacingStep = 3705;
constexpr int whatIfLeastDepth = 3706;
constexpr int whatIfMostDepth = 3707;
constexpr int whatIfMostBores = 3708;
constexpr int whatIfMargin = 3709;
constexpr int whatIfWhole = 3710;
constexpr int whatIfCut = 3711;
constexpr int whatIfSearch = 3712;
constexpr int whatIfStop = 3713;
constexpr int whatIfSearching = 3714;
constexpr int whatIfInputsChanged = 3715;
constexpr int whatIfNoSearch = 3716;
constexpr int whatIfFields = 3717;
constexpr int whatIfLayoutLine = 3718;
constexpr int whatIfLayoutOther = 3719;
constexpr int whatIfTakeOver = 3720;
constexpr int whatIfTakeOverTip = 3721;
constexpr int whatIfFullRowsAlone = 3722;
constexpr int whatIfCopyCoordinates = 3723;
constexpr int whatIfLandPicture = 3724;
constexpr int whatIfLandTells = 3725;
constexpr int whatIfFieldsPicture = 3726;
constexpr int whatIfFieldsTell = 3727;
constexpr int whatIfCheap = 3728;
constexpr int whatIfDear = 3729;
constexpr int whatIfBuild = 3730;
constexpr int whatIfMobilization = 3731;
constexpr int whatIfEachBorePrice = 3732;
constexpr int whatIfDrillingEnglish = 3733;
constexpr int whatIfDrillingMetric = 3734;
constexpr int whatIfBand = 3735;
constexpr int whatIfBelow = 3736;
constexpr int whatIfTrenchEnglish = 3737;
constexpr int whatIfTrenchMetric = 3738;
constexpr int whatIfRun = 3739;
constexpr int whatIfTowerPrices = 3740;
constexpr int whatIfTowerTon = 3741;
constexpr int whatIfCare = 3742;
constexpr int whatIfTowerPower = 3743;
constexpr int whatIfLoopPrices = 3744;
constexpr int whatIfGroundEnglish = 3745;
constexpr int whatIfGroundMetric = 3746;
constexpr int whatIfPipeEnglish = 3747;
constexpr int whatIfPipeMetric = 3748;
constexpr int whatIfEnergyPrices = 3749;
constexpr int whatIfKilowattHour = 3750;
constexpr int whatIfEscalation = 3751;
constexpr int whatIfDiscount = 3752;
constexpr int whatIfYears = 3753;
constexpr int whatIfCurrency = 3754;
constexpr int whatIfPricesDate = 3755;
constexpr int whatIfCostOfDesign = 3756;
constexpr int whatIfPartDrilling = 3757;
constexpr int whatIfPartBores = 3758;
constexpr int whatIfPartFixed = 3759;
constexpr int whatIfPartTrench = 3760;
constexpr int whatIfPartTower = 3761;
constexpr int whatIfFirstCost = 3762;
constexpr int whatIfEnergy = 3763;
constexpr int whatIfYearlyCost = 3764;
constexpr int whatIfLifeCost = 3765;
constexpr int whatIfLeftOut = 3766;
constexpr int whatIfCostPicture = 3767;
constexpr int whatIfCostTells = 3768;
constexpr int whatIfKept = 3769;
constexpr int whatIfKeptName = 3770;
constexpr int whatIfKeep = 3771;
constexpr int whatIfPutBack = 3772;
constexpr int whatIfRemove = 3773;
constexpr int whatIfAlternativeName = 3774;
constexpr int whatIfCompared = 3775;
constexpr int whatIfRowLength = 3776;
constexpr int whatIfRowBores = 3777;
constexpr int whatIfRowDepth = 3778;
constexpr int whatIfRowFirst = 3779;
constexpr int whatIfRowLife = 3780;
constexpr int whatIfRowEnergy = 3781;
constexpr int whatIfJudge = 3782;
constexpr int whatIfJudgeFirst = 3783;
constexpr int whatIfJudgeLife = 3784;
constexpr int whatIfSetTower = 3785;
constexpr int whatIfTowerPicture = 3786;
constexpr int whatIfBoresWord = 3787;
constexpr int whatIfTowerWord = 3788;
constexpr int whatIfTowerLifeTells = 3789;
constexpr int whatIfTowerFirstTells = 3790;
constexpr int whatIfTowerHeating = 3791;
constexpr int whatIfHeatingGoverns = 3792;

}  // namespace varnholt::Text
