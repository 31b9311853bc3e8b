// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt::desktop_texts {

// Numbers of the texts that only the windows' program shows.
constexpr int staleResults = 1350;
constexpr int refusedValue = 1351;
constexpr int recentFiles = 1352;
constexpr int noRecentFiles = 1353;
constexpr int tile = 1354;
constexpr int cascade = 1355;
constexpr int nextWindow = 1356;
constexpr int noWindows = 1357;
constexpr int emptyTitle = 1358;
constexpr int emptyBorehole = 1359;
constexpr int emptyZones = 1360;
constexpr int emptyOpen = 1361;
constexpr int emptyDrop = 1362;
constexpr int cannotOpen = 1363;
constexpr int tileHint = 1364;
constexpr int cascadeHint = 1365;
constexpr int nextWindowHint = 1366;
constexpr int programFault = 1367;
constexpr int toolbar = 1368;
constexpr int noCharts = 1369;
constexpr int emptyHorizontal = 1370;
constexpr int emptySurfaceWater = 1371;

}  // namespace varnholt::desktop_texts
