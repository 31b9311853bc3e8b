// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/1500_import.txt.
namespace varnholt::Text {

// Importing loads.
constexpr int importLoadsTip = 1501;

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

}  // namespace varnholt::Text
