// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the second opinion's window.
#include "design/frmBHDesign.h"
#include "design/frmSecondOpinion.h"
#include "design/results_tab.h"
#include "design/second_opinion_texts.h"
#include "design/shared_texts.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/second_opinion.h"

namespace varnholt {
namespace {

constexpr const char* sizesFrame = "SESizesFrame";
constexpr const char* partsFrame = "SEPartsFrame";
constexpr const char* inputsFrame = "SEInputsFrame";
constexpr const char* yearFrame = "SEYearFrame";
constexpr const char* depthFrame = "SEDepthFrame";
constexpr const char* yearsTableFrame = "SETableFrame";
constexpr double noLimit = 1e308;

/// A column of the months' table.
struct MonthColumn {
    const char* field;
    int head;
    MonthsOfModes SecondOpinionInputs::*held;
    Mode mode;
};
constexpr MonthColumn monthColumns[] = {
    {"SECoolingEnergyText", Text::opinionCoolingEnergy, &SecondOpinionInputs::monthEnergy, cooling},
    {"SEHeatingEnergyText", Text::opinionHeatingEnergy, &SecondOpinionInputs::monthEnergy, heating},
    {"SECoolingPeakText", Text::opinionCoolingPeak, &SecondOpinionInputs::monthTop, cooling},
    {"SEHeatingPeakText", Text::opinionHeatingPeak, &SecondOpinionInputs::monthTop, heating},
};

}  // namespace

void frmSecondOpinion::addControls() {
    addSizes();
    addParts();
    add("SEMessageLabel", ControlKind::label).foundLate();
    add("SENoteLabel", ControlKind::label).foundLate();
    addInputs();
    addDepth();
    addNotice();
    addPictures();
    addYear();
    addTable();
}

void frmSecondOpinion::addSizeRow(const std::string& array, UnitTexts caption) {
    addUnitLabel(elementName(array, captionElement), sizesFrame, caption);
    for (const Mode mode : modes) addOutput(elementName(array, mode), sizesFrame);
}

void frmSecondOpinion::addSizes() {
    add(sizesFrame, ControlKind::frame, Text::opinionSizes);
    add("SETopLabel(0)", ControlKind::label, Text::resultsCooling).in(sizesFrame);
    add("SETopLabel(1)", ControlKind::label, Text::resultsHeating).in(sizesFrame);
    addSizeRow("SEClassicalLabel", {Text::opinionClassicalEnglish, Text::opinionClassicalMetric});
    addSizeRow("SELengthLabel", {Text::opinionTotalEnglish, Text::opinionTotalMetric});
    addSizeRow("SEClassicalDepthLabel",
               {Text::opinionClassicalEachEnglish, Text::opinionClassicalEachMetric});
    addSizeRow("SEBoreDepthLabel", {Text::opinionEachEnglish, Text::opinionEachMetric});
    addSizeRow("SEDifferenceLabel", {Text::opinionDifference, Text::opinionDifference});
    addSizeRow("SEMonthLabel", {Text::opinionMonth, Text::opinionMonth});
}

void frmSecondOpinion::addParts() {
    add(partsFrame, ControlKind::frame);
    followUnits(partsFrame, {Text::opinionPartsEnglish, Text::opinionPartsMetric});
    add("SEPartTopLabel(0)", ControlKind::label, Text::resultsCooling).in(partsFrame);
    add("SEPartTopLabel(1)", ControlKind::label, Text::resultsHeating).in(partsFrame);
    for (std::size_t part = 0; part < lengthPartTexts.size(); ++part) {
        add(elementName("SEPartLabel", part), ControlKind::label, lengthPartTexts[part])
            .in(partsFrame);
        addOutput(elementName("SECoolingPartLabel", part), partsFrame);
        addOutput(elementName("SEHeatingPartLabel", part), partsFrame);
    }
}

void frmSecondOpinion::addInputs() {
    SecondOpinionInputs& held = inputs();
    add(inputsFrame, ControlKind::frame, Text::opinionInputs);
    addField({.control = "SEBuriedDepthText",
              .stored = &held.buriedDepth,
              .quantity = &quantities::length,
              .highest = 100,
              .fallback = 4,
              .beside = {.frame = inputsFrame,
                         .label = "SEBuriedDepthLabel",
                         .caption = {Text::opinionBuriedDepth, Text::opinionBuriedDepth},
                         .unitLabel = "SEBuriedDepthUnitsLabel",
                         .unit = lengthUnit,
                         .help = "second_opinion#inputs"}});
    addField({.control = "SEPulseText",
              .stored = &held.pulseHours,
              .highest = 24,
              .fallback = 0,
              .beside = {.frame = inputsFrame,
                         .label = "SEPulseLabel",
                         .caption = {Text::opinionPulse, Text::opinionPulse},
                         .help = "second_opinion#inputs"},
              .leastBesideZero = 1});
    control("SEPulseText").setTooltip(text(Text::opinionPulseTip));
    addField({.control = "SEYearsText",
              .stored = &held.yearsShown,
              .lowest = 1,
              .highest = opinionYears.back(),
              .fallback = 20,
              .format = "###0",
              .beside = {.frame = inputsFrame,
                         .label = "SEYearsLabel",
                         .caption = {Text::opinionYears, Text::opinionYears},
                         .help = "second_opinion#inputs"}});
    add("SECylinderCheck", ControlKind::check, Text::opinionCylinder)
        .in(inputsFrame)
        .helpedBy("second_opinion#inputs");
}

void frmSecondOpinion::addDepth() {
    constexpr int captions[] = {Text::opinionDepthOfDesign, Text::opinionDepthOfOpinion,
                                Text::opinionThisDepth};
    add(depthFrame, ControlKind::frame, Text::opinionDrawnFor);
    for (std::size_t choice = 0; choice < std::size(captions); ++choice)
        add(elementName("SEDepthOption", choice), ControlKind::option, captions[choice])
            .grouped("SEDepthOption")
            .in(depthFrame)
            .helpedBy("second_opinion#pictures");
    addField({.control = "SEDepthText",
              .stored = &inputs().typedDepth,
              .quantity = &quantities::length,
              .lowest = -noLimit,
              .highest = greatestOpinionDepth,
              .fallback = 250,
              .beside = {.frame = depthFrame,
                         .unitLabel = "SEDepthUnitsLabel",
                         .unit = lengthUnit,
                         .help = "second_opinion#pictures",
                         .accessible = Text::opinionThisDepth},
              .leastWhenLeft = leastOpinionDepth,
              .changed = [this] { typedDepth(); }});
    add("SEYearOfMonthsLabel", ControlKind::label, Text::opinionMonthsOf).in(depthFrame);
    add("SEYearUpDown", ControlKind::upDown)
        .in(depthFrame)
        .captionedBy("SEYearOfMonthsLabel")
        .helpedBy("second_opinion#pictures");
    addOutput("SEYearShownLabel", depthFrame);
}

void frmSecondOpinion::addPictures() {
    add("imgHistory", ControlKind::image, Text::opinionHistory).foundLate();
    add("imgMonths", ControlKind::image, Text::opinionMonths).foundLate();
    add("imgGFunction", ControlKind::image, Text::opinionGFunction).foundLate();
}

void frmSecondOpinion::addYear() {
    add(yearFrame, ControlKind::frame, Text::opinionYear);
    add("SEShapeLabel", ControlKind::label, Text::opinionShape).in(yearFrame);
    add("SEShapeCombo", ControlKind::combo)
        .in(yearFrame)
        .captionedBy("SEShapeLabel")
        .helpedBy("second_opinion#year")
        .setItems(
            {text(Text::opinionStandard), text(Text::opinionImporter), text(Text::opinionTyped)});
    add("SESouthCheck", ControlKind::check, Text::opinionSouth)
        .in(yearFrame)
        .helpedBy("second_opinion#year");
    std::size_t column = 0;
    for (const MonthColumn& of : monthColumns)
        add(elementName("SEMonthHeadLabel", column++), ControlKind::label, of.head).in(yearFrame);
    for (std::size_t month = 0; month < opinionMonthsOfYear; ++month) addMonth(month);
    for (const auto& [name, caption] : {std::pair{"SEPasteCommand", Text::opinionPaste},
                                        std::pair{"SECopyCommand", Text::opinionCopy}})
        add(name, ControlKind::button, caption).in(yearFrame).helpedBy("second_opinion#year");
}

void frmSecondOpinion::addMonth(std::size_t month) {
    const std::string label = elementName("SEMonthNameLabel", month);
    add(label, ControlKind::label)
        .in(yearFrame)
        .setCaption(monthName(texts(), static_cast<int>(month)));
    for (const MonthColumn& column : monthColumns)
        addField({.control = elementName(column.field, month),
                  .stored = &(inputs().*column.held)[month][column.mode],
                  .beside = {.frame = yearFrame,
                             .label = label,
                             .help = "second_opinion#year",
                             .distinction = column.head},
                  .changed = [this] { typedMonth(); }});
}

void frmSecondOpinion::addTable() {
    constexpr UnitTexts heads[] = {{Text::opinionYearHead, Text::opinionYearHead},
                                   {Text::opinionPenaltyEnglish, Text::opinionPenaltyMetric},
                                   {Text::opinionHighEnglish, Text::opinionHighMetric},
                                   {Text::opinionLowEnglish, Text::opinionLowMetric}};
    add(yearsTableFrame, ControlKind::frame, Text::opinionTable);
    for (std::size_t i = 0; i < std::size(heads); ++i)
        addUnitLabel(elementName("SEHeadLabel", i), yearsTableFrame, heads[i]);
    for (std::size_t line = 0; line < opinionYears.size(); ++line)
        for (const char* column : {"SEYearLabel", "SEPenaltyLabel", "SEHighLabel", "SELowLabel"})
            addOutput(elementName(column, line), yearsTableFrame);
    addUnitLabel("SEClassicalPenaltyLabel(2)", yearsTableFrame,
                 {Text::opinionClassicalPenaltyEnglish, Text::opinionClassicalPenaltyMetric});
    for (const Mode mode : modes)
        addOutput(elementName("SEClassicalPenaltyLabel", mode), yearsTableFrame);
}

}  // namespace varnholt
