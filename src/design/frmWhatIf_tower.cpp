// SPDX-License-Identifier: GPL-3.0-or-later
// The page that tells what a cooling tower would save.
#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {

void frmWhatIf::addTower() {
    constexpr const char* frame = "WTJudgeFrame";
    add(frame, ControlKind::frame, Text::whatIfJudge);
    addOption("WTJudgeOption", 0, Text::whatIfJudgeFirst, frame, "tower");
    addOption("WTJudgeOption", 1, Text::whatIfJudgeLife, frame, "tower");
    control("WTJudgeOption(1)").setChecked(true);
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}})
        onClick(elementName("WTJudgeOption", i), [this] { showTower(); });
    addOutput("WTBestLabel", frame);
    add("WTTakeCommand", ControlKind::button, Text::whatIfSetTower)
        .in(frame)
        .helpedBy("what_if#tower")
        .foundLate();
    onClick("WTTakeCommand", [this] { WTTakeCommand_Click(); });
    add("imgTower", ControlKind::image, Text::whatIfTowerPicture).foundLate();
}

std::optional<std::size_t> frmWhatIf::bestTower() const {
    const TowerCurve& curve = known().tower;
    return control("WTJudgeOption(1)").checked() ? curve.best : curve.bestFirst;
}

void frmWhatIf::showTower() {
    const TowerPicture picture = towerPicture();
    write("WTBestLabel", picture.best ? describe(picture, texts()) : "-");
    control("WTTakeCommand").setEnabled(bestTower() && design().towerMoves());
}

/// Asked for before the curve has been computed to its end, it computes the rest first.
void frmWhatIf::WTTakeCommand_Click() {
    figures(&WhatIfWanted::tower);
    if (const auto best = bestTower()) design().moveTower(*best);
}

}  // namespace varnholt
