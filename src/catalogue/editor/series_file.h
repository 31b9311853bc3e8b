// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "basis/file_kind.h"
#include "basis/system/file_source.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/editor/catalogue_index.h"
#include "forms/platform.h"

namespace varnholt {

/// A series file as it was read: what it held, and what is known of it, by which a later change of
/// another program shows. Of one that is certainly of another kind nothing is taken.
struct SeriesFile {
    PumpSeries series;
    std::optional<KnownFile> known;  ///< nothing where there was no file
    int error = 0;                   ///< number of the RunTimeError that ended the reading
    ReadingReport report;            ///< how far it came
    FileKind other = FileKind::unknown;
};

/// Never throws: a file that cannot be read has the error's number. It is waited for as long as the
/// platform waits.
SeriesFile readSeriesFile(Platform& platform, const std::string& path);

/// The file's stamp where it holds other bytes now than those that are known, or has come to be;
/// nothing for one that is gone, or cannot be read.
std::optional<FileStamp> stampOfOther(Platform& platform, const std::string& path,
                                      const std::optional<KnownFile>& known);

/// The index of the catalogue; what stands before an error counts.
struct IndexFile {
    CatalogueIndex index;
    std::optional<KnownFile> known;  ///< nothing where there was no file
    bool missing = false;
    int error = 0;
    ReadingReport report;
    FileKind other = FileKind::unknown;
};

IndexFile readIndexFile(Platform& platform, const std::string& path);

}  // namespace varnholt
