// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "frame/project_information.h"
#include "loads/ModLoadsIO.h"

namespace varnholt {

/// The zone file that loads come from and go to.
struct ZoneFile {
    std::string name;  ///< empty for a list without a name yet
    std::string folder;
    bool exists = false;  ///< the zones have a file on disk

    friend bool operator==(const ZoneFile&, const ZoneFile&) = default;
};

/// What a loads window edits: the zones, the conditions that they are designed for, and whose
/// building it is.
struct LoadsDocument {
    LoadsData data;
    /// Zones loaded or added; a new zone's name carries the next number.
    std::int16_t zoneCount = 0;
    ZoneFile file;
    /// Of the linked design, for the reports.
    ProjectInformation information;

    friend bool operator==(const LoadsDocument&, const LoadsDocument&) = default;
};

}  // namespace varnholt
