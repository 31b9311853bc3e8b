// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/trench_drawing.h"

#include <algorithm>
#include <cstddef>

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/trench_rules.h"

namespace varnholt {
namespace {

using namespace modCalculations;

/// The pipes without their images, around the trench's middle line.
std::vector<PipeCircle> placePipes(const TrenchLayout& layout, const PipeValues& pipe) {
    const std::vector<PipePosition> nodes = buildPipePositions(layout);
    const auto [left, right] =
        std::minmax_element(nodes.begin(), nodes.end(),
                            [](const PipePosition& a, const PipePosition& b) { return a.x < b.x; });
    std::vector<PipeCircle> pipes;
    for (std::size_t i = 0; i < nodes.size(); i += 2)
        pipes.push_back({(nodes[i].x - (left->x + right->x) / 2) * inchesPerFoot,
                         (nodes[i].y - layout.depth) * inchesPerFoot, pipe.pipeDiameter[0],
                         pipe.pipeDiameter[1]});
    return pipes;
}

/// The first of the second column, or the one that an offset has moved out of a single column.
std::size_t pipeBesideFirst(const TrenchLayout& layout) {
    return columnsOf(layout.arrangement) == 1 ? 1 : static_cast<std::size_t>(rowsOf(layout));
}

void placeCoil(const TrenchLayout& layout, TrenchDrawing& drawing) {
    drawing.coil = true;
    drawing.standing = layout.arrangement == standingCoil;
    drawing.coilDiameter = std::max(0.0, layout.coilDiameter);
    drawing.coilMiddle = meanPipeDepth(layout) * inchesPerFoot;
    if (drawing.standing) drawing.bottom = drawing.depth + drawing.coilDiameter;
    drawing.fits = drawing.standing || drawing.coilDiameter <= drawing.width;
}

}  // namespace

TrenchDrawing drawTrench(const TrenchValues& trench, const HorizontalArrangementValues& pipes,
                         const PipeValues& pipe) {
    TrenchDrawing drawing;
    const TrenchLayout layout = layoutOf(trench, pipes);
    drawing.depth = drawing.bottom = layout.depth * inchesPerFoot;
    drawing.width = trench.trenchGeometry[2];
    try {
        drawing.showsRows = usesRowStep(layout);
        if (usesColumnStep(layout)) drawing.besideFirst = pipeBesideFirst(layout);
        if (isCoil(layout.arrangement))
            placeCoil(layout, drawing);
        else
            drawing.pipes = placePipes(layout, pipe);
    } catch (const RunTimeError&) {
        // A file may hold an arrangement that is none, or a row that is not full.
        return {};
    }
    if (drawing.besideFirst >= drawing.pipes.size()) drawing.besideFirst = 0;
    return drawing;
}

}  // namespace varnholt
