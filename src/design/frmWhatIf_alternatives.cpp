// SPDX-License-Identifier: GPL-3.0-or-later
// The page that compares the design with others: those that were kept, and other open ones.
#include <algorithm>
#include <memory>

#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "design/shared_texts.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

constexpr const char* keepFrame = "WVKeepFrame";
constexpr const char* alternativesFrame = "WVTableFrame";

/// A row of the table: the lower the better where one is best at all.
struct AlternativeRow {
    const char* array;
    int caption;
    double AlternativeFigures::*figure;
    bool judged;
};
constexpr AlternativeRow alternativeRows[] = {
    {"WVLengthLabel", Text::whatIfRowLength, &AlternativeFigures::length, true},
    {"WVBoresLabel", Text::whatIfRowBores, &AlternativeFigures::bores, false},
    {"WVDepthLabel", Text::whatIfRowDepth, &AlternativeFigures::depth, false},
    {"WVFirstLabel", Text::whatIfRowFirst, &AlternativeFigures::first, true},
    {"WVLifeLabel", Text::whatIfRowLife, &AlternativeFigures::life, true},
    {"WVEnergyLabel", Text::whatIfRowEnergy, &AlternativeFigures::energy, true},
};

/// "WVLifeChangeLabel" beneath "WVLifeLabel".
std::string changeOf(std::string array) {
    constexpr std::string_view word = "Label";
    return array.replace(array.rfind(word), word.size(), "ChangeLabel");
}

std::string figureText(const WhatIfTeller& teller, const AlternativeRow& row, double value) {
    if (row.figure == &AlternativeFigures::length) return teller.length(value);
    if (row.figure == &AlternativeFigures::depth) return teller.depth(value);
    const bool money =
        row.figure == &AlternativeFigures::first || row.figure == &AlternativeFigures::life;
    return money ? teller.money(value) : groupedNumber(value);
}

/// What is less carries a minus, what is more a plus.
std::string changeText(const WhatIfTeller& teller, const AlternativeRow& row, double difference) {
    if (difference == 0) return {};
    return (difference > 0 ? "+" : "-") + figureText(teller, row, std::abs(difference));
}

/// The least figure of a row, where another alternative has a greater one.
std::optional<double> bestOf(const std::vector<AlternativeFigures>& all,
                             const AlternativeRow& row) {
    std::optional<double> best, worst;
    for (const AlternativeFigures& each : all) {
        const double value = each.*row.figure;
        if (!(value > 0)) continue;
        best = std::min(best.value_or(value), value);
        worst = std::max(worst.value_or(value), value);
    }
    return row.judged && best < worst ? best : std::nullopt;
}

}  // namespace

void frmWhatIf::addAlternatives() {
    constexpr const char* help = "what_if#alternatives";
    add(keepFrame, ControlKind::frame, Text::whatIfKept);
    add("WVNameLabel", ControlKind::label, Text::whatIfKeptName).in(keepFrame);
    add("WVNameText", ControlKind::text).in(keepFrame).captionedBy("WVNameLabel").helpedBy(help);
    const auto button = [&](const char* name, int caption, void (frmWhatIf::*handler)()) {
        add(name, ControlKind::button, caption).in(keepFrame).helpedBy(help);
        onClick(name, [this, handler] { (this->*handler)(); });
    };
    button("WVKeepCommand", Text::whatIfKeep, &frmWhatIf::WVKeepCommand_Click);
    add("WVList", ControlKind::list).in(keepFrame).helpedBy(help);
    onClick("WVList", [this] { showAlternativeCommands(); });
    button("WVRestoreCommand", Text::whatIfPutBack, &frmWhatIf::WVRestoreCommand_Click);
    button("WVRemoveCommand", Text::whatIfRemove, &frmWhatIf::WVRemoveCommand_Click);
    add(alternativesFrame, ControlKind::frame, Text::whatIfCompared);
    for (std::size_t n = 0; n < alternativeColumns; ++n)
        addOutput(elementName("WVHeadLabel", n), alternativesFrame);
    std::size_t index = 0;
    for (const AlternativeRow& row : alternativeRows) {
        add(elementName("WVRowLabel", index++), ControlKind::label, row.caption)
            .in(alternativesFrame);
        for (std::size_t n = 0; n < alternativeColumns; ++n) {
            addOutput(elementName(row.array, n), alternativesFrame);
            addOutput(elementName(changeOf(row.array), n), alternativesFrame);
        }
    }
    addOutput("WVReasonLabel");
}

void frmWhatIf::showAlternatives() {
    const std::vector<AlternativeFigures>& all = known().alternatives;
    std::string reasons;
    for (const AlternativeFigures& each : all) {
        if (!each.reason.holds()) continue;
        appendSentence(reasons, each.name + ": " + teller().reason(each.reason));
    }
    if (all.size() > alternativeColumns)
        appendSentence(reasons,
                       filledIn(text(Text::whatIfMoreAlternatives),
                                {std::to_string(alternativeColumns), std::to_string(all.size())}));
    write("WVReasonLabel", reasons);
    // A column without an alternative takes no room.
    const auto writeCell = [&](const std::string& array, std::size_t n, const std::string& what) {
        write(elementName(array, n), what);
        control(elementName(array, n)).setVisible(n < all.size());
    };
    for (std::size_t n = 0; n < alternativeColumns; ++n)
        writeCell("WVHeadLabel", n, n < all.size() ? all[n].name : std::string());
    for (const AlternativeRow& row : alternativeRows) {
        const std::optional<double> best = bestOf(all, row);
        for (std::size_t n = 0; n < alternativeColumns; ++n) {
            const bool there = n < all.size();
            const double value = there ? all[n].*row.figure : 0;
            const double first = there ? all.front().*row.figure : 0;
            writeCell(row.array, n,
                      value > 0 ? figureText(teller(), row, value)
                      : there   ? "-"
                                : "");
            control(elementName(row.array, n)).setBold(best && value == *best);
            writeCell(
                changeOf(row.array), n,
                value > 0 && first > 0 ? changeText(teller(), row, value - first) : std::string());
        }
    }
    showAlternativeCommands();
}

/// The first in the list is the design itself, the kept ones follow.
std::optional<std::size_t> frmWhatIf::chosenKept() const {
    const int chosen = control("WVList").index();
    if (chosen < 1 || static_cast<std::size_t>(chosen) > inputs().alternatives.size())
        return std::nullopt;
    return static_cast<std::size_t>(chosen) - 1;
}

void frmWhatIf::showAlternativeCommands() {
    const bool kept = chosenKept().has_value();
    control("WVRestoreCommand").setEnabled(kept);
    control("WVRemoveCommand").setEnabled(kept);
}

void frmWhatIf::WVKeepCommand_Click() {
    std::vector<KeptAlternative>& kept = inputs().alternatives;
    std::string name = control("WVNameText").text();
    if (name.empty())
        name = filledIn(text(Text::whatIfAlternativeName), {std::to_string(kept.size() + 2)});
    kept.push_back({name, std::make_shared<const BoreholeProject>(design().keptValue())});
    control("WVNameText").setText({});
}

void frmWhatIf::WVRestoreCommand_Click() {
    if (const auto chosen = chosenKept()) design().putBack(*inputs().alternatives[*chosen].design);
}

void frmWhatIf::WVRemoveCommand_Click() {
    const auto chosen = chosenKept();
    if (!chosen) return;
    inputs().alternatives.erase(inputs().alternatives.begin() +
                                static_cast<std::ptrdiff_t>(*chosen));
    control("WVList").setIndex(-1);
    showAlternativeCommands();
}

}  // namespace varnholt
