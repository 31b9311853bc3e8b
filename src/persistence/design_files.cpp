// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/design_files.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "design/frmBHDesign.h"
#include "frame/varnmain.h"
#include "persistence/borehole_body.h"
#include "persistence/project_head.h"

namespace varnholt {
namespace {

std::unique_ptr<GroundDesign> makeBorehole(Varnmain& main, std::int16_t slot) {
    return std::make_unique<frmBHDesign>(main, slot);
}

template <class Window>
const auto& projectOf(const GroundDesign& design) {
    return static_cast<const Window&>(design).project();
}

/// Reads into the window's project. Whatever goes wrong, it has the values read so far.
template <class Window, class Read>
void readInto(GroundDesign& design, const Read& read) {
    auto& window = static_cast<Window&>(design);
    auto project = window.project();
    try {
        read(project);
    } catch (const RunTimeError&) {
        window.setProject(std::move(project));
        throw;
    }
    window.setProject(std::move(project));
}

template <class File, class Project>
void describeBoreholeFile(File& file, Project& project) {
    describeHead(file, "Borehole Design", project.information);
    describeBoreholeProject(file, project);
}

void readBoreholeProject(LineFileReader& file, GroundDesign& design) {
    readInto<frmBHDesign>(design,
                          [&](BoreholeProject& project) { describeBoreholeFile(file, project); });
}

void writeBoreholeProject(LineFileWriter& file, const GroundDesign& design) {
    describeBoreholeFile(file, projectOf<frmBHDesign>(design));
}

void readBoreholeDefaults(LineFileReader& file, GroundDesign& design) {
    readInto<frmBHDesign>(design, [&](BoreholeProject& project) {
        describeBoreholeDefaults(file, project);
        resetCoolingRange(project);
    });
}

void writeBoreholeDefaults(LineFileWriter& file, const GroundDesign& design) {
    describeBoreholeDefaults(file, projectOf<frmBHDesign>(design));
}

/// The zones come from their file, and what they amount to with them. The results on show are the
/// project's own, tower included, as they were saved.
void linkBoreholeLoads(GroundDesign& design, const std::function<void()>& link) {
    const BoreholeResults saved = *projectOf<frmBHDesign>(design).results;
    link();
    readInto<frmBHDesign>(design, [&](BoreholeProject& project) {
        BoreholeResults& results = project.results.edit();
        results.loads.peakLoad = saved.loads.peakLoad;
        results.demand.peakDemand = saved.demand.peakDemand;
        results.cop.heatPumpCOP = saved.cop.heatPumpCOP;
        results.cop.systemCOP = saved.cop.systemCOP;
        results.outlet = saved.outlet;
    });
    design.showGoverningMode();
}

/// The rows of the horizontal design ("Horizontal Design", vhthz.ini) and of the surface water
/// design ("Surface Water Design", vhtsw.ini) stand here beside it once there are such windows.
constexpr std::array kinds{
    DesignFileKind{DesignKind::borehole, "NewBorehole", "Borehole Design", "vhtbh.ini",
                   makeBorehole, readBoreholeProject, writeBoreholeProject, readBoreholeDefaults,
                   writeBoreholeDefaults, linkBoreholeLoads},
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

std::string projectText(const BoreholeProject& project) {
    LineFileWriter file;
    describeBoreholeFile(file, project);
    return file.bytes();
}

void readProjectText(std::string_view bytes, BoreholeProject& project) {
    LineFileReader file(bytes);
    describeBoreholeFile(file, project);
}

std::string projectText(const GroundDesign& design) {
    LineFileWriter file;
    fileKindOf(design).writeProject(file, design);
    return file.bytes();
}

void readProjectText(std::string_view bytes, GroundDesign& design) {
    LineFileReader file(bytes);
    fileKindOf(design).readProject(file, design);
}

bool tellsOfLink(std::string_view bytes) {
    LineFileReader file(bytes.substr(0, bytes.find('\n')));
    file.title({});
    return file.since(2.0);
}

void saveVHTFile(const GroundDesign& design, const std::string& path) {
    replaceWholeFile(path, projectText(design));
}

void readVHTFile(GroundDesign& design, const std::string& path) {
    readProjectText(readWholeFile(path), design);
}

void saveINIFile(const GroundDesign& design) {
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
