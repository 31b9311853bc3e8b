// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/application.h"
#include "desktop/reading/help_module.h"

namespace varnholt {

class MainWindow;

/// What the help window needs of the program.
HelpPlaces helpPlacesOf(Application& program, MainWindow& window);

}  // namespace varnholt
