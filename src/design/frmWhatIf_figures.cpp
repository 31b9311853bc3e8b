// SPDX-License-Identifier: GPL-3.0-or-later
// What stands on every page of What If, and what its fields have in common.
#include <algorithm>

#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "design/whatIf/what_if_values.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

constexpr const char* measureFrame = "WIMeasureFrame";
constexpr const char* topFrame = "WINeedFrame";

/// "WIDepthText" is captioned by "WIDepthLabel", "WILowText(3)" by "WILowLabel(3)".
std::string labelOf(std::string field) {
    constexpr std::string_view word = "Text";
    return field.replace(field.rfind(word), word.size(), "Label");
}

std::string unitLabelOf(std::string field) {
    constexpr std::string_view word = "Text";
    return field.replace(field.rfind(word), word.size(), "UnitsLabel");
}

}  // namespace

void frmWhatIf::addControls() {
    addTop();
    addNotice();
    add("WIMessageLabel", ControlKind::label).foundLate();
    add("WINoteLabel", ControlKind::label).foundLate();
    add("WIStateLabel", ControlKind::label).foundLate();
    std::vector<std::string> pages;
    for (const int number :
         {Text::whatIfDecidesPage, Text::whatIfSurePage, Text::whatIfLayoutPage,
          Text::whatIfCostPage, Text::whatIfAlternativesPage, Text::whatIfTowerPage})
        pages.push_back(text(number));
    add("WITabs", ControlKind::tabs).setItems(std::move(pages)).setIndex(0);
    pageEnds_ = {controls().size()};
    for (void (frmWhatIf::*addPage)() :
         {&frmWhatIf::addDecides, &frmWhatIf::addSure, &frmWhatIf::addLayout, &frmWhatIf::addCost,
          &frmWhatIf::addAlternatives, &frmWhatIf::addTower}) {
        (this->*addPage)();
        pageEnds_.push_back(controls().size());
    }
}

void frmWhatIf::addTop() {
    add(topFrame, ControlKind::frame, Text::whatIfNeed);
    add("WITopLabel(0)", ControlKind::label, Text::resultsCooling).in(topFrame);
    add("WITopLabel(1)", ControlKind::label, Text::resultsHeating).in(topFrame);
    addUnitLabel("WINeedLabel(2)", topFrame, {Text::whatIfNeedEnglish, Text::whatIfNeedMetric});
    for (const Mode mode : modes) addOutput(elementName("WINeedLabel", mode), topFrame);
    add("WIGoverningCaptionLabel", ControlKind::label, Text::whatIfGoverning).in(topFrame);
    addOutput("WIGoverningLabel", topFrame);
    add("WIBoreCaptionLabel", ControlKind::label, Text::whatIfEachBore).in(topFrame);
    addOutput("WIBoreLabel", topFrame);
    add(measureFrame, ControlKind::frame, Text::whatIfMeasure);
    addOption("WIMeasureOption", classicalMethod, Text::whatIfClassical, measureFrame, "method");
    addOption("WIMeasureOption", byGFunctions, Text::whatIfByGFunctions, measureFrame, "method");
    for (const WhatIfMeasure measure : {classicalMethod, byGFunctions})
        onClick(elementName("WIMeasureOption", static_cast<std::size_t>(measure)),
                [this, measure] { inputs().measure = measure; });
}

void frmWhatIf::addOption(const std::string& array, std::size_t index, int caption,
                          const std::string& frame, const std::string& help) {
    add(elementName(array, index), ControlKind::option, caption)
        .grouped(array)
        .in(frame)
        .helpedBy("what_if#" + help);
}

/// A value above the limit or below 0 is refused as it is typed, one below a limit above 0 when the
/// field is left: "3" may become "300".
void frmWhatIf::addNumber(const NumberField& field, const std::string& help) {
    const auto& all = whatIfNumbers();
    const auto number = std::find_if(all.begin(), all.end(), [&](const WhatIfNumber& each) {
        return each.name == field.stored;
    });
    NumericFieldRow row{.control = field.control, .stored = &number->in(inputs())};
    row.quantity = field.quantity;
    row.lowest = std::min(number->least, 0.0);
    row.highest = number->most;
    row.fallback = number->in(WhatIfInputs{});
    row.format = field.format;
    row.beside = {.frame = field.frame,
                  .label = field.label.empty() ? labelOf(field.control) : field.label,
                  .caption = field.caption,
                  .unitLabel = field.unit.english == 0 ? "" : unitLabelOf(field.control),
                  .unit = field.unit,
                  .help = "what_if#" + help,
                  .distinction = field.distinction};
    if (number->least > 0) row.leastWhenLeft = number->least;
    row.changed = field.changed;
    addField(std::move(row));
}

void frmWhatIf::showInputs() {
    fields().showAll();
    const auto check = [this](const char* array, std::size_t count, std::int16_t chosen) {
        for (std::size_t i = 0; i < count; ++i)
            control(elementName(array, i)).setChecked(static_cast<std::size_t>(chosen) == i);
    };
    check("WIMeasureOption", 2, inputs().measure);
    check("WIGroundOption", 3, inputs().knowledge);
    check("WLKindOption", 2, inputs().layout.layoutKind);
    control("WCCurrencyText").setText(inputs().currency);
    control("WCDateText").setText(inputs().pricesOf);
    showCorners();
    showAlternativeCommands();
}

void frmWhatIf::write(const std::string& label, const std::string& caption) {
    control(label).setCaption(caption);
}

void frmWhatIf::showFigures() {
    showTop();
    showDecides();
    showSure();
    showLayout();
    showCost();
    showAlternatives();
    showTower();
}

void frmWhatIf::showTop() {
    const WhatIf& found = known();
    for (const Mode mode : modes) {
        const double length = found.needLength[mode];
        const std::string shown = formatNumber(quantities::length.shown(length, units()), "###0.0");
        write(elementName("WINeedLabel", mode), length > 0 ? shown : "-");
        control(elementName("WINeedLabel", mode))
            .setForecolor(found.governing && mode != *found.governing ? colours::greyed
                                                                      : colours::black);
    }
    const int governing = found.governing == cooling ? Text::cooling : Text::heating;
    write("WIGoverningLabel", found.governing ? text(governing) : "-");
    write("WIBoreLabel", teller().depth(found.boreDepth));
    write("WIMessageLabel", whatIfMessage(teller(), found));
    write("WINoteLabel", whatIfNote(teller(), found, inputs()));
    write("WIStateLabel", late_.isFinal() ? std::string() : text(Text::whatIfWorking));
}

}  // namespace varnholt
