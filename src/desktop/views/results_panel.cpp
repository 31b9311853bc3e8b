// SPDX-License-Identifier: GPL-3.0-or-later
// The results of a design.
#include "desktop/views/design_pages.h"
#include "desktop/views/length_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers.h"
#include "loads/linked_design.h"

namespace varnholt {
namespace {

bool hasNoLoads(const Binder& bind) {
    const auto* design = static_cast<const LinkedDesign*>(bind.form());
    return design != nullptr && design->loads().zoneNumber == 0;
}

/// The results in two columns. While the design has no loads a line tells where these come from.
QWidget* resultsPanel(Binder& bind, const std::vector<FieldRows>& parts) {
    FieldRows rows{bind.heads("CATopLabel(0)", "CATopLabel(1)")};
    for (const FieldRows& part : parts) {
        if (rows.size() > 1) rows.push_back(bind.wide(rule()));
        rows.insert(rows.end(), part.begin(), part.end());
    }
    return group(bind.frame("CACalculationFrame"), gridOf(rows),
                 hint(bind, Text::enterLoadsFirst, [&bind] { return hasNoLoads(bind); }));
}

}  // namespace

QWidget* resultsPageOf(Binder& bind, const std::vector<FieldRows>& table,
                       const std::vector<Piece>& beside) {
    return column(lengthHeadline(bind),
                  grow(reflow(grow(resultsPanel(bind, table), 2),
                              grow(column(grow(lengthPanel(bind)), grow(reflowOf(beside))), 3))));
}

QWidget* smallPlan(Binder& bind, Drawing* plan) {
    auto* box = new GroupBox;
    box->setTitle(qt(bind.text(Text::smallField)));
    plan->setAccessibleName(box->title());
    return group(box, grow(bind.drawing(plan)));
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
