// SPDX-License-Identifier: GPL-3.0-or-later
// What the window of a borehole design does for that of What If: its command, and what comes back.
#include <memory>

#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "forms/text_numbers/borehole.h"
#include "frame/varnmain.h"

namespace varnholt {

void frmBHDesign::addWhatIf() {
    add("CAWhatIfCommand", ControlKind::button, Text::whatIfCommand)
        .in("CACalculationFrame")
        .helpedBy("what_if")
        .setTooltip(text(Text::whatIfTip));
    onClick("CAWhatIfCommand", [this] { CAWhatIfCommand_Click(); });
}

void frmBHDesign::CAWhatIfCommand_Click() {
    if (whatIfWindow_ != nullptr) return main().activate(*whatIfWindow_);
    auto window = std::make_unique<frmWhatIf>(*this);
    whatIfWindow_ = window.get();
    main().open(std::move(window));
}

void frmBHDesign::takeField(double across, double down, double separation) {
    project_.arrangement.patternRows = {across, down};
    project_.arrangement.boreSeparation = separation;
    showRestored(true);
}

BoreholeProject frmBHDesign::keptValue() const {
    BoreholeProject kept = project();
    kept.information = {};
    kept.loads = {};
    kept.secondOpinion = {};
    kept.whatIf = {};
    kept.results = {};
    return kept;
}

void frmBHDesign::putBack(const BoreholeProject& kept) {
    BoreholeProject restored = kept;
    restored.information = project_.information;
    restored.loads = project_.loads;
    restored.secondOpinion = project_.secondOpinion;
    restored.whatIf = project_.whatIf;
    restored.results = project_.results;
    project_ = std::move(restored);
    showRestored(true);
}

bool frmBHDesign::towerMoves() const { return control("CAHybridSlider").enabled(); }

void frmBHDesign::moveTower(std::size_t percent) {
    slide("CAHybridSlider", static_cast<double>(percent));
}

/// Pages are in front by their number among the captions.
void frmBHDesign::showField(const std::string& field) {
    constexpr int fluidPage = 1, patternPage = 4;
    control(pagesName()).setIndex(field.starts_with("FL") ? fluidPage : patternPage);
    control(field).takeFocus();
}

}  // namespace varnholt
