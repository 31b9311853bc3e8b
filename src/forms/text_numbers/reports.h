// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/9100_reports.txt.
namespace varnholt::Text {

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

}  // namespace varnholt::Text
