// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/tower_panel.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "basis/number_text.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "design/modCalculations/cooling_tower.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {

using modCalculations::CoolingTower;

namespace {

constexpr std::size_t capacity = 0;
constexpr std::size_t flow = 1;
constexpr std::size_t range = 2;

// Up-downs without a limit of their own end where no tower reaches.
constexpr double largestFlow = 30000.0;
constexpr double largestRange = 100;

}  // namespace

const TowerPanel::Figure TowerPanel::figures[4] = {
    {"CACondenserCapacityLabel",
     "CACondenserCapacityUpDown",
     {Text::condenserCapacityEnglish, Text::condenserCapacityMetric},
     &quantities::load,
     &CoolingTower::capacity,
     "###0.0"},
    {"CACoolingTowerFlowRateLabel",
     "CACoolingTowerFlowRateUpDown",
     {Text::towerFlowRateEnglish, Text::towerFlowRateMetric},
     &quantities::waterFlow,
     &CoolingTower::flow,
     "###0.0"},
    {"CACoolingTowerRangeLabel",
     "CACoolingRangeUpDown",
     {Text::coolingRangeEnglish, Text::coolingRangeMetric},
     &quantities::temperatureDifference,
     &CoolingTower::range,
     "###0.0"},
    {"CACoolingTowerHoursLabel",
     nullptr,
     {Text::towerOperatingHours, Text::towerOperatingHours},
     &quantities::plain,
     &CoolingTower::hours,
     "####0"},
};

TowerPanel::TowerPanel(GroundDesign& design, TowerValues& values,
                       std::function<modCalculations::TowerYear()> year)
    : DesignTab(design), values_(values), year_(std::move(year)) {
    const std::string frame = "CAHybridFrame";
    addFrame(frame, Text::optionalCoolingTower);
    add("CAPercentHybridLabel(1)", ControlKind::label, frame, Text::loadBalance);
    add("CAHybridSlider", ControlKind::slider, frame)
        .captionedBy("CAPercentHybridLabel(1)")
        .helpedBy("tower")
        .setRange(0, 100)
        .setEnabled(false);
    onSlide("CAHybridSlider", [this] { CAHybridSlider_Change(); });
    add("CAPercentHybridLabel(0)", ControlKind::label, frame);
    for (const Figure& figure : figures) addFigure(figure);
    onSlide("CACondenserCapacityUpDown", [this] { CACondenserCapacityUpDown_Change(); });
    onSlide("CACoolingTowerFlowRateUpDown", [this] { CACoolingTowerFlowRateUpDown_Change(); });
    onSlide("CACoolingRangeUpDown", [this] { CACoolingRangeUpDown_Change(); });
    paint(colours::greyed);
}

void TowerPanel::addFigure(const Figure& figure) {
    addUnitLabel(elementName(figure.label, 1), "CAHybridFrame", figure.caption);
    add(elementName(figure.label, 0), ControlKind::label, "CAHybridFrame");
    if (figure.upDown != nullptr)
        add(figure.upDown, ControlKind::upDown, "CAHybridFrame")
            .captionedBy(elementName(figure.label, 1));
}

void TowerPanel::setUnitLabels() {
    DesignTab::setUnitLabels();
    showFigures();
}

void TowerPanel::showFigures() {
    showPercent();
    showTower();
}

void TowerPanel::CAHybridSlider_Change() {
    GroundDesign& design = this->design();
    if (design.settingUnits) return;
    Control& slider = control("CAHybridSlider");
    if (design.hybridOn) {
        slider.setValue(values_.hybridPercent);
        return;
    }
    values_.hybridPercent = toInteger(slider.value());
    showPercent();
    const RaisedFlag sliding(design.hybridOn);
    design.CACalculateCommand_Click();
}

void TowerPanel::trim(const Figure& figure, const std::function<CoolingTower(double)>& trimmed) {
    Control& label = control(elementName(figure.label, 0));
    label.setCaption(formatNumber(control(figure.upDown).value(), figure.format));
    const double value = figure.quantity->stored(leadingNumber(label.caption()), design().units());
    try {
        values_.tower = trimmed(value);
    } catch (const RunTimeError&) {
        showTower();
        throw;
    }
    showTower();
}

void TowerPanel::CACondenserCapacityUpDown_Change() {
    trim(figures[capacity], [this](double value) {
        return modCalculations::trimCapacity(values_.tower, value, year_(),
                                             design().fluid().fluid());
    });
}

void TowerPanel::CACoolingTowerFlowRateUpDown_Change() {
    trim(figures[flow], [this](double value) {
        return modCalculations::trimFlow(values_.tower, value, design().fluid().fluid());
    });
}

void TowerPanel::CACoolingRangeUpDown_Change() {
    trim(figures[range], [this](double value) {
        return modCalculations::trimRange(values_.tower, value, design().fluid().fluid());
    });
}

void TowerPanel::showPercent() {
    control("CAHybridSlider").setValue(values_.hybridPercent);
    control("CAPercentHybridLabel(0)")
        .setCaption(formatNumber(values_.hybridPercent, "###0") + " " +
                    text(Text::loadBalanceUnits));
}

void TowerPanel::showTower() {
    const double highest[] = {values_.tower.capacityMax, largestFlow, largestRange, 0};
    for (std::size_t i = 0; i < std::size(figures); ++i) showFigure(figures[i], highest[i]);
}

/// The limits of an up-down stand in the units shown, and give way to a value beyond them.
void TowerPanel::showFigure(const Figure& figure, double highest) {
    const UnitSystem units = design().units();
    Control& label = control(elementName(figure.label, 0));
    label.setCaption(
        formatNumber(figure.quantity->shown(values_.tower.*figure.value, units), figure.format));
    if (figure.upDown == nullptr) return;
    const double value = leadingNumber(label.caption());
    control(figure.upDown)
        .setRange(std::min(0.0, value), std::max(figure.quantity->shown(highest, units), value))
        .setValue(value);
}

void TowerPanel::wake() {
    control("CAHybridSlider").setEnabled(true);
    paint(colours::black);
}

void TowerPanel::rest() {
    control("CAHybridSlider").setEnabled(false);
    paint(colours::greyed);
}

void TowerPanel::drop() {
    values_.hybridPercent = 0;
    values_.tower.capacityMax = 0;
    showPercent();
}

void TowerPanel::paint(int colour) {
    control("CAHybridFrame").setForecolor(colour);
    for (const std::size_t index : {0U, 1U}) {
        control(elementName("CAPercentHybridLabel", index)).setForecolor(colour);
        for (const Figure& figure : figures)
            control(elementName(figure.label, index)).setForecolor(colour);
    }
}

}  // namespace varnholt
