// SPDX-License-Identifier: GPL-3.0-or-later
// The pumps of the series: the list, the pump on show, and what an edit makes stale.
#include <algorithm>
#include <cmath>
#include <utility>

#include "basis/number_text.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "forms/text_numbers/editor_messages.h"
#include "forms/text_numbers/heat_pump_editor.h"

namespace varnholt {

int frmHPEdit::selectedPump() const {
    const std::vector<int>& rows = control("PumpNamesList").selected();
    return rows.empty() ? -1 : rows.front();
}

const pump* frmHPEdit::shownPump() const {
    const int selected = selectedPump();
    const bool exists =
        selected >= 0 && static_cast<std::size_t>(selected) < document_.pumps.size();
    return exists ? &*document_.pumps[static_cast<std::size_t>(selected)] : nullptr;
}

pump* frmHPEdit::editShownPump() {
    if (shownPump() == nullptr) return nullptr;
    return &document_.pumps[static_cast<std::size_t>(selectedPump())].edit();
}

StoredNumber frmHPEdit::ofShownPump(const std::function<double&(pump&)>& number) {
    return {[this, number] {
                const pump* model = shownPump();
                return model == nullptr ? 0 : number(const_cast<pump&>(*model));
            },
            [this, number](double value) {
                if (pump* model = editShownPump()) number(*model) = value;
            }};
}

void frmHPEdit::listPumps(int selected) {
    std::vector<std::string> names;
    for (const Shared<pump>& model : document_.pumps) names.push_back(model->name);
    Control& list = control("PumpNamesList").setItems(std::move(names));
    if (selected >= 0) list.setIndex(selected);
    enableCommands();
    showPump();
}

/// Shows the selected pump in every field; the buttons that fit its curves are as after a fit.
void frmHPEdit::showPump() {
    const RaisedFlag loading(loadingFields[1]);
    fields().forgetRefused();
    paintFitButtons({});
    blankTest();
    const pump* shown = shownPump();
    if (shown == nullptr) return blankFields();
    relabel(shown->pumpType);
    showTexts(*shown);
    fields().showAll();
    ShowCoefficients();
    showFlowFactors();
    refreshTest();
    refreshJudgements();
}

void frmHPEdit::showTexts(const pump& shown) {
    control("PumpModelText").setText(shown.name);
    for (int type = 0; type < 2; ++type)
        element("PumpTypeOption", type).setChecked((shown.pumpType == 0) == (type == 0));
}

void frmHPEdit::blankFields() {
    for (const auto& field : controls())
        if (field->kind() == ControlKind::text && !field->name().starts_with("Test") &&
            field->container() != "InsidePumpInfoPicture")
            field->setText({});
    refreshJudgements();
}

void frmHPEdit::addPump(pump added) {
    added.mfgInfo = selectedManufacturer();
    added.seriesInfo = selectedSeries();
    document_.pumps.emplace_back(std::move(added));
    recalculationNeeded = false;
    listPumps(static_cast<int>(document_.pumps.size()) - 1);
    showPanel(Panel::data);
    markChanged();
}

void frmHPEdit::NewCommand_Click() {
    if (!place_) return;
    pump fresh = newPump(document_.pumps.empty() ? nullptr : &*document_.pumps.back());
    fresh.name = std::to_string(document_.pumps.size() + 1) + " " + text(Text::pump);
    addPump(std::move(fresh));
}

/// The curves of the copy are fitted at once, as by a press of each of the buttons.
void frmHPEdit::CopyCommand_Click() {
    const pump* shown = shownPump();
    if (!place_ || shown == nullptr) return;
    pump copy = *shown;
    copy.name += text(Text::copiedPumpSuffix);
    addPump(std::move(copy));
    for (const Mode mode : modes) CalculateCoefficientsCommand_Click(mode);
    for (const CorrectionKind kind : {byTemperature, byFlow})
        CoefficientsCalculateCommand_Click(kind);
}

void frmHPEdit::RemoveCommand_Click() {
    const pump* shown = shownPump();
    if (shown == nullptr || platform().confirm(Buttons::yesNo, text(Text::removePumpTitle),
                                               text(Text::removePumpQuestion)) != Answer::yes)
        return;
    nameStep(text(Text::removePump) + " " + shown->name);
    const int selected = selectedPump();
    document_.pumps.erase(document_.pumps.begin() + selected);
    recalculationNeeded = false;
    listPumps(std::min(selected, static_cast<int>(document_.pumps.size()) - 1));
    setChanged(!document_.pumps.empty());
}

/// The pump on show stays on show at its new place.
void frmHPEdit::ReorderCommand_Click() {
    if (document_.pumps.empty()) return;
    const int selected = selectedPump();
    const Shared<pump> shown = document_.pumps[static_cast<std::size_t>(std::max(selected, 0))];
    const FitButtons red = redButtons();
    sortByName(document_.pumps);
    const auto place =
        std::find_if(document_.pumps.begin(), document_.pumps.end(),
                     [&](const Shared<pump>& model) { return model.isSameAs(shown); });
    listPumps(static_cast<int>(place - document_.pumps.begin()));
    paintFitButtons(red);
    markChanged();
}

void frmHPEdit::ClearCommand_Click() {
    if (platform().question(Buttons::yesNo, text(Text::clearPumpsTitle),
                            text(Text::clearPumpsQuestion)) != Answer::yes)
        return;
    document_.pumps.clear();
    listPumps(-1);
    markChanged();
}

void frmHPEdit::PumpModelText_Change() {
    pump* shown = editShownPump();
    if (shown == nullptr || loadingFields[0] || loadingFields[1]) return;
    shown->name = control("PumpModelText").text();
    control("PumpNamesList").setItem(static_cast<std::size_t>(selectedPump()), shown->name);
    recalculationNeeded = false;
    markChanged();
}

void frmHPEdit::PumpTypeOption_Click(std::int16_t type) {
    pump* shown = editShownPump();
    if (shown == nullptr) return;
    shown->pumpType = type;
    markChanged();
    relabel(type);
}

/// Names and units of the load side are those of air or of water; where it is tried first, too.
void frmHPEdit::relabel(std::int16_t type) {
    const bool air = type == 0;
    if (air != (labelledType_ == 0)) document_.test.loadTemperature = firstLoadTemperatures(type);
    labelledType_ = type;
    constexpr ByMode<int> airTexts{Text::enteringAirWetBulb, Text::enteringAirDryBulb};
    for (const Mode mode : modes)
        element("ELTLabel", static_cast<int>(mode))
            .setCaption(text(air ? airTexts[mode] : Text::enteringWater));
    // Both are shown by the quantity of their type.
    addNominalFlow();
    addTestFields();
    fields().showCaptions();
    const bool metric = units() == UnitSystem::metric;
    for (const Mode mode : modes)
        for (const char* flow : {"FR1", "FR2"})
            control(prefixOf(mode) + flow + "COPHeadLabel")
                .setCaption(text(metric || mode == heating ? Text::ratedCop : Text::ratedEer));
    control("TestCapacityLabel(2)")
        .setCaption(text(metric ? Text::testCapacityMetric : Text::testCapacityEnglish));
    control("TestCOPLabel(2)")
        .setCaption(text(metric ? Text::testCopMetric : Text::testCopEnglish));
    fields().show("NominalFlowText");
    fields().showAll("Test");
}

void frmHPEdit::ratingEdited(Mode mode) {
    element("CalculateCoefficientsCommand", static_cast<int>(mode)).setBackcolor(colours::alarm);
    recalculationNeeded = true;
    markChanged();
}

void frmHPEdit::correctionEdited(CorrectionKind kind) {
    element("CoefficientsCalculateCommand", static_cast<int>(kind)).setBackcolor(colours::alarm);
    recalculationNeeded = true;
    markChanged();
}

/// Both modes have one pair of source flows. The heating test follows it; the cooling test keeps
/// the flow that was typed for it.
void frmHPEdit::flowEdited(std::size_t flow, Mode typedIn) {
    const pump* shown = shownPump();
    if (shown == nullptr) return;
    const Mode other = typedIn == cooling ? heating : cooling;
    fields().show(elementName(prefixOf(other) + "FlowRateText", flow));
    const auto& flows = shown->ewt[3].flowRate;
    const bool two = flows[1].flowRate != 0;
    if (two)
        for (const Mode mode : modes) ratingEdited(mode);
    markChanged();
    const double mean = two ? (flows[0].flowRate + flows[1].flowRate) / 2.0 : flows[0].flowRate;
    if (!std::isfinite(mean)) throw RunTimeError(6);
    document_.test.sourceFlow[heating] = mean;
    fields().show("TestSourceFlowText(1)");
}

/// Empties one of the rows that may be empty. Its fields show the plain number meanwhile, 0.0.
void frmHPEdit::cmdZeroZap_Click(std::size_t index) {
    pump* shown = editShownPump();
    if (shown == nullptr) return;
    const auto kind = static_cast<CorrectionKind>(index / 4);
    const auto mode = static_cast<Mode>(index % 4 / 2);
    const std::size_t row = firstZeroRow + index % 2;
    if (kind == byTemperature) {
        eat& emptied = shown->eat[row];
        emptied.temperature[mode] = emptied.capacityCorrection[mode] = 0;
        emptied.wattsCorrection[mode] = 0;
    } else {
        elf& emptied = shown->elf[row];
        emptied.percent[mode] = emptied.capacityCorrection[mode] = 0;
        emptied.wattsCorrection[mode] = 0;
    }
    for (const FittedQuantity quantity : fittedQuantities)
        fields().show(factorField(kind, mode, quantity, row));
    control(placeField(kind, mode, row)).setText(formatNumber(0, "###0.0"));
    correctionEdited(kind);
}

void frmHPEdit::paintFitButtons(const FitButtons& red) {
    const auto paint = [this](const char* button, std::size_t i, bool isRed) {
        control(elementName(button, i)).setBackcolor(isRed ? colours::alarm : colours::buttonFace);
    };
    for (const Mode mode : modes) paint("CalculateCoefficientsCommand", mode, red.rating[mode]);
    for (const CorrectionKind kind : {byTemperature, byFlow})
        paint("CoefficientsCalculateCommand", kind, red.correction[kind]);
}

}  // namespace varnholt
