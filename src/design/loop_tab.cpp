// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/loop_tab.h"

#include <array>
#include <cstdint>
#include <limits>

#include "basis/number_text.h"
#include "design/ground_design.h"
#include "design/shared_texts.h"
#include "design/surface_water_rules.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/surface_water.h"

namespace varnholt {
namespace {

constexpr int loopSizes = 4;
constexpr int headerSizes = 8;
constexpr double longest = 10000.0;  // ft
constexpr double steepest = 1000.0;  // ft of head for 100 ft of pipe
constexpr std::array<int, 2> headerTexts{Text::primaryHeader, Text::branchHeader};
constexpr const char* frames[] = {"PIPrimaryHeaderFrame", "PIBranchHeaderFrame"};

}  // namespace

LoopTab::LoopTab(GroundDesign& design, LoopValues& loop, HeaderValues& header)
    : DesignTab(design), loop_(loop), header_(header) {
    addFrame("PIPipeParametersSSTab", Text::loopPipingPage);
    addLoops();
    addLoopLosses();
    addFrame("PIHeaderParametersFrame", Text::headerParameters, "PIPipeParametersSSTab");
    for (const std::size_t kind : {0U, 1U}) addHeaders(kind);
    addHeaderLosses();
    addMenuButton("PIPipeTablesCommand", "PIPipeParametersSSTab", Text::pipeTablesButton,
                  "PipeProperties");
    addFrame("CACircuitFrame", Text::circuit);
    add("imgCircuit", ControlKind::image, "CACircuitFrame");
    add("imgLoopCurves", ControlKind::image, "PIPipeParametersSSTab");
}

void LoopTab::addLoops() {
    const std::string frame = "PILoopPipeFrame";
    addFrame(frame, Text::circuitParameters, "PIPipeParametersSSTab");
    add("PILoopStyleLabel", ControlKind::label, frame, Text::loopStyle);
    add("PICoilOption", ControlKind::option, frame, Text::coil).grouped("loopStyle");
    add("PISlinkyOption", ControlKind::option, frame, Text::slinky).grouped("loopStyle");
    onClick("PICoilOption", [this] { chooseStyle(0); });
    onClick("PISlinkyOption", [this] { chooseStyle(1); });
    addCombo("PILoopPipeSizeCombo", frame, "PILoopPipeSizeLabel", Text::loopPipeSize,
             Text::loopPipeThreeQuarterInch, Text::loopPipeOneAndAHalfInch);
    onClick("PILoopPipeSizeCombo", [this] { PILoopPipeSizeCombo_Click(); });
    addField({.control = "PIExtraEqvLengthText",
              .stored = &loop_.extraEqvLength,
              .quantity = &quantities::length,
              .highest = longest,
              .beside = {.frame = frame,
                         .label = "PIExtraEqvLengthLabel",
                         .caption = {Text::extraEquivalentLength, Text::extraEquivalentLength},
                         .unitLabel = "PIExtraEqvLengthUnitsLabel",
                         .unit = {Text::lengthUnitsEnglish, Text::lengthUnitsMetric},
                         .help = "surface_water#loops"}});
    add("PIParallelLoopsLabel", ControlKind::label, frame, Text::numberOfLoops);
    for (const Mode mode : modes)
        addField({.control = elementName("PIParallelLoopsText", mode),
                  .stored = &loop_.parallelLoops[mode],
                  .fallback = 1,
                  .format = "###0",
                  .beside = {.frame = frame,
                             .label = elementName("PIParallelLoopsLabel", mode),
                             .caption = {inletTemperatureTexts[mode], inletTemperatureTexts[mode]},
                             .help = "surface_water#loops",
                             .accessible = Text::numberOfLoops,
                             .distinction = inletTemperatureTexts[mode]}});
}

void LoopTab::addLoopLosses() {
    const std::string frame = "PIHeadLossFrame";
    addFrame(frame, Text::loopHeadLoss, "PILoopPipeFrame");
    for (const Mode mode : modes)
        addField({.control = elementName("PILoopHeadLossText", mode),
                  .stored = &loop_.loopHeadLoss[mode],
                  .quantity = &quantities::headLoss,
                  .highest = steepest,
                  .metricFormat = "###0.00",
                  .beside = {.frame = frame,
                             .label = elementName("PILoopHeadLossLabel", mode),
                             .caption = {inletTemperatureTexts[mode], inletTemperatureTexts[mode]},
                             .unitLabel = elementName("PILoopHeadLossUnitsLabel", mode),
                             .unit = {Text::headLossUnitsEnglish, Text::headLossUnitsMetric},
                             .help = "surface_water#losses",
                             .accessible = Text::loopHeadLoss,
                             .distinction = inletTemperatureTexts[mode]}});
}

void LoopTab::addHeaders(std::size_t kind) {
    const std::string frame = frames[kind];
    addFrame(frame, headerTexts[kind], "PIHeaderParametersFrame");
    addHeaderCount(kind, frame);
    addCombo(elementName("PIHeaderPipeSizeCombo", kind), frame,
             elementName("PIHeaderPipeSizeLabel", kind), Text::headerPipeSize,
             Text::loopPipeThreeQuarterInch, Text::headerPipeSixInch)
        .setSpokenName(text(headerTexts[kind]) + ", " + captionWords(text(Text::headerPipeSize)));
    onClick(elementName("PIHeaderPipeSizeCombo", kind),
            [this, kind] { PIHeaderPipeSizeCombo_Click(kind); });
    addHeaderLengths(kind, frame);
}

void LoopTab::addHeaderCount(std::size_t kind, const std::string& frame) {
    constexpr double largestCount = std::numeric_limits<std::int16_t>::max();
    double& count = header_.headerCount[kind];
    addField({.control = elementName("PIHeaderNumberText", kind),
              .stored = {[&count] { return count; },
                         [&count](double typed) { count = toInteger(typed); }, largestCount},
              .fallback = kind == branchHeaders ? 0.0 : 1.0,
              .format = "###0",
              .beside = {.frame = frame,
                         .label = elementName("PIHeaderNumberLabel", kind),
                         .caption = {Text::numberOfHeaders, Text::numberOfHeaders},
                         .help = "surface_water#headers",
                         .accessible = headerTexts[kind],
                         .distinction = Text::numberOfHeaders},
              // Branches can be described as soon as there are any, and are cleared on leaving.
              .changed =
                  [this] {
                      if (header_.headerCount[branchHeaders] >= 1) enableBranches();
                  },
              .left = [this, kind] { PIHeaderNumberText_Leave(kind); }});
}

void LoopTab::addHeaderLengths(std::size_t kind, const std::string& frame) {
    const std::array<int, 2> places{Text::lengthInWater, Text::lengthInSoil};
    add(elementName("PIHeaderLengthTitleLabel", kind), ControlKind::label, frame,
        Text::headerLength);
    for (std::size_t place = 0; place < places.size(); ++place) {
        const std::size_t index = 2 * kind + place;
        addField({.control = elementName("PIHeaderLengthText", index),
                  .stored = &header_.headerLength[index],
                  .quantity = &quantities::length,
                  .highest = longest,
                  .beside = {.frame = frame,
                             .label = elementName("PIHeaderLengthLabel", index),
                             .caption = {places[place], places[place]},
                             .unitLabel = elementName("PIHeaderLengthUnitsLabel", index),
                             .unit = {Text::lengthUnitsEnglish, Text::lengthUnitsMetric},
                             .help = "surface_water#headers",
                             .accessible = Text::headerLength,
                             .distinction = places[place]}});
        Control& length = control(elementName("PIHeaderLengthText", index));
        length.setSpokenName(text(headerTexts[kind]) + ", " + length.accessibleName());
    }
}

void LoopTab::addHeaderLosses() {
    const std::string frame = "PIHeaderHeadLossFrame";
    addFrame(frame, Text::headerHeadLoss, "PIHeaderParametersFrame");
    const std::array<int, 4> captions{Text::primaryCoolingLoss, Text::primaryHeatingLoss,
                                      Text::branchCoolingLoss, Text::branchHeatingLoss};
    for (std::size_t i = 0; i < captions.size(); ++i)
        addField({.control = elementName("PIHeaderHeadLossText", i),
                  .stored = &header_.headerHeadLoss[i],
                  .quantity = &quantities::headLoss,
                  .highest = steepest,
                  .metricFormat = "###0.00",
                  .beside = {.frame = frame,
                             .label = elementName("PIHeaderHeadLossLabel", i),
                             .caption = {captions[i], captions[i]},
                             .unitLabel = elementName("PIHeaderHeadLossUnitsLabel", i),
                             .unit = {Text::headLossUnitsEnglish, Text::headLossUnitsMetric},
                             .help = "surface_water#losses",
                             .accessible = Text::headerHeadLoss,
                             .distinction = captions[i]}});
}

void LoopTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    showChoices();
    enableBranches();
}

void LoopTab::chooseStyle(int style) {
    loop_.loopStyle = style;
    design().calculationNeeded();
}

void LoopTab::PILoopPipeSizeCombo_Click() {
    chooseLoopPipe(loop_, control("PILoopPipeSizeCombo").index());
    design().calculationNeeded();
}

void LoopTab::PIHeaderPipeSizeCombo_Click(std::size_t kind) {
    chooseHeaderPipe(header_, kind, control(elementName("PIHeaderPipeSizeCombo", kind)).index());
    design().calculationNeeded();
}

void LoopTab::PIHeaderNumberText_Leave(std::size_t kind) {
    const HeaderValues before = header_;
    settleHeaderCount(header_, kind);
    if (!(header_ == before)) design().calculationNeeded();
    setUnitLabels();
}

void LoopTab::showChoices() {
    control("PICoilOption").setChecked(loop_.loopStyle == 0);
    control("PISlinkyOption").setChecked(loop_.loopStyle == 1);
    control("PILoopPipeSizeCombo").setIndex(entryOf(loop_.loopPipeSize, loopSizes));
    for (const std::size_t kind : {0U, 1U})
        control(elementName("PIHeaderPipeSizeCombo", kind))
            .setIndex(entryOf(header_.headerPipeSize[kind], headerSizes));
}

void LoopTab::enableBranches() {
    const bool any = header_.headerCount[branchHeaders] >= 1;
    control(elementName("PIHeaderPipeSizeCombo", branchHeaders)).setEnabled(any);
    for (const std::size_t index : {2U, 3U}) {
        control(elementName("PIHeaderLengthText", index)).setEnabled(any);
        control(elementName("PIHeaderHeadLossText", index)).setEnabled(any);
    }
}

}  // namespace varnholt
