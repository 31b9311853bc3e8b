// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/header_soil_tab.h"

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "design/surface_water_rules.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/surface_water.h"

namespace varnholt {
namespace {

constexpr int soilTypes = 3;

}  // namespace

HeaderSoilTab::HeaderSoilTab(GroundDesign& design, HeaderSoilValues& soil)
    : SoilTab(design), soil_(soil) {
    addFrame("SOSoilFrame", Text::soilTemperaturesAndProperties);
    const auto follow = [this] { correct(); };
    addGroundTemp(soil.groundTemp, follow);
    addHeaders();
    addSwing(soil.airTempSwing, soil.extremeDay, follow, "surface_water#swing");
    addUnitLabel("SOCorrectedTempLabel", "SOCorrectionFrame",
                 {Text::correctedTemperatureEnglish, Text::correctedTemperatureMetric});
    for (const Mode mode : modes)
        add(elementName("SOCorrectedTempText", mode), ControlKind::text, "SOCorrectionFrame")
            .captionedBy("SOCorrectedTempLabel")
            .unitsIn("SOSwingdegCLabel")
            .helpedBy("surface_water#soil")
            .setLocked(true);
    add("imgGroundTemp", ControlKind::image, "SOCorrectionFrame");
}

void HeaderSoilTab::addHeaders() {
    const std::string frame = "SOHeaderFrame";
    addFrame(frame, Text::headersInSoil, "SOSoilFrame");
    addCombo("SOSoilTypeCombo", frame, "SOSoilTypeLabel", Text::soilType, Text::drySoil,
             Text::wetSoil);
    onClick("SOSoilTypeCombo", [this] { SOSoilTypeCombo_Click(); });
    addField({.control = "SOHeaderDepthText",
              .stored = &soil_.headerDepth,
              .quantity = &quantities::length,
              .highest = 1000.0,
              .fallback = HeaderSoilValues().headerDepth,
              .beside = {.frame = frame,
                         .label = "SOHeaderDepthLabel",
                         .caption = {Text::headerDepth, Text::headerDepth},
                         .unitLabel = "SOHeaderDepthUnitsLabel",
                         .unit = {Text::lengthUnitsEnglish, Text::lengthUnitsMetric},
                         .help = "surface_water#soil"},
              .changed = [this] { correct(); }});
}

void HeaderSoilTab::setUnitLabels() {
    SoilTab::setUnitLabels();
    control("SOSoilTypeCombo").setIndex(entryOf(soil_.soilType, soilTypes));
    showCorrected();
}

void HeaderSoilTab::SOSoilTypeCombo_Click() {
    chooseSoilType(soil_, control("SOSoilTypeCombo").index());
    correct();
    design().calculationNeeded();
}

void HeaderSoilTab::correct() {
    try {
        soil_.groundTempAtDepth = correctGroundTemp(soil_);
    } catch (const RunTimeError&) {
        // A depth beyond all figures: the mean stands, and the run says what is wrong.
        soil_.groundTempAtDepth = {soil_.groundTemp, soil_.groundTemp};
    }
    showCorrected();
}

void HeaderSoilTab::showCorrected() {
    for (const Mode mode : modes)
        control(elementName("SOCorrectedTempText", mode))
            .setText(formatNumber(
                quantities::temperature.shown(soil_.groundTempAtDepth[mode], design().units()),
                "###0.0"))
            .setAccessibleName(control("SOCorrectedTempLabel").caption() + ", " +
                               text(mode == cooling ? Text::chartCooling : Text::chartHeating));
}

}  // namespace varnholt
