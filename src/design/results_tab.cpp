// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/results_tab.h"

#include <utility>

#include "basis/number_text.h"
#include "basis/units.h"
#include "design/ground_design.h"
#include "design/modCalculations/extra_power.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {
namespace {

constexpr const char* frame = "CACalculationFrame";

}  // namespace

std::string shownAs(const Quantity& quantity, const GroundDesign& design, double value,
                    std::string_view format) {
    return formatNumber(quantity.shown(value, design.units()), format);
}

std::string shownWithUnit(const Quantity& quantity, const GroundDesign& design, double value,
                          UnitTexts unit, std::string_view format) {
    return shownAs(quantity, design, value, format) + " " + design.text(unit.in(design.units()));
}

ResultsTab::ResultsTab(GroundDesign& design, std::vector<ResultRow> rows, int frameCaption,
                       const std::function<void()>& addMore)
    : DesignTab(design) {
    addFrame(frame, frameCaption);
    top_ = {&add("CATopLabel(0)", ControlKind::label, frame, Text::resultsCooling),
            &add("CATopLabel(1)", ControlKind::label, frame, Text::resultsHeating)};
    for (ResultRow& row : rows) {
        addUnitLabel(elementName(row.label, captionElement), frame, row.caption);
        const ByMode<Control*> labels{&addValue(row.label, cooling), &addValue(row.label, heating)};
        rows_.push_back({std::move(row), labels});
    }
    if (addMore) addMore();
    add("CACalculateCommand", ControlKind::button, frame, Text::calculate);
    onClick("CACalculateCommand", [this] { this->design().CACalculateCommand_Click(); });
}

Control& ResultsTab::addValue(const std::string& label, Mode mode) {
    return add(elementName(label, mode), ControlKind::label, frame);
}

void ResultsTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    showFigures();
}

void ResultsTab::showFigures() {
    for (const auto& [row, labels] : rows_)
        for (const Mode mode : modes) labels[mode]->setCaption(row.value(mode));
}

void ResultsTab::paint(const ByMode<Control*>& labels, Mode greyed, int governingColour) {
    const Mode governing = greyed == cooling ? heating : cooling;
    labels[greyed]->setForecolor(colours::greyed).setBold(false);
    labels[governing]->setForecolor(governingColour).setBold(true);
}

void ResultsTab::paintGoverning(Mode greyed) {
    const int colour = greyed == heating ? colours::coolingGoverns : colours::heatingGoverns;
    paint(top_, greyed, colour);
    for (const auto& [row, labels] : rows_)
        if (row.painted) paint(labels, greyed, row.isLength ? colours::black : colour);
}

void ResultsTab::paintPlain() {
    const auto plain = [](const ByMode<Control*>& labels) {
        for (Control* label : labels) label->setForecolor(colours::black).setBold(false);
    };
    plain(top_);
    for (const ShownRow& shown : rows_) plain(shown.labels);
}

std::vector<ResultRow> unitRows(const GroundDesign& design,
                                const std::function<const LoadsRollUp&()>& rollUp,
                                const std::function<LoadsInputs()>& inputs) {
    using Get = std::function<double(Mode)>;
    const auto row = [&design](const char* label, UnitTexts caption, const Quantity& quantity,
                               const Get& value) {
        return ResultRow{label, caption, [&design, &quantity, value](Mode mode) {
                             return shownAs(quantity, design, value(mode));
                         }};
    };
    // The cooling figure is an energy efficiency ratio where the units are English.
    const auto cop = [&design](const char* label, UnitTexts caption, const Get& value) {
        return ResultRow{
            label, caption, [&design, value](Mode mode) {
                const bool ratio = mode == cooling && design.units() == UnitSystem::english;
                return formatNumber(value(mode) * (ratio ? mbtuPerKilowatt : 1), "####0.0");
            }};
    };
    const auto demand = [rollUp, inputs](Mode mode) {
        const LoadsInputs from = inputs();
        const auto kilowatts = modCalculations::demandWithExtraPower(
            rollUp().demand.peakDemand, from.extraPower, {from.hybridOn, from.hybridPercent, 0});
        return formatNumber(kilowatts[mode], "###0.0");
    };
    using namespace quantities;
    return {
        row("CAUnitInletLabel", {Text::unitInletEnglish, Text::unitInletMetric}, temperature,
            [inputs](Mode m) { return inputs().inletTemp[m]; }),
        row("CAUnitOutletLabel", {Text::unitOutletEnglish, Text::unitOutletMetric}, temperature,
            [rollUp](Mode m) { return rollUp().outlet.outletTemp[m]; }),
        row("CATotalCapacityLabel", {Text::totalCapacityEnglish, Text::totalCapacityMetric}, load,
            [rollUp](Mode m) { return rollUp().demand.totalCapacity[m]; }),
        row("CAPeakLoadLabel", {Text::peakLoadEnglish, Text::peakLoadMetric}, load,
            [rollUp](Mode m) { return rollUp().loads.peakLoad[m]; }),
        {"CAPeakDemandLabel", {Text::peakDemand, Text::peakDemand}, demand},
        cop("CAPumpCOPLabel", {Text::heatPumpCopEnglish, Text::heatPumpCopMetric},
            [rollUp](Mode m) { return rollUp().cop.heatPumpCOP[m]; }),
        cop("CASystemCOPLabel", {Text::systemCopEnglish, Text::systemCopMetric},
            [rollUp](Mode m) { return rollUp().cop.systemCOP[m]; }),
        row("CAFlowRateLabel", {Text::systemFlowRateEnglish, Text::systemFlowRateMetric}, waterFlow,
            [rollUp](Mode m) { return rollUp().outlet.systemFlow[m]; }),
    };
}

ResultRow soilChangeRow(const GroundDesign& design, const std::function<double(Mode)>& penalty) {
    return {"CASoilTempChangeLabel",
            {Text::groundTemperatureChangeEnglish, Text::groundTemperatureChangeMetric},
            [&design, penalty](Mode mode) {
                const std::string change =
                    shownAs(quantities::temperatureDifference, design, -penalty(mode));
                return penalty(mode) < 0 ? "+" + change : change;
            }};
}

}  // namespace varnholt
