// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "forms/platform.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/main.h"
#include "frame/varnmain.h"

namespace varnholt {

// What the file commands show alike.

inline void warn(const Varnmain& main, const std::string& message) {
    main.platform().message(MessageIcon::exclamation, main.text(Text::programTitle), message);
}

/// A file could not be read, or not to its end.
inline void warnOfReading(const Varnmain& main, const RunTimeError& error) {
    warn(main, main.text(Text::programTitle) + " - " + error.description());
}

/// The dialog for a project's file: in the folder of projects, with the filter of projects.
inline FileDialog projectDialog(const Varnmain& main, int titleText) {
    constexpr int projectsInFilter = 3;
    FileDialog dialog;
    dialog.title = main.text(titleText);
    dialog.folder = joinPath(main.MainDirectory, "work files");
    dialog.filter = main.text(Text::projectFileFilter);
    dialog.filterIndex = projectsInFilter;
    return dialog;
}

}  // namespace varnholt
