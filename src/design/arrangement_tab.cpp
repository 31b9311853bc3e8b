// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/arrangement_tab.h"

#include "design/ground_design.h"

namespace varnholt {
namespace {

// Counts have no upper limit of their own, for any grid can be computed.
constexpr double unlimited = 1e308;

}  // namespace

ArrangementTab::ArrangementTab(GroundDesign& design, ArrangementValues& arrangement)
    : DesignTab(design) {
    const Quantity* plain = &quantities::plain;
    addFrame("PAFieldFrame", 2501);
    addFrame("PAPatternFrame", 2502, "PAFieldFrame");
    addField({"PAPatternRowsText(0)", &arrangement.patternRows[0], plain, 0, unlimited, 1, "###0"},
             {"PAPatternFrame", 2503});
    addField({"PAPatternRowsText(1)", &arrangement.patternRows[1], plain, 0, unlimited, 1, "###0"},
             {"PAPatternFrame", 2504});
    addFrame("PASeparationFrame", 2505, "PAFieldFrame");
    addField({"PASeparationText", &arrangement.boreSeparation, &quantities::length, 0, 100, 20},
             {"PASeparationFrame", 2506, 2511, 2512, "PASeparationUnitsLabel"});
    addFrame("PABoresPerParallelLoopFrame", 2508, "PAFieldFrame");
    addField({"PABoresPerParallelLoopText", &arrangement.boresPerCircuit, plain, 0, 3, 1, "###0"},
             {"PABoresPerParallelLoopFrame", 2507});
    addFrame("PATimeFrame", 2509, "PAFieldFrame");
    addField({"PATimeText", &arrangement.predictionTime, plain, 0, 100, 10},
             {"PATimeFrame", 2510, 2513, 2513, "PATimeUnitsLabel"});
    add("imgField", ControlKind::image, "PAFieldFrame");
}

}  // namespace varnholt
