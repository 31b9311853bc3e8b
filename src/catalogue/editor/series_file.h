// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "basis/file_kind.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/editor/catalogue_index.h"

namespace varnholt {

/// A series file as it was read: what it held, and its bytes, by which a later change of another
/// program is known. Of one that is certainly of another kind nothing is taken.
struct SeriesFile {
    PumpSeries series;
    std::optional<std::string> bytes;  ///< nothing where there was no file
    int error = 0;                     ///< number of the RunTimeError that ended the reading
    ReadingReport report;              ///< how far it came
    FileKind other = FileKind::unknown;
};

/// Never throws: a file that cannot be read has the error's number.
SeriesFile readSeriesFile(const std::string& path);

/// Whether the file holds other bytes now; one that is gone, or cannot be read, does not.
bool holdsOther(const std::string& path, const std::optional<std::string>& bytes);

/// The index of the catalogue; what stands before an error counts.
struct IndexFile {
    CatalogueIndex index;
    std::optional<std::string> bytes;  ///< nothing where there was no file
    bool missing = false;
    int error = 0;
    ReadingReport report;
    FileKind other = FileKind::unknown;
};

IndexFile readIndexFile(const std::string& path);

}  // namespace varnholt
