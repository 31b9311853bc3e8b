// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/help/help.h"

#include "desktop/help/help_viewer.h"

namespace varnholt {

HelpWindow* Help::newWindow(const HelpPlaces& places) { return new HelpViewer(places); }

}  // namespace varnholt
