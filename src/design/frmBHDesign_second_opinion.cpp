// SPDX-License-Identifier: GPL-3.0-or-later
// The second opinion in the window of a borehole design: its row among the results, its command,
// its values by name.
#include <array>
#include <cmath>
#include <memory>

#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmSecondOpinion.h"
#include "design/frmWhatIf.h"
#include "design/result_values.h"
#include "design/results_tab.h"
#include "design/second_opinion_texts.h"
#include "forms/text_numbers/borehole.h"
#include "frame/varnmain.h"
#include "loads/import/frmImport1.h"

namespace varnholt {
namespace {

constexpr std::array rowLabels{"CASecondLengthLabel", "CASecondDepthLabel"};

/// From here on a designer must see that the methods differ.
constexpr double strongDifference = 0.10;

/// The mode whose classical length is the longer one, as it governs the results above the row;
/// without such lengths that of the second opinion. None without any.
std::optional<Mode> governingOf(const SecondOpinion& opinion) {
    const ByMode<double>& classical = opinion.classicalLength;
    if (classical[cooling] == 0 && classical[heating] == 0) return opinion.governing();
    return classical[cooling] > classical[heating] ? cooling : heating;
}

/// The governing mode, where its two figures differ by so much.
std::optional<Mode> strongMode(const SecondOpinion& opinion) {
    const std::optional<Mode> governing = governingOf(opinion);
    if (!governing) return std::nullopt;
    const std::optional<double> difference = opinion.difference(*governing);
    const bool strong = difference && std::abs(*difference) > strongDifference;
    return strong ? governing : std::nullopt;
}

/// The months of the importer's window, where it is open.
std::optional<ByMode<MonthlyLoads>> importedYears(const Varnmain& main) {
    const auto* importer = dynamic_cast<const frmImport1*>(main.find("frmImport1"));
    if (importer == nullptr) return std::nullopt;
    return importer->loads().years;
}

}  // namespace

std::vector<ResultRow> frmBHDesign::secondOpinionRows() const {
    const auto figure = [this](const ByMode<double> SecondOpinion::*lengths) {
        return [this, lengths](Mode mode) {
            const SecondOpinion& opinion = late_.known();
            return lengthOrDash(opinion.*lengths, opinion, mode, units());
        };
    };
    return {{rowLabels[0],
             {Text::secondOpinionTotal, Text::secondOpinionTotal},
             figure(&SecondOpinion::soLength),
             false,
             false},
            {rowLabels[1],
             {Text::secondOpinionEachBore, Text::secondOpinionEachBore},
             figure(&SecondOpinion::soDepth),
             false,
             false}};
}

void frmBHDesign::addSecondOpinion() {
    constexpr const char* frame = "CACalculationFrame";
    for (const char* label : rowLabels)
        for (const std::size_t element : {std::size_t{0}, std::size_t{1}, captionElement})
            control(elementName(label, element)).foundLate();
    add("CASecondStandsLabel", ControlKind::label, Text::secondOpinionStands)
        .in(frame)
        .setVisible(false)
        .foundLate();
    add("CASecondOpinionCommand", ControlKind::button, Text::secondOpinionCommand)
        .in(frame)
        .helpedBy("second_opinion#row")
        .setTooltip(text(Text::secondOpinionTip));
    onClick("CASecondOpinionCommand", [this] { CASecondOpinionCommand_Click(); });
}

/// A figure that cannot be had is 0.
void frmBHDesign::addSecondOpinionValues() {
    ResultValues<SecondOpinion> of(publicValues(),
                                   [this]() -> const SecondOpinion& { return secondOpinion(); });
    of.array(
        "secondLength", [](const SecondOpinion& o) -> auto& { return o.soLength; });
    of.array(
        "secondDepth", [](const SecondOpinion& o) -> auto& { return o.soDepth; });
}

SecondOpinionCase frmBHDesign::presentCase() const {
    SecondOpinionCase now =
        secondOpinionCase(project(), project().secondOpinion, importedYears(main()));
    if (link() != nullptr) now.design.loads.zones = presentZones();
    return now;
}

const SecondOpinion& frmBHDesign::secondOpinion() {
    advanceSecondOpinion(true);
    return late_.known();
}

bool frmBHDesign::workLate(bool whole) {
    if (!advanceSecondOpinion(whole)) return false;
    showSecondOpinion();
    return true;
}

void frmBHDesign::showSecondOpinion() {
    const std::vector<ResultRow> rows = secondOpinionRows();
    for (const ResultRow& row : rows)
        for (const Mode mode : modes)
            control(elementName(row.label, mode)).setCaption(row.value(mode));
    control("CASecondStandsLabel").setVisible(isStale() || showsOlderResults());
    paintSecondOpinion();
}

/// The mode that does not govern is grey, as above; a difference that counts makes the row strong.
void frmBHDesign::paintSecondOpinion() {
    const std::optional<Mode> governing = governingOf(late_.known());
    const bool strong = strongMode(late_.known()).has_value();
    const std::string tip = secondOpinionTip();
    for (const char* label : rowLabels) {
        for (const Mode mode : modes)
            control(elementName(label, mode))
                .setForecolor(governing && mode != *governing ? colours::greyed : colours::black);
        for (const std::size_t element : {std::size_t{0}, std::size_t{1}, captionElement})
            control(elementName(label, element)).setBold(strong).setTooltip(tip);
    }
}

/// Why the row is strong, and that it is ahead of the results above it.
std::string frmBHDesign::secondOpinionTip() const {
    const SecondOpinion& opinion = late_.known();
    const std::optional<Mode> mode = strongMode(opinion);
    std::string tip =
        mode ? differenceText(texts(), opinion, *mode, units()) : text(Text::secondOpinionTip);
    if (isStale() || showsOlderResults()) tip += " (" + text(Text::secondOpinionStands) + ")";
    return tip;
}

void frmBHDesign::CASecondOpinionCommand_Click() {
    if (opinionWindow_ != nullptr) return main().activate(*opinionWindow_);
    auto window = std::make_unique<frmSecondOpinion>(*this);
    opinionWindow_ = window.get();
    main().open(std::move(window));
}

void frmBHDesign::load() {
    TowerDesign::load();
    fallBehind();
}

void frmBHDesign::MetricCheck_Click() {
    TowerDesign::MetricCheck_Click();
    if (opinionWindow_ != nullptr) opinionWindow_->showInUnits();
    if (whatIfWindow_ != nullptr) whatIfWindow_->showInUnits();
}

void frmBHDesign::restore(const DocumentState& earlier) {
    TowerDesign::restore(earlier);
    fallBehind();
    if (opinionWindow_ != nullptr) opinionWindow_->showDocument();
    if (whatIfWindow_ != nullptr) whatIfWindow_->showDocument();
}

void frmBHDesign::unloaded() {
    if (opinionWindow_ != nullptr) main().close(*opinionWindow_);
    if (whatIfWindow_ != nullptr) main().close(*whatIfWindow_);
    TowerDesign::unloaded();
}

}  // namespace varnholt
