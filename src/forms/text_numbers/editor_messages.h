// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/4500_editor_messages.txt.
namespace varnholt::Text {

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
constexpr int noPumpSummary = 4535;
constexpr int noticeFitAction = 4531;
constexpr int noticeSavedStale = 4532;
constexpr int noticeManyPumps = 4533;

}  // namespace varnholt::Text
