// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "catalogue/pump_evaluation.h"
#include "frame/project_information.h"
#include "loads/loads_document.h"

namespace varnholt {

/// A design's own copy of the loads. It outlives the link.
struct ProjectLoads {
    SharedZones zones;
    /// As a project file holds it: it may be more than the zones at hand while a project's zone
    /// file is missing.
    std::int16_t zoneNumber = 0;
    /// Manufacturer's and series' name joined.
    std::string activeSeries;
    /// The file that the zones come from; without a name the project has none.
    ZoneFile file;
    /// "frmZoneManage", "frmAvgBlock", or empty without a link.
    std::string linkType;

    friend bool operator==(const ProjectLoads&, const ProjectLoads&) = default;
};

/// The zones that count: a project whose zone file is missing counts more than it has.
SharedZones zonesInUse(const ProjectLoads& loads);

/// The temperatures and flows that a design is made for.
struct ProjectConditions : DesignConditions {
    ByMode<double> minflowRate{2.8, 4.2};  ///< gpm

    friend bool operator==(const ProjectConditions&, const ProjectConditions&) = default;
};

/// What the projects of all ground loops have in common. It is a plain value, as the kinds that
/// add to it are: copied, compared and written without a window.
struct DesignProject {
    ProjectInformation information;
    ProjectLoads loads;
    ProjectConditions conditions;

    friend bool operator==(const DesignProject&, const DesignProject&) = default;
};

}  // namespace varnholt
