// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "desktop/windows/name_finder.h"

class QMenuBar;

namespace varnholt {

class FormWindow;

/// An example that lies in the program's folder.
struct ExampleFile {
    std::string path;
    QString name;
};
/// The projects there, by their names.
std::vector<ExampleFile> exampleFiles(const std::string& programFolder);

// What can be found by its name.

/// Every entry of the menus.
void addMenuCommands(const QMenuBar& bar, std::vector<NamedThing>& things);
/// The buttons of a window as commands, and its fields; those that are hidden are left out.
/// @param window  outlives the things
void addControls(FormWindow& window, std::vector<NamedThing>& things);

/// Brings the control of a window to sight and gives it the keyboard.
void goTo(FormWindow& window, const std::string& control);

}  // namespace varnholt
