// SPDX-License-Identifier: GPL-3.0-or-later
// The page that tells how sure the length is.
#include "design/frmWhatIf.h"
#include "design/shared_texts.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

constexpr const char* drawnFrame = "WIDrawnFrame";
constexpr const char* depthsFrame = "WIDepthsFrame";
constexpr const char* sureHelp = "sure";
constexpr std::size_t depthsCaption = 3;

}  // namespace

void frmWhatIf::addSure() {
    addOutput("WIQuestionLabel");
    add(drawnFrame, ControlKind::frame, Text::whatIfAsked);
    addNumber({"WIDepthText",
               "drawnDepth",
               drawnFrame,
               {Text::whatIfDrawn, Text::whatIfDrawn},
               "###0.0",
               &quantities::length,
               lengthUnit},
              sureHelp);
    control("WIDepthText").setTooltip(text(Text::whatIfDrawnTip));
    addNumber({"WIConfidenceText",
               "confidence",
               drawnFrame,
               {Text::whatIfConfidence, Text::whatIfConfidence},
               "##0"},
              sureHelp);
    add(depthsFrame, ControlKind::frame, Text::whatIfDepths);
    add("WIDepthsHeadLabel(0)", ControlKind::label, Text::whatIfOneInTen).in(depthsFrame);
    add("WIDepthsHeadLabel(1)", ControlKind::label, Text::whatIfFiveInTen).in(depthsFrame);
    add("WIDepthsHeadLabel(2)", ControlKind::label, Text::whatIfNineInTen).in(depthsFrame);
    const auto row = [this](const char* array, UnitTexts caption) {
        addUnitLabel(elementName(array, depthsCaption), depthsFrame, caption);
        for (std::size_t i = 0; i < depthsCaption; ++i)
            addOutput(elementName(array, i), depthsFrame);
    };
    row("WIDepthsLabel", {Text::whatIfDepthsRow, Text::whatIfDepthsRow});
    row("WICoolingWaterLabel", {Text::whatIfCoolingWater, Text::whatIfCoolingWater});
    row("WIHeatingWaterLabel", {Text::whatIfHeatingWater, Text::whatIfHeatingWater});
    addOutput("WISamplingLabel", depthsFrame);
    addOutput("WITestLabel");
    add("WISafetyLabel", ControlKind::label, Text::whatIfSafety);
    add("imgSure", ControlKind::image, Text::whatIfSure).foundLate();
}

void frmWhatIf::showSure() {
    const WhatIf& found = known();
    write("WIQuestionLabel", holdsQuestion(teller(), found, inputs()));
    const double bores = found.bores;
    const auto depth = [&](double need) {
        return teller().depthAtLeast(bores > 0 ? need / bores : 0,
                                     bores > 0 ? found.needError / bores : 0);
    };
    const double needs[] = {found.needP10, found.needP50, found.needP90};
    const ByMode<double> water[] = {found.enteringP10, found.enteringP50, found.enteringP90};
    const bool there = found.sampleCount > 0 && found.drawnDepth > 0 && !found.reason.holds();
    for (std::size_t i = 0; i < depthsCaption; ++i) {
        write(elementName("WIDepthsLabel", i), depth(needs[i]));
        const auto temperature = [&](Mode mode) {
            return there && found.needLength[mode] > 0 ? teller().temperature(water[i][mode]) : "-";
        };
        write(elementName("WICoolingWaterLabel", i), temperature(cooling));
        write(elementName("WIHeatingWaterLabel", i), temperature(heating));
    }
    write("WISamplingLabel", samplingSentence(teller(), found));
    write("WITestLabel", testSentence(teller(), found, inputs()));
}

}  // namespace varnholt
