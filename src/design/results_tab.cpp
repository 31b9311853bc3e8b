// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/results_tab.h"

#include <utility>

#include "basis/number_text.h"
#include "basis/units.h"
#include "design/ground_design.h"
#include "design/modCalculations/extra_power.h"

namespace varnholt {
namespace {

std::string element(const std::string& label, std::size_t index) {
    return label + "(" + std::to_string(index) + ")";
}

constexpr int captionElement = 2;

}  // namespace

std::string shownAs(const Quantity& quantity, const GroundDesign& design, double value,
                    std::string_view format) {
    return formatNumber(quantity.shown(value, design.units()), format);
}

ResultsTab::ResultsTab(GroundDesign& design, std::vector<ResultRow> rows, int frameCaption)
    : DesignTab(design), rows_(std::move(rows)) {
    const std::string frame = "CACalculationFrame";
    addFrame(frame, frameCaption);
    add("CATopLabel(0)", ControlKind::label, frame, 2102);
    add("CATopLabel(1)", ControlKind::label, frame, 2103);
    for (const ResultRow& row : rows_) {
        addUnitLabel(element(row.label, captionElement), frame, row.metricCaption,
                     row.englishCaption);
        for (const Mode mode : modes) add(element(row.label, mode), ControlKind::label, frame);
    }
    add("CACalculateCommand", ControlKind::button, frame, 2130);
    onClick("CACalculateCommand", [this] { this->design().CACalculateCommand_Click(); });
}

void ResultsTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    for (const ResultRow& row : rows_)
        for (const Mode mode : modes) control(element(row.label, mode)).setCaption(row.value(mode));
}

void ResultsTab::paintGoverning(Mode greyed) {
    const Mode governing = greyed == cooling ? heating : cooling;
    const int colour = governing == cooling ? colours::coolingGoverns : colours::heatingGoverns;
    const auto paint = [&](const std::string& label, int governingColour) {
        control(element(label, greyed)).setForecolor(colours::greyed).setBold(false);
        control(element(label, governing)).setForecolor(governingColour).setBold(true);
    };
    paint("CATopLabel", colour);
    for (const ResultRow& row : rows_) paint(row.label, row.isLength ? colours::black : colour);
}

std::vector<ResultRow> unitRows(const GroundDesign& design, const LoadsRollUp& rollUp) {
    const auto row = [&design](const char* label, int metric, int english, const Quantity& quantity,
                               const ByMode<double>& values) {
        return ResultRow{label, metric, english, [&design, &quantity, &values](Mode mode) {
                             return shownAs(quantity, design, values[mode]);
                         }};
    };
    // The cooling figure is an energy efficiency ratio where the units are English.
    const auto cop = [&design](const char* label, int metric, int english,
                               const ByMode<double>& values) {
        return ResultRow{
            label, metric, english, [&design, &values](Mode mode) {
                const bool ratio = mode == cooling && design.units() == UnitSystem::english;
                return formatNumber(values[mode] * (ratio ? mbtuPerKilowatt : 1), "####0.0");
            }};
    };
    const auto demand = [&design, &rollUp](Mode mode) {
        const auto kilowatts = modCalculations::demandWithExtraPower(
            rollUp.demand.peakDemand, design.extraPower.extraPower, design.shownHybrid());
        return formatNumber(kilowatts[mode], "###0.0");
    };
    using namespace quantities;
    return {
        row("CAUnitInletLabel", 2109, 2110, temperature, design.inletTemp),
        row("CAUnitOutletLabel", 2111, 2112, temperature, rollUp.outlet.outletTemp),
        row("CATotalCapacityLabel", 2113, 2114, load, rollUp.demand.totalCapacity),
        row("CAPeakLoadLabel", 2115, 2117, load, rollUp.loads.peakLoad),
        {"CAPeakDemandLabel", 2119, 2119, demand},
        cop("CAPumpCOPLabel", 2116, 2120, rollUp.cop.heatPumpCOP),
        cop("CASystemCOPLabel", 2118, 2121, rollUp.cop.systemCOP),
        row("CAFlowRateLabel", 2122, 2123, waterFlow, rollUp.outlet.systemFlow),
    };
}

ResultRow soilChangeRow(const GroundDesign& design, const ByMode<double>& penalty) {
    return {"CASoilTempChangeLabel", 2124, 2125, [&design, &penalty](Mode mode) {
                const std::string change =
                    shownAs(quantities::temperatureDifference, design, -penalty[mode]);
                return penalty[mode] < 0 ? "+" + change : change;
            }};
}

}  // namespace varnholt
