// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/trench_tab.h"

#include <algorithm>
#include <array>
#include <utility>

#include "basis/number_text.h"
#include "design/ground_design.h"
#include "design/modCalculations/trench_limits.h"
#include "design/shared_texts.h"
#include "design/trench_rules.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/horizontal.h"

namespace varnholt {
namespace {

using namespace modCalculations;

constexpr int arrangements = 5;
constexpr int dimensionGrey = 0x7F7F7F;
constexpr std::size_t depthField = 1;
constexpr std::size_t widthField = 2;
constexpr std::size_t pitchField = 0;
constexpr std::size_t verticalField = 1;
constexpr std::size_t horizontalField = 2;
constexpr double enteredPitch = 20;
constexpr double leastEnteredPitch = 18;
constexpr double usualStep = 12;
constexpr double usualDiameter = 36;
constexpr std::array<double, 3> trenchFallbacks{6, 6, 8};
constexpr UnitTexts widthUnits{Text::widthUnitsEnglish, Text::widthUnitsMetric};

}  // namespace

TrenchTab::TrenchTab(GroundDesign& design, TrenchValues& trench,
                     HorizontalArrangementValues& arrangement, std::function<void()> deepened)
    : DesignTab(design),
      trench_(trench),
      arrangement_(arrangement),
      deepened_(std::move(deepened)) {
    addFrame("PAFieldFrame", Text::groundFieldArrangement);
    addTrenches();
    addFrame("PAInTrenchFrame", Text::pipeConfigurationInTrench, "PAFieldFrame");
    addArrangements();
    addPipes();
    addTime();
    addPictures();
}

void TrenchTab::addTrenches() {
    addFrame("PATrenchFrame", Text::trenchLayout, "PAFieldFrame");
    addTrenchCount();
    for (std::size_t i = 0; i < trench_.trenchGeometry.size(); ++i) addTrenchField(i);
}

/// One number with a field to type it into and an up-down beside it.
void TrenchTab::addTrenchCount() {
    addField({.control = "PASeparationText(3)",
              .stored = {[this] { return trench_.trenchCount; },
                         [this](double count) { takeTrenches(count, trench_); }, mostTrenches},
              .lowest = 1,
              .highest = mostTrenches,
              .fallback = 1,
              .format = "###0",
              .beside = {.frame = "PATrenchFrame",
                         .label = "PASeparationLabel(3)",
                         .caption = {Text::trenchNumber, Text::trenchNumber},
                         .help = "horizontal#trenches"},
              .ifAbove = mostTrenches,
              .changed = [this] { showCounts(); },
              .left = [this] { applyLimits(); }})
        .steppedBy("PAConfigurationUpDown(0)");
    add("PAConfigurationUpDown(0)", ControlKind::upDown, "PATrenchFrame")
        .setRange(1, mostTrenches)
        .captionedBy("PASeparationLabel(3)")
        .helpedBy("horizontal#trenches");
    onSlide("PAConfigurationUpDown(0)", [this] { PAConfigurationUpDown_Change(0); });
}

void TrenchTab::addTrenchField(std::size_t index) {
    static constexpr std::array<int, 3> captions{Text::trenchSeparation, Text::trenchDepth,
                                                 Text::trenchWidth};
    const bool isWidth = index == widthField;
    addField({.control = elementName("PASeparationText", index),
              .stored = &trench_.trenchGeometry[index],
              .quantity = isWidth ? &quantities::width : &quantities::length,
              .highest = 1000.0,
              .fallback = trenchFallbacks[index],
              .metricFormat = isWidth ? "###0" : "###0.0",
              .beside = {.frame = "PATrenchFrame",
                         .label = elementName("PASeparationLabel", index),
                         .caption = {captions[index], captions[index]},
                         .unitLabel = elementName("PASeparationUnitsLabel", index),
                         .unit = isWidth ? widthUnits : lengthUnit,
                         .help = "horizontal#trenches"},
              .changed = index == depthField ? deepened_ : std::function<void()>(),
              .left = [this, index] { PASeparationText_Leave(index); }});
}

void TrenchTab::addArrangements() {
    static constexpr std::array<int, arrangements> captions{
        Text::oneColumnOfPipes, Text::twoColumnsOfPipes, Text::threeColumnsOfPipes,
        Text::slinkyLyingFlat, Text::slinkyOnEdge};
    for (std::int16_t i = 0; i < arrangements; ++i) {
        const auto element = static_cast<std::size_t>(i);
        const std::string name = elementName("PAConfigurationOption", element);
        add(name, ControlKind::option, "PAInTrenchFrame", captions[element])
            .grouped("PAConfigurationOption")
            .repeatingClicks()
            .helpedBy("horizontal#arrangements");
        onClick(name, [this, i] { PAConfigurationOption_Click(i); });
    }
}

void TrenchTab::addPipes() {
    addPipeField(pitchField, &arrangement_.coilGeometry[0], enteredPitch,
                 [this] { applyLimits(); });
    addPipeCount();
    addPipeField(
        verticalField,
        {[this] {
             return coilIsChosen() ? arrangement_.coilGeometry[1] : arrangement_.pipeSeparation[0];
         },
         [this](double typed) {
             (coilIsChosen() ? arrangement_.coilGeometry[1] : arrangement_.pipeSeparation[0]) =
                 typed;
         }},
        usualStep, [this] { leaveVerticalStep(); });
    addPipeField(horizontalField, &arrangement_.pipeSeparation[1], usualStep,
                 [this] { leaveHorizontalStep(); });
    add("PAOffsetCheck", ControlKind::check, "PAInTrenchFrame", Text::offsetRows)
        .helpedBy("horizontal#offset");
    onClick("PAOffsetCheck", [this] { PAOffsetCheck_Click(); });
}

/// The count stands as a label: it goes by whole rows.
void TrenchTab::addPipeCount() {
    add("PAInTrenchConfigurationLabel(3)", ControlKind::label, "PAInTrenchFrame");
    add("PAConfigurationUpDown(1)", ControlKind::upDown, "PAInTrenchFrame")
        .helpedBy("horizontal#pipes");
    onSlide("PAConfigurationUpDown(1)", [this] { PAConfigurationUpDown_Change(1); });
}

void TrenchTab::addPipeField(std::size_t index, StoredNumber stored, double fallback,
                             std::function<void()> left) {
    NumericFieldRow row{
        .control = elementName("PAInTrenchConfigurationText", index),
        .stored = std::move(stored),
        .quantity = &quantities::width,
        .fallback = fallback,
        .metricFormat = "###0",
        .beside = {.frame = "PAInTrenchFrame",
                   .label = elementName("PAInTrenchConfigurationLabel", index),
                   .unitLabel = elementName("PAInTrenchConfigurationUnitsLabel", index),
                   .unit = widthUnits,
                   .help = index == pitchField ? "horizontal#slinkies" : "horizontal#pipes"},
        .left = std::move(left)};
    if (index == pitchField) row.ifBelow = leastEnteredPitch;
    if (index == verticalField)
        row.fallbackNow = [this] { return coilIsChosen() ? usualDiameter : usualStep; };
    addField(std::move(row));
}

void TrenchTab::addTime() {
    addFrame("PATimeFrame", Text::modelingTimePeriod, "PAFieldFrame");
    addField({.control = "PATimeText",
              .stored = &arrangement_.predictionYears,
              .highest = 100,
              .fallback = 10,
              .beside = {.frame = "PATimeFrame",
                         .label = "PATimeLabel",
                         .caption = {Text::predictionTime, Text::predictionTime},
                         .unitLabel = "PATimeUnitsLabel",
                         .unit = {Text::predictionTimeUnits, Text::predictionTimeUnits},
                         .help = "horizontal#time"}});
}

/// The trench in a cut across it, and the field from above.
void TrenchTab::addPictures() {
    for (const std::size_t i : {0U, 1U, 2U})
        add(elementName("PADiagramPicture", i), ControlKind::image, "PAFieldFrame");
    for (const std::size_t i : {0U, 1U, 2U, 3U, 4U})
        add(elementName("imgConfiguration", i), ControlKind::image, "PAFieldFrame");
}

void TrenchTab::setLabels() {
    DesignTab::setLabels();
    showCaptions();
}

void TrenchTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    showArrangement();
}

void TrenchTab::PAConfigurationOption_Click(std::int16_t index) {
    selectArrangement(index, trench_, arrangement_);
    design().fields().show(elementName("PASeparationText", widthField));
    showArrangement();
    design().calculationNeeded();
}

void TrenchTab::PAConfigurationUpDown_Change(std::size_t index) {
    const double count = control(elementName("PAConfigurationUpDown", index)).value();
    if (index == 0)
        takeTrenches(count, trench_);
    else
        takePipes(count, arrangement_);
    design().fields().show("PASeparationText(3)");
    showArrangement();
    applyLimits();
    design().calculationNeeded();
}

void TrenchTab::PAOffsetCheck_Click() {
    arrangement_.offsetRows = control("PAOffsetCheck").checked() ? 1 : 0;
    showArrangement();
    applyWidthLimit();
    design().calculationNeeded();
}

void TrenchTab::PASeparationText_Leave(std::size_t index) {
    double& value = trench_.trenchGeometry[index];
    if (value == 0) {
        value = trenchFallbacks[index];
        design().fields().show(elementName("PASeparationText", index));
        if (index == depthField) deepened_();
        design().calculationNeeded();
    }
    applyLimits();
}

/// A diameter of 0 stays as typed; a step between pipes does not.
void TrenchTab::leaveVerticalStep() {
    if (!coilIsChosen() && arrangement_.pipeSeparation[0] == 0) {
        arrangement_.pipeSeparation[0] = usualStep;
        design().fields().show(elementName("PAInTrenchConfigurationText", verticalField));
        design().calculationNeeded();
    }
    applyLimits();
}

void TrenchTab::leaveHorizontalStep() {
    if (arrangement_.pipeSeparation[1] == 0) {
        arrangement_.pipeSeparation[1] = usualStep;
        design().fields().show(elementName("PAInTrenchConfigurationText", horizontalField));
        design().calculationNeeded();
    }
    applyLimits();
}

void TrenchTab::applyLimits() {
    if (!isKnown()) return;
    if (deepenTrench(trench_, arrangement_)) {
        tell(MessageIcon::exclamation, text(Text::trenchDeepened));
        design().fields().show(elementName("PASeparationText", depthField));
        deepened_();
        design().calculationNeeded();
    }
    applyWidthLimit();
    if (coilIsChosen()) holdPitch();
}

void TrenchTab::applyWidthLimit() {
    if (!isKnown() || !widenTrench(trench_, arrangement_)) return;
    tell(MessageIcon::exclamation, text(Text::trenchWidened));
    design().fields().show(elementName("PASeparationText", widthField));
    design().calculationNeeded();
}

void TrenchTab::holdPitch() {
    double& pitch = arrangement_.coilGeometry[0];
    const double held = pitchWithinLimits(pitch);
    if (std::exchange(pitch, held) == held) return;
    design().fields().show(elementName("PAInTrenchConfigurationText", pitchField));
    design().calculationNeeded();
}

/// A file may hold an arrangement that is none.
bool TrenchTab::isKnown() const {
    return entryOf(arrangement_.trenchConfiguration, arrangements) >= 0;
}

bool TrenchTab::coilIsChosen() const { return isCoil(arrangement_.trenchConfiguration); }

void TrenchTab::showArrangement() {
    const int chosen = entryOf(arrangement_.trenchConfiguration, arrangements);
    for (int i = 0; i < arrangements; ++i)
        control(elementName("PAConfigurationOption", static_cast<std::size_t>(i)))
            .setChecked(i == chosen);
    showCaptions();
    showFields();
    showCounts();
    showPictures();
}

/// The dimensions are called by the language's word and by the letter that they have in the
/// picture.
void TrenchTab::showCaptions() {
    const bool coil = coilIsChosen();
    const std::array<std::string, 3> captions{
        text(coil ? Text::coilPitch : Text::totalNumberOfPipes) + (coil ? " [P]:" : ":"),
        text(coil ? Text::coilDiameter : Text::verticalSeparation) + (coil ? " [D]:" : " [Y]:"),
        text(Text::horizontalSeparation) + " [X]:"};
    for (std::size_t i = 0; i < captions.size(); ++i)
        control(elementName("PAInTrenchConfigurationLabel", i)).setCaption(captions[i]);
    design().fields().showCaptions();
    control("PAConfigurationUpDown(1)").setAccessibleName(text(Text::totalNumberOfPipes));
}

void TrenchTab::showFields() {
    const bool coil = coilIsChosen();
    const TrenchLayout layout = layoutOf(trench_, arrangement_);
    for (const std::size_t i : {pitchField, verticalField, horizontalField})
        design().fields().show(elementName("PAInTrenchConfigurationText", i));
    control(elementName("PAInTrenchConfigurationText", pitchField)).setVisible(coil);
    control(elementName("PAInTrenchConfigurationUnitsLabel", pitchField)).setVisible(coil);
    showDimension(horizontalField, !coil);
    enableDimension(verticalField, coil || (isKnown() && usesRowStep(layout)));
    enableDimension(horizontalField, isKnown() && usesColumnStep(layout));
    control("PAOffsetCheck")
        .setVisible(!coil)
        .setEnabled(isKnown() && offsetIsOffered(layout))
        .setChecked(arrangement_.offsetRows == 1);
}

void TrenchTab::showCounts() {
    // A file may hold counts that no up-down reaches.
    const double trenches = std::clamp(trench_.trenchCount, 1.0, mostTrenches);
    control("PAConfigurationUpDown(0)").setValue(trenches);
    const bool coil = coilIsChosen();
    const int columns = isKnown() ? columnsOf(arrangement_.trenchConfiguration) : 1;
    control("PAConfigurationUpDown(1)")
        .setRange(columns, mostPipesPerTrench)
        .setStep(columns)
        .setValue(std::clamp(arrangement_.pipesPerTrench, double(columns), mostPipesPerTrench))
        .setEnabled(isKnown() && !coil);
    control("PAInTrenchConfigurationLabel(3)")
        .setCaption(formatNumber(arrangement_.pipesPerTrench, "###0"))
        .setVisible(!coil);
}

void TrenchTab::showPictures() {
    const bool coil = coilIsChosen();
    const bool offset = arrangement_.offsetRows == 1;
    control("PADiagramPicture(0)").setVisible(coil);
    control("PADiagramPicture(1)").setVisible(!coil && !offset);
    control("PADiagramPicture(2)").setVisible(!coil && offset);
    for (int i = 0; i < arrangements; ++i)
        control(elementName("imgConfiguration", static_cast<std::size_t>(i)))
            .setVisible(i == arrangement_.trenchConfiguration);
}

void TrenchTab::enableDimension(std::size_t index, bool enabled) {
    const int colour = enabled ? colours::black : dimensionGrey;
    control(elementName("PAInTrenchConfigurationText", index)).setEnabled(enabled);
    control(elementName("PAInTrenchConfigurationLabel", index)).setForecolor(colour);
    control(elementName("PAInTrenchConfigurationUnitsLabel", index)).setForecolor(colour);
}

void TrenchTab::showDimension(std::size_t index, bool shown) {
    control(elementName("PAInTrenchConfigurationLabel", index)).setVisible(shown);
    control(elementName("PAInTrenchConfigurationText", index)).setVisible(shown);
    control(elementName("PAInTrenchConfigurationUnitsLabel", index)).setVisible(shown);
}

}  // namespace varnholt
