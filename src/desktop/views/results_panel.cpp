// SPDX-License-Identifier: GPL-3.0-or-later
// The results of a design, with the command that calculates them.
#include "design/ground_design.h"
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"
#include "forms/text_numbers.h"

namespace varnholt {
namespace {

bool hasNoLoads(const Binder& bind) {
    const auto* design = static_cast<const LinkedDesign*>(bind.form());
    return design != nullptr && design->loads().zoneNumber == 0;
}

std::vector<std::string> warningsOf(const Binder& bind) {
    const auto* design = static_cast<const GroundDesign*>(bind.form());
    return design == nullptr ? std::vector<std::string>() : design->warnings();
}

}  // namespace

QWidget* resultsPanel(Binder& bind, const std::vector<FieldRows>& parts) {
    FieldRows rows{bind.heads("CATopLabel(0)", "CATopLabel(1)")};
    for (const FieldRows& part : parts) {
        if (rows.size() > 1) rows.push_back(bind.wide(rule()));
        rows.insert(rows.end(), part.begin(), part.end());
    }
    return group(bind.frame("CACalculationFrame"), gridOf(rows),
                 buttons(bind.primary("CACalculateCommand")),
                 warningLines(bind, [&bind] { return warningsOf(bind); }),
                 hint(bind, Text::enterLoadsFirst, [&bind] { return hasNoLoads(bind); }));
}

FieldRows unitTemperatures(Binder& bind) {
    return {bind.results("CAUnitInletLabel"), bind.results("CAUnitOutletLabel")};
}

FieldRows systemPerformance(Binder& bind) {
    return {bind.results("CATotalCapacityLabel"), bind.results("CAPeakLoadLabel"),
            bind.results("CAPeakDemandLabel"), bind.results("CAPumpCOPLabel"),
            bind.results("CASystemCOPLabel")};
}

}  // namespace varnholt
