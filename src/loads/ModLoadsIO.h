// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "basis/reading_report.h"
#include "catalogue/pump_evaluation.h"
#include "loads/shared_zones.h"

namespace varnholt {

/// Zones are counted in 16 bits.
constexpr std::size_t mostZones = std::numeric_limits<std::int16_t>::max();

/// What a zone file holds: a loads window's zones and the conditions they were designed for.
struct LoadsData {
    SharedZones zones;
    DesignConditions conditions;
    std::string activeSeries;  ///< manufacturer's and series' name joined

    friend bool operator==(const LoadsData&, const LoadsData&) = default;
};

/// What the reader cannot take from the file.
struct ZoneFileContext {
    std::string zoneWord;     ///< a zone's name is this word, a blank and its position from 1
    std::string firstSeries;  ///< active where the file is too old to tell: the catalogue's first
};

/// Reads a zone file of any version from its bytes. What an old version lacks gets the values
/// that held in its time; no pump is evaluated.
///
/// Zones beyond those that the program counts are passed over. The report, which may be null, tells
/// how far the reading came.
///
/// On an error (RunTimeError 62 past the end, 6 for a whole number beyond 16 bits) it throws, and
/// what was read up to there stands in `data`: the zones that are complete, and each later value
/// that the file still held. The rest, and everything when not even the number of zones could be
/// read, is as it was.
void readZones(std::string_view bytes, const ZoneFileContext& context, LoadsData& data,
               ReadingReport* report = nullptr);
/// The file's text in the newest version.
std::string zonesText(const LoadsData& data);

/// readZones of a file; also throws as readWholeFile, and `data` is then as it was.
void readZoneFile(const std::string& path, const ZoneFileContext& context, LoadsData& data);
/// Replaces the file. Throws as replaceWholeFile.
void saveZoneFile(const std::string& path, const LoadsData& data);

}  // namespace varnholt
