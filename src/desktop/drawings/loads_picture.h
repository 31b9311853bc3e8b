// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

#include "desktop/drawings/canvas.h"
#include "forms/texts.h"
#include "loads/modLoads/loads_pictures.h"

namespace varnholt {

/// What stands at the bars: the words of the four blocks and of the loads' unit.
struct LoadsCaptions {
    std::array<std::string, timeBlocks> blocks;
    std::string unit;

    friend bool operator==(const LoadsCaptions&, const LoadsCaptions&) = default;
};

/// A pair of bars for each block, cooling solid and heating framed, with the figure of the largest
/// of each mode.
void paintLoads(const Canvas& canvas, const LoadsChart& loads, const LoadsCaptions& captions,
                const Texts& texts);

/// What the picture shows, for a screen reader: each mode's largest load and its block.
QString describeLoads(const LoadsChart& loads, const LoadsCaptions& captions, const Texts& texts);

}  // namespace varnholt
