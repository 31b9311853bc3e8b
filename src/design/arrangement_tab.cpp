// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/arrangement_tab.h"

#include <array>

#include "design/ground_design.h"

namespace varnholt {
ArrangementTab::ArrangementTab(GroundDesign& design, ArrangementValues& arrangement)
    : DesignTab(design) {
    addFrame("PAFieldFrame", 2501);
    addRows(arrangement);
    addSeparation(arrangement);
    addFrame("PABoresPerParallelLoopFrame", 2508, "PAFieldFrame");
    addField({.control = "PABoresPerParallelLoopText",
              .stored = &arrangement.boresPerCircuit,
              .highest = 3,
              .fallback = 1,
              .format = "###0",
              .beside = {.frame = "PABoresPerParallelLoopFrame",
                         .label = "PABoresPerParallelLoopLabel",
                         .caption = {2507, 2507},
                         .help = "borehole#pattern"}});
    addFrame("PATimeFrame", 2509, "PAFieldFrame");
    addField({.control = "PATimeText",
              .stored = &arrangement.predictionTime,
              .highest = 100,
              .fallback = 10,
              .beside = {.frame = "PATimeFrame",
                         .label = "PATimeLabel",
                         .caption = {2510, 2510},
                         .unitLabel = "PATimeUnitsLabel",
                         .unit = {2513, 2513},
                         .help = "borehole#pattern"}});
    add("imgField", ControlKind::image, "PAFieldFrame");
}

/// Counts have no upper limit of their own, for any grid can be computed.
void ArrangementTab::addRows(ArrangementValues& arrangement) {
    addFrame("PAPatternFrame", 2502, "PAFieldFrame");
    const std::array<int, 2> captions{2503, 2504};
    for (std::size_t i = 0; i < captions.size(); ++i)
        addField({.control = elementName("PAPatternRowsText", i),
                  .stored = &arrangement.patternRows[i],
                  .fallback = 1,
                  .format = "###0",
                  .beside = {.frame = "PAPatternFrame",
                             .label = elementName("PAPatternRowsLabel", i),
                             .caption = {captions[i], captions[i]},
                             .help = "borehole#pattern"}});
}

void ArrangementTab::addSeparation(ArrangementValues& arrangement) {
    addFrame("PASeparationFrame", 2505, "PAFieldFrame");
    addField({.control = "PASeparationText",
              .stored = &arrangement.boreSeparation,
              .quantity = &quantities::length,
              .highest = 100,
              .fallback = 20,
              .beside = {.frame = "PASeparationFrame",
                         .label = "PASeparationLabel",
                         .caption = {2506, 2506},
                         .unitLabel = "PASeparationUnitsLabel",
                         .unit = {2512, 2511},
                         .help = "borehole#pattern"}});
}

}  // namespace varnholt
