// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/what_if_texts.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "basis/number_text.h"
#include "design/shared_texts.h"
#include "forms/numeric_field.h"
#include "forms/quantity.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

std::string withUnit(const std::string& figure, const WhatIfTeller& teller, UnitTexts unit) {
    return figure + ' ' + teller.text(unit.in(teller.units));
}

/// The step up to which a depth is rounded: a figure bears no more digits than its error leaves.
double stepFor(double error) { return error < 10 ? 1 : 10; }

double roundedUp(double value, double step) {
    // What is a whole step but for rounding stays there.
    constexpr double give = 1e-9;
    return std::ceil(value / step - give) * step;
}

std::string figureAtLeast(const WhatIfTeller& teller, double feet, double error) {
    const double step = stepFor(quantities::length.shown(error, teller.units));
    return formatNumber(roundedUp(quantities::length.shown(feet, teller.units), step), "###0");
}

/// Two figures that count, as a price difference is told.
double roundedMoney(double value) {
    if (value == 0) return 0;
    const double step = std::pow(10, std::max(0.0, std::floor(std::log10(std::abs(value))) - 1));
    return std::round(value / step) * step;
}

std::string modeWord(const WhatIfTeller& teller, Mode mode) {
    return teller.text(mode == cooling ? Text::cooling : Text::heating);
}

/// How far the other method is from this one, for the end of a sentence; empty where one of the two
/// has no need.
std::string otherMethodClause(const WhatIfTeller& teller, const WhatIf& found,
                              std::int16_t measure) {
    if (!(found.needGoverning > 0) || !(found.otherNeed > 0)) return {};
    const double difference = percentOfWhole * (found.otherNeed / found.needGoverning - 1);
    const bool more = difference >= 0;
    const int words = measure == classicalMethod
                          ? (more ? Text::whatIfOpinionMore : Text::whatIfOpinionLess)
                          : (more ? Text::whatIfClassicalMore : Text::whatIfClassicalLess);
    return filledIn(teller.text(words), {formatNumber(std::abs(difference), "###0")});
}

/// Whether the spreads are all those that the program gives for this knowledge of the ground, or
/// some of them. That the method itself is not in doubt is nobody's figure.
void tellOfSpreads(const WhatIfTeller& teller, const WhatIfInputs& inputs, std::string& note) {
    const Spreads builtIn = withKnowledge({}, static_cast<GroundKnowledge>(inputs.knowledge));
    const Spreads& now = inputs.spreads;
    if (now == builtIn) return appendSentence(note, teller.text(Text::whatIfSpreadsBuiltIn));
    for (std::size_t j = 0; j < method; ++j)
        if (now.low[j] == builtIn.low[j] && now.high[j] == builtIn.high[j])
            return appendSentence(note, teller.text(Text::whatIfSomeSpreadsBuiltIn));
}

/// Whether any sum of money is the program's, beside some that are not.
bool hasPriceBuiltIn(const Prices& prices) {
    constexpr double Prices::*sums[] = {&Prices::costFixed, &Prices::costBore,   &Prices::costFoot,
                                        &Prices::costDeep,  &Prices::costTrench, &Prices::costTower,
                                        &Prices::costCare,  &Prices::costGround, &Prices::costPipe,
                                        &Prices::costEnergy};
    const Prices builtIn;
    return std::any_of(std::begin(sums), std::end(sums),
                       [&](double Prices::*sum) { return prices.*sum == builtIn.*sum; });
}

void tellOfPrices(const WhatIfTeller& teller, const WhatIfInputs& inputs, std::string& note) {
    const bool builtIn = inputs.prices == Prices{};
    const int words = builtIn                   ? Text::whatIfPricesBuiltIn
                      : inputs.pricesOf.empty() ? Text::whatIfPricesIn
                                                : Text::whatIfPricesOf;
    appendSentence(note, filledIn(teller.text(words), {inputs.currency, inputs.pricesOf}));
    if (!builtIn && hasPriceBuiltIn(inputs.prices))
        appendSentence(note, teller.text(Text::whatIfSomePricesBuiltIn));
}

}  // namespace

const std::array<int, quantityCount> quantityTexts{
    Text::whatIfConductivity, Text::whatIfHeatCapacity, Text::whatIfGroundTemperature,
    Text::whatIfResistance,   Text::whatIfCoolingLoads, Text::whatIfHeatingLoads,
    Text::whatIfCoolingHours, Text::whatIfHeatingHours, Text::whatIfPumpPower,
    Text::whatIfMethodItself};

const std::array<int, leverCount> leverTexts{Text::whatIfLeverCooling, Text::whatIfLeverHeating,
                                             Text::whatIfLeverSeparation, Text::whatIfLeverYears,
                                             Text::whatIfLeverFlow};

const std::array<int, 5> costPartTexts{Text::whatIfPartDrilling, Text::whatIfPartBores,
                                       Text::whatIfPartFixed, Text::whatIfPartTrench,
                                       Text::whatIfPartTower};

std::string groupedNumber(double value) {
    constexpr std::size_t group = 3;
    std::string digits = formatNumber(value, "###0");
    const std::size_t first = digits.starts_with('-') ? 1 : 0;
    for (std::size_t end = digits.size(); end > first + group; end -= group)
        digits.insert(end - group, ",");
    return digits;
}

std::string WhatIfTeller::length(double feet) const {
    if (!(feet > 0)) return "-";
    return withUnit(groupedNumber(quantities::length.shown(feet, units)), *this, lengthUnit);
}

std::string WhatIfTeller::depth(double feet) const {
    if (!(feet > 0)) return "-";
    return withUnit(formatNumber(quantities::length.shown(feet, units), "###0.0"), *this,
                    lengthUnit);
}

std::string WhatIfTeller::depthAtLeast(double feet, double error) const {
    if (!(feet > 0)) return "-";
    return withUnit(figureAtLeast(*this, feet, error), *this, lengthUnit);
}

std::string WhatIfTeller::inSentence(double feet) const {
    constexpr double whole = 100;
    constexpr double tenth = 10;
    const double shown = quantities::length.shown(feet, units);
    const double rounded = shown < whole ? std::round(tenth * shown) / tenth : std::round(shown);
    return withUnit(shortestText(rounded), *this, lengthUnit);
}

std::string WhatIfTeller::temperature(double fahrenheit) const {
    return withUnit(formatNumber(quantities::temperature.shown(fahrenheit, units), "###0.0"), *this,
                    temperatureUnit);
}

/// A sign stands before its figure, a word apart from it.
std::string WhatIfTeller::money(double value) const {
    const bool word =
        !currency.empty() && std::isalpha(static_cast<unsigned char>(currency.back()));
    return currency + (word ? " " : "") + groupedNumber(value);
}

std::string WhatIfTeller::reason(const Reason& reason) const {
    if (!reason.holds()) return {};
    std::string sentence = text(reason.text);
    // From the last one on, so that %1 does not take the beginning of %10.
    for (std::size_t i = reason.figures.size(); i > 0; --i) {
        const Figure& figure = reason.figures[i - 1];
        const std::string told = figure.kind == FigureKind::feet ? inSentence(figure.value)
                                 : figure.kind == FigureKind::fahrenheit
                                     ? temperature(figure.value)
                                     : groupedNumber(figure.value);
        const std::string place = "%" + std::to_string(i);
        if (const std::size_t at = sentence.find(place); at != std::string::npos)
            sentence.replace(at, place.size(), told);
    }
    return sentence;
}

std::string frequencyText(const Texts& texts, double share) {
    const double of100 = std::round(percentOfWhole * share);
    if (of100 < 1) return texts.text(Text::whatIfFewerThanOne);
    if (of100 > 99) return texts.text(Text::whatIfMoreThan99);
    return formatNumber(of100, "#0");
}

std::string whatIfMessage(const WhatIfTeller& teller, const WhatIf& found) {
    std::string message = teller.reason(found.reason);
    if (!message.empty()) return message;
    for (const Mode mode : modes) {
        appendSentence(message, teller.reason(found.reasonOfMode[mode]));
        if (found.hiddenByRun[mode])
            appendSentence(message, filledIn(teller.text(Text::whatIfHiddenByRun),
                                             {captionWords(modeWord(teller, mode))}));
    }
    if (found.failedSamples > 0)
        appendSentence(message, filledIn(teller.text(Text::whatIfFailedCases),
                                         {groupedNumber(static_cast<double>(found.failedSamples)),
                                          groupedNumber(static_cast<double>(found.sampleCount))}));
    return message;
}

std::string whatIfNote(const WhatIfTeller& teller, const WhatIf& found,
                       const WhatIfInputs& inputs) {
    if (found.reason.holds()) return {};
    const std::string clause = otherMethodClause(teller, found, inputs.measure);
    std::string note = clause.empty() ? teller.text(Text::whatIfNotCounted)
                                      : filledIn(teller.text(Text::whatIfNotCountedBut), {clause});
    tellOfSpreads(teller, inputs, note);
    tellOfPrices(teller, inputs, note);
    return note;
}

std::string holdsQuestion(const WhatIfTeller& teller, const WhatIf& found,
                          const WhatIfInputs& inputs) {
    if (found.reason.holds() || found.sampleCount == 0 || !(found.drawnDepth > 0)) return "-";
    const std::string depth = inputs.drawnDepth > 0 ? teller.inSentence(found.drawnDepth)
                                                    : teller.depthAtLeast(found.drawnDepth);
    return filledIn(teller.text(Text::whatIfHoldsIn),
                    {frequencyText(teller.texts, found.holds), groupedNumber(found.bores), depth});
}

std::string testSentence(const WhatIfTeller& teller, const WhatIf& found,
                         const WhatIfInputs& inputs) {
    if (!(found.testSaves > 0) || !(found.confidentDepth > 0)) return {};
    const auto drilling = [&](double depth) {
        return costParts({found.bores, depth, 0, 0}, inputs.prices)[drillingPart];
    };
    const double saved = drilling(found.confidentDepth) - drilling(found.testDepth);
    return filledIn(
        teller.text(Text::whatIfTestSaves),
        {figureAtLeast(teller, found.testDepth, 0), teller.depthAtLeast(found.confidentDepth),
         formatNumber(inputs.confidence, "#0"), teller.length(found.testSaves),
         teller.money(roundedMoney(saved))});
}

std::string samplingSentence(const WhatIfTeller& teller, const WhatIf& found) {
    if (!(found.needP90 > 0) || !(found.bores > 0)) return {};
    const double error = found.needError / found.bores;
    const double shown = quantities::length.shown(error, teller.units);
    return filledIn(teller.text(Text::whatIfSampling),
                    {figureAtLeast(teller, found.needP90 / found.bores, error),
                     formatNumber(std::max(1.0, roundedUp(shown, 1)), "###0"),
                     teller.text(lengthUnit.in(teller.units))});
}

std::string layoutLine(const WhatIfTeller& teller, const LayoutField& field) {
    const LatticeField& lattice = field.field;
    std::string line = filledIn(
        teller.text(Text::whatIfLayoutLine),
        {std::to_string(lattice.rows), std::to_string(lattice.columns),
         groupedNumber(static_cast<double>(lattice.bores)), teller.depth(lattice.separation),
         teller.depth(field.depth), teller.money(field.firstCost)});
    if (field.otherDepth > 0)
        line +=
            ' ' + filledIn(teller.text(Text::whatIfLayoutOther), {teller.depth(field.otherDepth)});
    return line;
}

std::string layoutMessage(const WhatIfTeller& teller, const Layouts& found) {
    std::string message = teller.reason(found.reason);
    for (const Reason& note : found.notes) appendSentence(message, teller.reason(note));
    return message;
}

}  // namespace varnholt
