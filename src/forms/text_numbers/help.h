// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/1380_help.txt.
namespace varnholt::Text {

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

}  // namespace varnholt::Text
