// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/length_summary.h"

#include <utility>

#include "basis/number_text.h"
#include "design/ground_design.h"
#include "design/results_tab.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/lengths.h"

namespace varnholt {
namespace {

using modCalculations::LengthShares;

std::string shownLength(const GroundDesign& design, double feet, std::string_view format) {
    return shownWithUnit(quantities::length, design, feet,
                         {Text::lengthUnitsEnglish, Text::lengthUnitsMetric}, format);
}

ByMode<std::string> shownLengths(const GroundDesign& design, const ByMode<double>& feet) {
    ByMode<std::string> shown;
    for (const Mode mode : modes) shown[mode] = shownLength(design, feet[mode], "###0.0");
    return shown;
}

/// In words a foot is near enough.
std::string roundLength(const GroundDesign& design, double feet) {
    return shownLength(design, feet, "###0");
}

std::string counted(const GroundDesign& design, double number, const LoopWords& words) {
    if (number == 1) return design.text(words.one);
    return filledIn(design.text(words.many), {formatNumber(number, "###0")});
}

std::string sentenceOf(const GroundDesign& design, const FoundLengths& found,
                       const LoopWords& words) {
    const Mode mode = found.governing;
    const Mode other = mode == cooling ? heating : cooling;
    if (!(found.total[mode] > 0)) return design.text(Text::noLengthFound);
    const std::string governs = filledIn(
        design.text(words.governs[mode]),
        {roundLength(design, found.each[mode]), counted(design, found.number[mode], words)});
    if (!(found.total[other] > 0)) return filledIn(design.text(Text::governsAlone), {governs});
    const int wouldNeed = other == heating ? Text::heatingWouldNeed : Text::coolingWouldNeed;
    return filledIn(design.text(wouldNeed), {governs, roundLength(design, found.each[other])});
}

/// Shares of one length as shares of another.
LengthShares scaled(const LengthShares& shares, double total) {
    if (shares.empty() || shares.total() == 0) return {};
    const double scale = total / shares.total();
    return {shares.longTerm * scale, shares.monthly * scale, shares.shortTerm * scale,
            shares.boreResistance * scale, shares.penalty * scale};
}

}  // namespace

LengthSummary summaryOf(const GroundDesign& design, const FoundLengths& found,
                        const LoopWords& words) {
    LengthSummary summary;
    summary.state = found.state;
    summary.governing = found.governing;
    summary.feet = found.total;
    summary.length = shownLengths(design, found.total);
    summary.each = shownLengths(design, found.each);
    summary.eachWord = design.text(words.each);
    if (summary.found()) summary.sentence = sentenceOf(design, found, words);
    return summary;
}

LengthSummary withParts(LengthSummary summary, std::vector<LengthSegment> parts) {
    summary.parts = std::move(parts);
    const bool fromAFile = summary.parts.empty() && summary.hasLength();
    if (summary.state == LengthSummary::State::fresh && fromAFile)
        summary.state = LengthSummary::State::kept;
    return summary;
}

LengthSegment partOf(const GroundDesign& design, int name, const ByMode<double>& feet) {
    return {design.text(name), feet, shownLengths(design, feet)};
}

std::vector<LengthSegment> groundParts(const GroundDesign& design,
                                       const ByMode<LengthShares>& shares,
                                       const ByMode<double>& total, int resistanceName) {
    if (shares[cooling].empty() && shares[heating].empty()) return {};
    const ByMode<LengthShares> shown{scaled(shares[cooling], total[cooling]),
                                     scaled(shares[heating], total[heating])};
    const auto part = [&](int name, double LengthShares::*share) {
        return partOf(design, name, {shown[cooling].*share, shown[heating].*share});
    };
    return {part(Text::longTermPart, &LengthShares::longTerm),
            part(Text::monthlyPart, &LengthShares::monthly),
            part(Text::shortTermPart, &LengthShares::shortTerm),
            part(resistanceName, &LengthShares::boreResistance),
            part(Text::penaltyPart, &LengthShares::penalty)};
}

}  // namespace varnholt
