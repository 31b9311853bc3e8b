// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "loads/zone_warnings.h"

namespace varnholt {

class ChildWindow;
class LoadsWindow;

/// A zone's warning in a window's words and units.
std::string sentenceOf(const ZoneWarning& warning, const Zone& zone, const ChildWindow& window);

/// The zones of a loads window whose pumps have no measured points at a design's inlet
/// temperatures, a sentence a mode, in the design's words and units: all about a single zone, of
/// several the first and how many more.
std::vector<std::string> inletSentences(const LoadsWindow& loads, const ByMode<double>& inletTemp,
                                        const ChildWindow& design);

}  // namespace varnholt
