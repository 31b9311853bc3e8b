// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/2320_feedback.txt.
namespace varnholt::Text {

// Tables, pictures and names in and out, answers, warnings.
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
constexpr int linkMade = 2339;
constexpr int linkEnded = 2359;
constexpr int noDesignToCalculate = 2398;
constexpr int pumpsSelected = 2397;
constexpr int numberWanted = 2357;
constexpr int noticeValueNoNumber = 2358;
constexpr int warningsTitle = 2360;
constexpr int warningCapacity = 2361;
constexpr int warningNoPump = 2362;
constexpr int warningInlet = 2363;
constexpr int warningGround = 2364;
constexpr int warningTouch = 2365;
constexpr int warningDeep = 2366;
constexpr int warningRows = 2399;
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
constexpr int noticeValueBesideZero = 2442;
constexpr int closeWindowHint = 2443;

}  // namespace varnholt::Text
