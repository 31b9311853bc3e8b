// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/design_files.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "basis/file_system.h"
#include "frame/varnmain.h"
#include "persistence/borehole_body.h"
#include "persistence/project_head.h"
#include "persistence/zone_link.h"

namespace varnholt {
namespace {

frmBHDesign& borehole(GroundDesign& design) { return static_cast<frmBHDesign&>(design); }

std::unique_ptr<GroundDesign> makeBorehole(Varnmain& main, std::int16_t slot) {
    return std::make_unique<frmBHDesign>(main, slot);
}

template <class File>
void boreholeProject(File& file, GroundDesign& design) {
    describeBoreholeProject(file, borehole(design));
}

template <class File>
void boreholeDefaults(File& file, GroundDesign& design) {
    describeBoreholeDefaults(file, borehole(design));
}

void readBoreholeDefaults(LineFileReader& file, GroundDesign& design) {
    boreholeDefaults(file, design);
    resetCoolingRange(borehole(design));
}

/// The zones have come from their file, and what they amount to with them. The results on show are
/// the project's own, tower included, as they were saved.
void findBoreholeLoads(GroundDesign& design) {
    BoreholeResults& results = borehole(design).results;
    const BoreholeResults saved = results;
    resolveZoneLink(design);
    results.loads.peakLoad = saved.loads.peakLoad;
    results.demand.peakDemand = saved.demand.peakDemand;
    results.cop.heatPumpCOP = saved.cop.heatPumpCOP;
    results.cop.systemCOP = saved.cop.systemCOP;
    results.outlet = saved.outlet;
    borehole(design).showGoverningMode();
}

/// The rows of the horizontal design ("Horizontal Design", vhthz.ini) and of the surface water
/// design ("Surface Water Design", vhtsw.ini) stand here beside it once there are such windows.
constexpr std::array kinds{
    DesignFileKind{DesignKind::borehole, "NewBorehole", "Borehole Design", "vhtbh.ini",
                   makeBorehole, boreholeProject<LineFileReader>, boreholeProject<LineFileWriter>,
                   readBoreholeDefaults, boreholeDefaults<LineFileWriter>, findBoreholeLoads},
};

std::string defaultsPath(const GroundDesign& design) {
    return joinPath(design.main().MainDirectory, std::string(fileKindOf(design).defaultsFile));
}

}  // namespace

std::span<const DesignFileKind> designFileKinds() { return kinds; }

const DesignFileKind& fileKindOf(const GroundDesign& design) {
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const DesignFileKind& row) {
        return row.kind == design.kind();
    });
    if (found == kinds.end()) throw std::logic_error("no file kind for " + design.formName());
    return *found;
}

const DesignFileKind* fileKindOfTitle(std::string_view line) {
    // Every other line means a horizontal design.
    DesignKind kind = DesignKind::horizontal;
    if (line == "Borehole Design") kind = DesignKind::borehole;
    if (line == "Surface Water Design") kind = DesignKind::surfaceWater;
    for (const DesignFileKind& row : kinds)
        if (row.kind == kind) return &row;
    return nullptr;
}

std::string projectText(GroundDesign& design) {
    const DesignFileKind& kind = fileKindOf(design);
    LineFileWriter file;
    describeHead(file, kind.title, design.information);
    kind.writeProject(file, design);
    return file.bytes();
}

void readProjectText(std::string_view bytes, GroundDesign& design) {
    const DesignFileKind& kind = fileKindOf(design);
    LineFileReader file(bytes);
    describeHead(file, kind.title, design.information);
    kind.readProject(file, design);
}

void saveVHTFile(GroundDesign& design, const std::string& path) {
    replaceWholeFile(path, projectText(design));
}

void readVHTFile(GroundDesign& design, const std::string& path) {
    readProjectText(readWholeFile(path), design);
}

void saveINIFile(GroundDesign& design) {
    const DesignFileKind& kind = fileKindOf(design);
    LineFileWriter file;
    describeDefaultsHead(file, kind.title);
    kind.writeDefaults(file, design);
    replaceWholeFile(defaultsPath(design), file.bytes());
}

void readINIFile(GroundDesign& design) {
    const std::string path = defaultsPath(design);
    if (!fileExists(path)) return;
    const DesignFileKind& kind = fileKindOf(design);
    LineFileReader file = LineFileReader::open(path);
    describeDefaultsHead(file, kind.title);
    kind.readDefaults(file, design);
}

}  // namespace varnholt
