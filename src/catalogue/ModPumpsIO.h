// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "basis/reading_report.h"
#include "catalogue/pump.h"

namespace varnholt {

/// A series file's content.
struct PumpSeries {
    PumpSeriesInfo seriesInfo;
    PumpManufacturerInfo mfgInfo;
    std::vector<pump> models;

    friend bool operator==(const PumpSeries&, const PumpSeries&) = default;
};

// The readers take a file's bytes. On an error (RunTimeError 62 past the end, 6 for a whole number
// beyond 16 bits, a list longer than these count included, 9 for a 37th series of a manufacturer)
// they throw, and what was read up to there stands in the argument: every manufacturer and series
// with a name, every model with its curves.

// The report, which may be null, tells how far the reading came.

void readPumpIndex(std::string_view bytes, std::vector<PumpList>& manufacturers,
                   ReadingReport* report = nullptr);
void readPumpSeries(std::string_view bytes, PumpSeries& series, ReadingReport* report = nullptr);

// The same files, written.

std::string pumpIndexText(const std::vector<PumpList>& manufacturers);
/// The models' own copies of manufacturer and series are not written: one head serves all.
std::string pumpSeriesText(const PumpSeries& series);

/// Replaces the catalogue's index. Throws as replaceWholeFile.
void WritePumpList(const std::string& pumpsFolder, const std::vector<PumpList>& manufacturers);
/// Replaces the file of the series, named by its `FileName`. Throws as replaceWholeFile.
void WritePumpSeries(const std::string& pumpsFolder, const PumpSeries& series);

/// "FOLDER/PumpList.vht"
std::string pumpIndexPath(const std::string& pumpsFolder);
/// Whether the file of a name that an index holds lies in the folder of the catalogue.
bool staysInFolder(const std::string& FileName);
/// "FOLDER/FileName.hpd"
std::string pumpSeriesPath(const std::string& pumpsFolder, const std::string& FileName);

}  // namespace varnholt
