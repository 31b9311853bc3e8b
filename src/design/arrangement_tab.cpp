// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/arrangement_tab.h"

#include <array>

#include "design/ground_design.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {
ArrangementTab::ArrangementTab(GroundDesign& design, ArrangementValues& arrangement)
    : DesignTab(design) {
    addFrame("PAFieldFrame", Text::groundFieldArrangement);
    addRows(arrangement);
    addSeparation(arrangement);
    addFrame("PABoresPerParallelLoopFrame", Text::parallelCircuits, "PAFieldFrame");
    addField({.control = "PABoresPerParallelLoopText",
              .stored = &arrangement.boresPerCircuit,
              .highest = 3,
              .fallback = 1,
              .format = "###0",
              .beside = {.frame = "PABoresPerParallelLoopFrame",
                         .label = "PABoresPerParallelLoopLabel",
                         .caption = {Text::boresPerParallelCircuit, Text::boresPerParallelCircuit},
                         .help = "borehole#pattern"}});
    addFrame("PATimeFrame", Text::modelingTimePeriod, "PAFieldFrame");
    addField({.control = "PATimeText",
              .stored = &arrangement.predictionTime,
              .highest = 100,
              .fallback = 10,
              .beside = {.frame = "PATimeFrame",
                         .label = "PATimeLabel",
                         .caption = {Text::predictionTime, Text::predictionTime},
                         .unitLabel = "PATimeUnitsLabel",
                         .unit = {Text::predictionTimeUnits, Text::predictionTimeUnits},
                         .help = "borehole#pattern"}});
    add("imgField", ControlKind::image, "PAFieldFrame");
}

/// Counts have no upper limit of their own, for any grid can be computed.
void ArrangementTab::addRows(ArrangementValues& arrangement) {
    addFrame("PAPatternFrame", Text::verticalGridArrangement, "PAFieldFrame");
    const std::array<int, 2> captions{Text::rowsAcross, Text::rowsDown};
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
    addFrame("PASeparationFrame", Text::separationBetweenBores, "PAFieldFrame");
    addField({.control = "PASeparationText",
              .stored = &arrangement.boreSeparation,
              .quantity = &quantities::length,
              .highest = 100,
              .fallback = 20,
              .beside = {.frame = "PASeparationFrame",
                         .label = "PASeparationLabel",
                         .caption = {Text::boreholeSeparation, Text::boreholeSeparation},
                         .unitLabel = "PASeparationUnitsLabel",
                         .unit = {Text::lengthUnitsEnglish, Text::lengthUnitsMetric},
                         .help = "borehole#pattern"}});
}

}  // namespace varnholt
