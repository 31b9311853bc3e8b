// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/8500_files.txt.
namespace varnholt::Text {

// Starting and files.
constexpr int loadsWindowInUse = 8539;
constexpr int zoneFileNotFound = 8540;
constexpr int systemInformationUnavailable = 8541;
constexpr int zoneFileDamaged = 8543;
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
constexpr int zoneFileNotOpened = 8561;
constexpr int noticeOpenLine = 8562;
constexpr int noticeShortenedLine = 8564;
constexpr int noticeLeftUnread = 8563;
constexpr int textShownInPart = 8565;
constexpr int readingFile = 8558;
constexpr int noticeStillKept = 8559;

}  // namespace varnholt::Text
