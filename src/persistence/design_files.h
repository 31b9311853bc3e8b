// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "basis/line_file.h"
#include "basis/reading_report.h"
#include "design/borehole_project.h"
#include "design/ground_design.h"
#include "design/horizontal_project.h"
#include "design/surface_water_project.h"
#include "frame/design_slots.h"

namespace varnholt {

/// How one kind of design is made and stored. Kinds differ in this row and in nothing else: the
/// commands and the file's head are the same for all.
struct DesignFileKind {
    DesignKind kind;
    const char* form;               ///< name of its windows
    const char* newCommand;         ///< menu entry that opens an empty one
    std::string_view title;         ///< second line of its files
    std::string_view defaultsFile;  ///< in the program's folder
    std::unique_ptr<GroundDesign> (*make)(Varnmain& main, std::int16_t slot);
    /// Head and body of a project file, or body of a defaults file, read into the window's project.
    /// On an error the values read so far stay.
    void (*readProject)(LineFileReader& file, GroundDesign& design);
    void (*writeProject)(LineFileWriter& file, const GroundDesign& design);
    void (*readDefaults)(LineFileReader& file, GroundDesign& design);
    void (*writeDefaults)(LineFileWriter& file, const GroundDesign& design);
    /// Links a project with its loads, as the caller does it, and shows which mode governs. The
    /// results on show stay the project's own, as they were saved.
    void (*linkKeepingResults)(GroundDesign& design, const std::function<void()>& link);
};

std::span<const DesignFileKind> designFileKinds();
const DesignFileKind& fileKindOf(const GroundDesign& design);
/// The kind that a project file's second line names. Every line that is no other's title means a
/// horizontal design.
const DesignFileKind& fileKindOfTitle(std::string_view line);

/// The project as the bytes of a file of the newest version.
std::string projectText(const BoreholeProject& project);
std::string projectText(const HorizontalProject& project);
std::string projectText(const SurfaceWaterProject& project);
std::string projectText(const GroundDesign& design);
/// Reads a project of any version. Throws RunTimeError 62 or 6 when the file ends early or holds
/// a whole number beyond 16 bits; the values read so far then stay.
void readProjectText(std::string_view bytes, BoreholeProject& project);
void readProjectText(std::string_view bytes, HorizontalProject& project);
void readProjectText(std::string_view bytes, SurfaceWaterProject& project);
/// @param report  tells how far the reading came; may be null
void readProjectText(std::string_view bytes, GroundDesign& design, ReadingReport* report = nullptr);

/// Replaces the project file whole. Throws as replaceWholeFile.
void saveVHTFile(const GroundDesign& design, const std::string& path);
/// Reads a project file into the design. Throws as readWholeFile and readProjectText.
void readVHTFile(GroundDesign& design, const std::string& path);
/// Whether a project file of that text can tell of a link at all, which old versions cannot.
bool tellsOfLink(std::string_view bytes);

/// Replaces the defaults file of the design's kind in the program's folder.
void saveINIFile(const GroundDesign& design);
/// Overlays the built-in values with the defaults file of the kind; without one nothing changes.
void readINIFile(GroundDesign& design);

}  // namespace varnholt
