// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/second_opinion_texts.h"

#include <algorithm>
#include <cmath>

#include "basis/number_text.h"
#include "design/shared_texts.h"
#include "forms/numeric_field.h"
#include "forms/quantity.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/calculators.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/second_opinion.h"

namespace varnholt {
namespace {

constexpr std::array<int, monthsOfYear> monthTexts{
    Text::january, Text::february, Text::march,     Text::april,   Text::may,      Text::june,
    Text::july,    Text::august,   Text::september, Text::october, Text::november, Text::december};

std::string modeWord(const Texts& texts, Mode mode) {
    return texts.text(mode == cooling ? Text::cooling : Text::heating);
}

std::string signedText(double value, std::string_view format) {
    const std::string text = formatNumber(value, format);
    return value > 0 ? "+" + text : text;
}

std::string temperatureText(double fahrenheit, UnitSystem units) {
    return formatNumber(quantities::temperature.shown(fahrenheit, units), "###0.0");
}

/// Where the months come from.
std::string sourceOfYear(const Texts& texts, std::int16_t shape) {
    if (shape == typedYear) return texts.text(Text::opinionAsTyped);
    if (shape == importedYear) return texts.text(Text::opinionAsImported);
    return texts.text(Text::opinionAssumed);
}

std::string yearNote(const Texts& texts, const OpinionYear& year, Mode mode) {
    if (year.peakMonth == 0) return {};
    if (year.evenMonths) return filledIn(texts.text(Text::opinionEven), {modeWord(texts, mode)});
    std::string note = filledIn(texts.text(Text::opinionPeaksIn),
                                {modeWord(texts, mode), monthName(texts, year.peakMonth - 1),
                                 formatNumber(percentOfWhole * year.peakShare, "###0")});
    if (year.heldAtGreatest) appendSentence(note, texts.text(Text::opinionHeld));
    return note;
}

/// The reasons that need no figures.
int plainReason(OpinionFailure failure) {
    switch (failure) {
        case OpinionFailure::noLoads:
            return Text::opinionNoLoads;
        case OpinionFailure::noConductivity:
            return Text::opinionNoConductivity;
        case OpinionFailure::noDiffusivity:
            return Text::opinionNoDiffusivity;
        case OpinionFailure::noBoreDiameter:
            return Text::opinionNoDiameter;
        case OpinionFailure::noRows:
            return Text::opinionNoRows;
        case OpinionFailure::noPredictionTime:
            return Text::opinionNoTime;
        case OpinionFailure::boresTooClose:
            return Text::opinionTooClose;
        case OpinionFailure::tooManyBores:
            return Text::opinionTooMany;
        case OpinionFailure::noLoadOfMode:
            return Text::opinionNoLoadOfMode;
        case OpinionFailure::notComputable:
            return Text::opinionNotComputable;
        case OpinionFailure::noDesignLength:
            return Text::opinionNoDesignLength;
        case OpinionFailure::noOpinionLength:
        case OpinionFailure::noShownDepth:
            return Text::opinionNoOpinionLength;
        default:
            return 0;
    }
}

/// What else a sentence tells of a case.
struct Teller {
    const Texts& texts;
    double groundTemp;
    UnitSystem units;

    std::string limitReason(int words, double limit) const {
        return filledIn(texts.text(words),
                        {temperatureText(limit, units), texts.text(temperatureUnit.in(units)),
                         temperatureText(groundTemp, units)});
    }
    std::string depthReason(double water) const {
        const double depth = quantities::length.shown(greatestOpinionDepth, units);
        const double shown = quantities::temperature.shown(water, units);
        std::string depthText = formatNumber(depth, "###0");
        if (depthText.size() > 3) depthText.insert(depthText.size() - 3, ",");
        return filledIn(texts.text(Text::opinionNoDepth),
                        {depthText, texts.text(lengthUnit.in(units)), formatNumber(shown, "###0"),
                         texts.text(temperatureUnit.in(units))});
    }
    std::string reason(const OpinionReason& why, double limit) const {
        if (why.failure == OpinionFailure::limitNotAboveGround)
            return limitReason(Text::opinionNotAbove, limit);
        if (why.failure == OpinionFailure::limitNotBelowGround)
            return limitReason(Text::opinionNotBelow, limit);
        if (why.failure == OpinionFailure::noDepthHoldsLimit)
            return depthReason(why.waterAtGreatest);
        const int words = plainReason(why.failure);
        return words == 0 ? std::string() : texts.text(words);
    }
    std::string modeReason(const OpinionReason& why, Mode mode,
                           const SecondOpinion& opinion) const {
        return filledIn(texts.text(Text::opinionOfMode),
                        {modeWord(texts, mode), reason(why, opinion.meanLimit[mode])});
    }
    /// A reason as a sentence of its own, of whatever mode.
    std::string wholeReason(const OpinionReason& why, const SecondOpinion& opinion) const {
        if (why.failure == OpinionFailure::limitNotAboveGround)
            return modeReason(why, cooling, opinion);
        if (why.failure == OpinionFailure::limitNotBelowGround)
            return modeReason(why, heating, opinion);
        if (why.failure == OpinionFailure::notComputable)
            return texts.text(Text::opinionNotComputableAll);
        return reason(why, 0);
    }
};

}  // namespace

const std::array<int, 3> lengthPartTexts{Text::opinionPartField, Text::opinionPartPulse,
                                         Text::opinionPartMonths};

std::string monthName(const Texts& texts, int month) {
    constexpr int months = monthsOfYear;
    const int place = ((month % months) + months) % months;
    return texts.text(monthTexts[static_cast<std::size_t>(place)]);
}

std::string monthOfYearText(const Texts& texts, int month) {
    if (month < 1) return "-";
    const int year = (month - 1) / int{monthsOfYear} + 1;
    return filledIn(texts.text(Text::opinionMonthOfYear),
                    {monthName(texts, month - 1), std::to_string(year)});
}

std::string lengthOrDash(const ByMode<double>& lengths, const SecondOpinion& opinion, Mode mode,
                         UnitSystem units) {
    if (!(lengths[mode] > 0) || !opinion.hasLength(mode)) return "-";
    return formatNumber(quantities::length.shown(lengths[mode], units), "###0.0");
}

std::string differenceOrDash(const SecondOpinion& opinion, Mode mode) {
    const std::optional<double> difference = opinion.difference(mode);
    return difference ? signedText(percentOfWhole * *difference, "###0.0") : "-";
}

std::string partOrDash(const SecondOpinion& opinion, Mode mode, std::size_t part,
                       UnitSystem units) {
    const std::optional<LengthParts>& parts = opinion.lengthPart[mode];
    if (!parts) return "-";
    return signedText(quantities::length.shown((*parts)[part], units), "###0.0");
}

std::string differenceText(const Texts& texts, const SecondOpinion& opinion, Mode mode,
                           UnitSystem units) {
    const std::optional<LengthParts>& parts = opinion.lengthPart[mode];
    if (!parts) return {};
    const auto largest = std::max_element(
        parts->begin(), parts->end(), [](double a, double b) { return std::abs(a) < std::abs(b); });
    const auto part = static_cast<std::size_t>(largest - parts->begin());
    return filledIn(
        texts.text(Text::secondOpinionDiffers),
        {differenceOrDash(opinion, mode), captionWords(texts.text(lengthPartTexts[part])),
         partOrDash(opinion, mode, part, units), texts.text(lengthUnit.in(units))});
}

std::string opinionNote(const Texts& texts, const SecondOpinion& opinion) {
    if (opinion.reason.holds()) return {};
    std::string note = sourceOfYear(texts, opinion.shape);
    for (const Mode mode : modes) appendSentence(note, yearNote(texts, opinion.year[mode], mode));
    if (opinion.towerPercent != 0)
        appendSentence(
            note, filledIn(texts.text(Text::opinionTower), {std::to_string(opinion.towerPercent)}));
    appendSentence(
        note, filledIn(texts.text(Text::opinionPeakLength), {shortestText(opinion.pulseHours)}));
    return note;
}

std::string opinionMessage(const Texts& texts, const SecondOpinion& opinion, double groundTemp,
                           UnitSystem units) {
    const Teller teller{texts, groundTemp, units};
    std::string message;
    if (opinion.importerMissing) appendSentence(message, texts.text(Text::opinionNoImporter));
    if (opinion.reason.holds()) {
        appendSentence(message, teller.wholeReason(opinion.reason, opinion));
        return message;
    }
    for (const Mode mode : modes)
        if (const OpinionReason& why = opinion.reasonOfMode[mode]; why.holds())
            appendSentence(message, teller.modeReason(why, mode, opinion));
    return message;
}

std::string shownMessage(const Texts& texts, const SecondOpinion& opinion, double groundTemp,
                         UnitSystem units) {
    if (opinion.reason.holds()) return opinionMessage(texts, opinion, groundTemp, units);
    return Teller{texts, groundTemp, units}.wholeReason(opinion.reasonOfShown, opinion);
}

}  // namespace varnholt
