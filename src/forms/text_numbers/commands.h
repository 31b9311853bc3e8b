// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/1200_commands.txt.
namespace varnholt::Text {

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
constexpr int noticeEndsAtOnce = 1261;
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

}  // namespace varnholt::Text
