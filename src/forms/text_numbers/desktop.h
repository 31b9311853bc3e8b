// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/1350_desktop.txt.
namespace varnholt::Text {

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
constexpr int closeNotice = 1375;
constexpr int programFault = 1367;
constexpr int toolbarName = 1368;
constexpr int chartPartMissing = 1369;

}  // namespace varnholt::Text
