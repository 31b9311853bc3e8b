// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/design_files.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "design/frmBHDesign.h"
#include "design/frmHZDesign.h"
#include "design/frmSWDesign.h"
#include "frame/varnmain.h"
#include "persistence/borehole_body.h"
#include "persistence/horizontal_body.h"
#include "persistence/project_head.h"
#include "persistence/surface_water_body.h"

namespace varnholt {
namespace {

template <class Window>
std::unique_ptr<GroundDesign> make(Varnmain& main, std::int16_t slot) {
    return std::make_unique<Window>(main, slot);
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

constexpr std::string_view boreholeTitle = "Borehole Design";
constexpr std::string_view horizontalTitle = "Horizontal Design";
constexpr std::string_view surfaceWaterTitle = "Surface Water Design";

// Head and body of each kind's project file, and the body of its defaults file.

template <class File, class Project>
void describeFile(File& file, Project& project) {
    if constexpr (std::is_same_v<std::remove_const_t<Project>, BoreholeProject>) {
        describeHead(file, boreholeTitle, project.information);
        describeBoreholeProject(file, project);
    } else if constexpr (std::is_same_v<std::remove_const_t<Project>, HorizontalProject>) {
        describeHead(file, horizontalTitle, project.information);
        describeHorizontalProject(file, project);
    } else {
        describeHead(file, surfaceWaterTitle, project.information);
        describeSurfaceWaterProject(file, project);
    }
}

template <class File, class Project>
void describeDefaults(File& file, Project& project) {
    if constexpr (std::is_same_v<std::remove_const_t<Project>, BoreholeProject>) {
        describeBoreholeDefaults(file, project);
        if constexpr (File::reading) resetCoolingRange(project);
    } else if constexpr (std::is_same_v<std::remove_const_t<Project>, HorizontalProject>) {
        describeHorizontalDefaults(file, project);
        if constexpr (File::reading) resetCoolingRange(project);
    } else {
        describeSurfaceWaterDefaults(file, project);
    }
}

template <class Window>
void readProject(LineFileReader& file, GroundDesign& design) {
    readInto<Window>(design, [&](auto& project) { describeFile(file, project); });
}

template <class Window>
void writeProject(LineFileWriter& file, const GroundDesign& design) {
    describeFile(file, projectOf<Window>(design));
}

template <class Window>
void readDefaults(LineFileReader& file, GroundDesign& design) {
    readInto<Window>(design, [&](auto& project) { describeDefaults(file, project); });
}

template <class Window>
void writeDefaults(LineFileWriter& file, const GroundDesign& design) {
    describeDefaults(file, projectOf<Window>(design));
}

/// The zones come from their file, and what they amount to with them. The results on show are the
/// project's own, tower included, as they were saved.
template <class Window>
void linkKeepingResults(GroundDesign& design, const std::function<void()>& link) {
    const LoadsRollUp saved = *projectOf<Window>(design).results;
    link();
    readInto<Window>(design, [&](auto& project) {
        LoadsRollUp& results = project.results.edit();
        results.loads.peakLoad = saved.loads.peakLoad;
        results.demand.peakDemand = saved.demand.peakDemand;
        results.cop.heatPumpCOP = saved.cop.heatPumpCOP;
        results.cop.systemCOP = saved.cop.systemCOP;
        results.outlet = saved.outlet;
    });
    design.showGoverningMode();
}

template <class Window>
constexpr DesignFileKind kindOf(DesignKind kind, const char* form, const char* newCommand,
                                std::string_view title, std::string_view defaultsFile) {
    return {kind,
            form,
            newCommand,
            title,
            defaultsFile,
            make<Window>,
            readProject<Window>,
            writeProject<Window>,
            readDefaults<Window>,
            writeDefaults<Window>,
            linkKeepingResults<Window>};
}

constexpr std::array kinds{
    kindOf<frmBHDesign>(DesignKind::borehole, "frmBHDesign", "NewBorehole", boreholeTitle,
                        "vhtbh.ini"),
    kindOf<frmHZDesign>(DesignKind::horizontal, "frmHZDesign", "NewHorizontal", horizontalTitle,
                        "vhthz.ini"),
    kindOf<frmSWDesign>(DesignKind::surfaceWater, "frmSWDesign", "NewSurfaceWater",
                        surfaceWaterTitle, "vhtsw.ini"),
};

const DesignFileKind& rowOf(DesignKind kind) {
    return *std::find_if(kinds.begin(), kinds.end(),
                         [kind](const DesignFileKind& row) { return row.kind == kind; });
}

std::string defaultsPath(const GroundDesign& design) {
    return joinPath(design.main().MainDirectory, std::string(fileKindOf(design).defaultsFile));
}

}  // namespace

std::span<const DesignFileKind> designFileKinds() { return kinds; }

const DesignFileKind& fileKindOf(const GroundDesign& design) { return rowOf(design.kind()); }

const DesignFileKind& fileKindOfTitle(std::string_view line) {
    if (line == boreholeTitle) return rowOf(DesignKind::borehole);
    if (line == surfaceWaterTitle) return rowOf(DesignKind::surfaceWater);
    return rowOf(DesignKind::horizontal);
}

namespace {

template <class Project>
std::string textOf(const Project& project) {
    LineFileWriter file;
    describeFile(file, project);
    return std::move(file).bytes();
}

template <class Project>
void readText(std::string_view bytes, Project& project) {
    LineFileReader file(bytes);
    describeFile(file, project);
}

}  // namespace

std::string projectText(const BoreholeProject& project) { return textOf(project); }
std::string projectText(const HorizontalProject& project) { return textOf(project); }
std::string projectText(const SurfaceWaterProject& project) { return textOf(project); }

void readProjectText(std::string_view bytes, BoreholeProject& project) { readText(bytes, project); }
void readProjectText(std::string_view bytes, HorizontalProject& project) {
    readText(bytes, project);
}
void readProjectText(std::string_view bytes, SurfaceWaterProject& project) {
    readText(bytes, project);
}

std::string projectText(const GroundDesign& design) {
    LineFileWriter file;
    fileKindOf(design).writeProject(file, design);
    return std::move(file).bytes();
}

void readProjectText(std::string_view bytes, GroundDesign& design, ReadingReport* report) {
    LineFileReader file(bytes);
    reportReading(file, report, [&] { fileKindOf(design).readProject(file, design); });
}

bool tellsOfLink(std::string_view bytes) {
    LineFileReader file(bytes);
    file.title({});
    if (file.since(2.0)) return true;
    // Horizontal files have always told of it.
    return fileKindOfTitle(file.line()).kind == DesignKind::horizontal;
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
