// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "basis/file_kind.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/editor/catalogue_index.h"
#include "forms/platform.h"

namespace varnholt {

/// A series file as it was read: what it held, and what goes with its bytes, by which a later
/// change of another program is known. Of one that is certainly of another kind nothing is taken.
struct SeriesFile {
    PumpSeries series;
    std::optional<std::uint64_t> fingerprint;  ///< nothing where there was no file
    int error = 0;         ///< number of the RunTimeError that ended the reading
    ReadingReport report;  ///< how far it came
    FileKind other = FileKind::unknown;
};

/// Never throws: a file that cannot be read has the error's number. It is waited for as long as the
/// platform waits.
SeriesFile readSeriesFile(Platform& platform, const std::string& path);

/// Whether the file holds other bytes now than those of the fingerprint; one that is gone, or
/// cannot be read, does not.
bool holdsOther(Platform& platform, const std::string& path,
                const std::optional<std::uint64_t>& known);

/// The index of the catalogue; what stands before an error counts.
struct IndexFile {
    CatalogueIndex index;
    std::optional<std::uint64_t> fingerprint;  ///< nothing where there was no file
    bool missing = false;
    int error = 0;
    ReadingReport report;
    FileKind other = FileKind::unknown;
};

IndexFile readIndexFile(Platform& platform, const std::string& path);

}  // namespace varnholt
