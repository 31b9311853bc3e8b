// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/platform.h"

namespace varnholt {

class Varnmain;

// What the importer and the loads windows share when they read a simulation file.

/// The dialog for a file of the simulation programs.
FileDialog simulationDialog(const Varnmain& main);
/// Tells that the file is of neither program.
void tellNoSimulation(const Varnmain& main, const std::string& path);

}  // namespace varnholt
