// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace varnholt {

class GroundDesign;
class Varnmain;

/// Saves the design under its name, or asks for one when it has none yet. A cancel anywhere, and a
/// write that failed, set the main window's `saveCancelled`.
void saveDesign(GroundDesign& design);
/// Asks for a name and saves the design under it.
void saveDesignAs(GroundDesign& design);
/// The question whether to save a design that is being closed. False when it is to stay.
bool saveBeforeClosing(GroundDesign& design);

/// Whether a design other than `except` has the file open.
bool isFileInUse(Varnmain& main, const std::string& path, const GroundDesign* except);
/// A relative path is taken from the program's folder.
std::string absolutePath(const Varnmain& main, const std::string& path);

}  // namespace varnholt
