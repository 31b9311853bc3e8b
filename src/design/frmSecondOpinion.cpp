// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the second opinion: its life, its inputs, its values by name.
#include "design/frmSecondOpinion.h"

#include <algorithm>
#include <cmath>

#include "design/frmBHDesign.h"
#include "design/result_values.h"
#include "design/second_opinion_texts.h"
#include "forms/text_numbers/second_opinion.h"
#include "frame/varnmain.h"

namespace varnholt {

frmSecondOpinion::frmSecondOpinion(frmBHDesign& design)
    : BesideDesign("frmSecondOpinion", Text::opinionTitle, design) {
    addControls();
    hookInputs();
    registerValues();
}

void frmSecondOpinion::unloaded() { design().forgetSecondOpinionWindow(); }

void frmSecondOpinion::hookInputs() {
    onClick("SEShapeCombo", [this] {
        inputs().shape = static_cast<std::int16_t>(control("SEShapeCombo").index());
    });
    onClick("SESouthCheck", [this] { inputs().southern = control("SESouthCheck").checked(); });
    onClick("SECylinderCheck",
            [this] { inputs().cylinder = control("SECylinderCheck").checked(); });
    for (const std::int16_t choice : {depthOfDesign, depthOfSecondOpinion, depthAsTyped})
        onClick(elementName("SEDepthOption", static_cast<std::size_t>(choice)),
                [this, choice] { inputs().depthChoice = choice; });
    onSlide("SEYearUpDown", [this] { showYearOfMonths(); });
    onClick("SEPasteCommand", [this] { SEPasteCommand_Click(); });
    onClick("SECopyCommand", [this] { SECopyCommand_Click(); });
}

void frmSecondOpinion::typedMonth() {
    inputs().shape = typedYear;
    control("SEShapeCombo").setIndex(typedYear);
}

void frmSecondOpinion::typedDepth() {
    inputs().depthChoice = depthAsTyped;
    showDepthChoice();
}

const SecondOpinion& frmSecondOpinion::opinion() const {
    return design().lateSecondOpinion().known();
}

SecondOpinionInputs& frmSecondOpinion::inputs() const { return design().secondOpinionInputs(); }

bool frmSecondOpinion::workLate(bool whole) {
    if (!design().advanceSecondOpinion(whole)) return false;
    showFigures();
    return true;
}

std::vector<Notice> frmSecondOpinion::notices() {
    if (const auto refused = fields().refused()) return {refusedNotice(*refused)};
    return {};
}

/// A file may hold any number of years.
std::size_t frmSecondOpinion::yearsShown() const {
    constexpr double most = opinionYears.back();
    return static_cast<std::size_t>(std::clamp(std::round(inputs().yearsShown), 1.0, most));
}

OpinionScene frmSecondOpinion::scene() const {
    OpinionScene scene{
        texts(), units(),
        shownMessage(texts(), opinion(), design().project().soil.groundTemp, units()),
        design().conditions().inletTemp, yearsShown()};
    const double year = control("SEYearUpDown").value();
    if (year >= 1) scene.year = static_cast<std::size_t>(year) - 1;
    return scene;
}

HistoryPicture frmSecondOpinion::historyPicture() const {
    return varnholt::historyPicture(opinion(), scene());
}
YearPicture frmSecondOpinion::yearPicture() const {
    return varnholt::yearPicture(opinion(), scene());
}
GFunctionPicture frmSecondOpinion::gFunctionPicture() const {
    return varnholt::gFunctionPicture(opinion(), scene());
}

std::string frmSecondOpinion::descriptionOf(const std::string& image) const {
    if (image == "imgHistory") return describe(historyPicture(), texts());
    if (image == "imgMonths") return describe(yearPicture(), texts());
    return describe(gFunctionPicture(), texts());
}

void frmSecondOpinion::registerInputs(Values& values) {
    const SecondOpinionInputs& held = inputs();
    values.add("buriedDepth", &held.buriedDepth);
    values.add("pulseHours", &held.pulseHours);
    values.add("yearsShown", &held.yearsShown);
    values.add("shape", &held.shape);
    values.add("southern", &held.southern);
    values.add("cylinder", &held.cylinder);
    values.add("depthChoice", &held.depthChoice);
    values.add("typedDepth", &held.typedDepth);
    const auto months = [&](const char* name, const MonthsOfModes& table) {
        values.add(name, 2, [&table](const Values::Indices& i) {
            return publicElement(publicElement(table, i[0]), i[1]);
        });
    };
    months("monthEnergy", held.monthEnergy);
    months("monthTop", held.monthTop);
}

void frmSecondOpinion::registerValues() {
    registerInputs(publicValues());
    using O = const SecondOpinion&;
    ResultValues<SecondOpinion> of(publicValues(),
                                   [this]() -> O { return design().secondOpinion(); });
    registerYear(of);
    registerSizes(of);
    registerShown(of);
}

void frmSecondOpinion::registerYear(ResultValues<SecondOpinion>& of) {
    using O = const SecondOpinion&;
    of.array(
        "annualEnergy", [](O o) -> auto& { return o.annualEnergy; });
    of.array(
        "designPeak", [](O o) -> auto& { return o.designPeak; });
    of.array(
        "meanLimit", [](O o) -> auto& { return o.meanLimit; });
    of.table(
        "monthShare", [](O o) -> auto& { return o.monthShare; });
    of.table(
        "monthPeak", [](O o) -> auto& { return o.monthPeak; });
    of.array(
        "monthlyLoad", [](O o) -> auto& { return o.monthlyLoad; });
}

void frmSecondOpinion::registerSizes(ResultValues<SecondOpinion>& of) {
    using O = const SecondOpinion&;
    of.array(
        "soLength", [](O o) -> auto& { return o.soLength; });
    of.array(
        "soDepth", [](O o) -> auto& { return o.soDepth; });
    of.array(
        "soMonth", [](O o) -> auto& { return o.soMonth; });
    publicValues().add("lengthPart", 2, [this](const Values::Indices& i) {
        const auto& parts = publicElement(design().secondOpinion().lengthPart, i[1]);
        return publicElement(parts.value_or(LengthParts{}), i[0]);
    });
}

void frmSecondOpinion::registerShown(ResultValues<SecondOpinion>& of) {
    using O = const SecondOpinion&;
    of.number("shownDepth", [](O o) { return o.shownDepth; });
    of.number("groupCount", [](O o) { return o.groupCount; });
    of.array(
        "gValue", [](O o) -> auto& { return o.gValue; });
    const auto line = [&](const char* name, std::optional<double> OpinionYearLine::*member) {
        publicValues().add(name, 1, [this, member](const Values::Indices& i) {
            return (publicElement(design().secondOpinion().years, i[0]).*member).value_or(0);
        });
    };
    line("gPenalty", &OpinionYearLine::penalty);
    line("yearHigh", &OpinionYearLine::high);
    line("yearLow", &OpinionYearLine::low);
}

}  // namespace varnholt
