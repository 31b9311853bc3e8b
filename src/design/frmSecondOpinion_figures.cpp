// SPDX-License-Identifier: GPL-3.0-or-later
// What the second opinion's window shows.
#include <string>

#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmSecondOpinion.h"
#include "design/second_opinion_texts.h"
#include "forms/text_numbers/second_opinion.h"

namespace varnholt {
namespace {

std::string temperatureOrDash(const std::optional<double>& value, const Quantity& quantity,
                              UnitSystem units) {
    return value ? formatNumber(quantity.shown(*value, units), "###0.0") : "-";
}

}  // namespace

void frmSecondOpinion::showInputs() {
    fields().showAll();
    control("SEShapeCombo").setIndex(inputs().shape);
    control("SESouthCheck").setChecked(inputs().southern);
    control("SECylinderCheck").setChecked(inputs().cylinder);
    showDepthChoice();
}

void frmSecondOpinion::showDepthChoice() {
    for (const std::int16_t choice : {depthOfDesign, depthOfSecondOpinion, depthAsTyped})
        element("SEDepthOption", choice).setChecked(inputs().depthChoice == choice);
}

void frmSecondOpinion::showFigures() {
    showSizes();
    showParts();
    showTable();
    showYearOfMonths();
    showMessage();
    control("SENoteLabel").setCaption(opinionNote(texts(), opinion()));
}

void frmSecondOpinion::showSizes() {
    const SecondOpinion& shown = opinion();
    const auto& rows = design().project().arrangement.patternRows;
    const double bores = rows[0] * rows[1];
    for (const Mode mode : modes) {
        const double classical = shown.classicalLength[mode];
        const auto write = [&](const char* array, const std::string& caption) {
            control(elementName(array, mode)).setCaption(caption);
        };
        const auto length = [&](double feet) {
            return feet > 0 ? formatNumber(quantities::length.shown(feet, units()), "###0.0") : "-";
        };
        write("SEClassicalLabel", length(classical));
        write("SEClassicalDepthLabel", length(bores > 0 ? classical / bores : 0));
        write("SELengthLabel", lengthOrDash(shown.soLength, shown, mode, units()));
        write("SEBoreDepthLabel", lengthOrDash(shown.soDepth, shown, mode, units()));
        const std::string percent = differenceOrDash(shown, mode);
        write("SEDifferenceLabel",
              percent == "-" ? percent : filledIn(text(Text::opinionPercent), {percent}));
        write("SEMonthLabel", monthOfYearText(texts(), shown.soMonth[mode]));
    }
}

void frmSecondOpinion::showParts() {
    constexpr ByMode<const char*> arrays{"SECoolingPartLabel", "SEHeatingPartLabel"};
    for (const Mode mode : modes)
        for (std::size_t part = 0; part < lengthPartTexts.size(); ++part)
            control(elementName(arrays[mode], part))
                .setCaption(partOrDash(opinion(), mode, part, units()));
}

void frmSecondOpinion::showTable() {
    const auto write = [&](const char* array, std::size_t line, const std::string& caption) {
        control(elementName(array, line)).setCaption(caption);
    };
    using namespace quantities;
    for (std::size_t line = 0; line < opinionYears.size(); ++line) {
        const OpinionYearLine& year = opinion().years[line];
        write("SEYearLabel", line, formatNumber(opinionYears[line], "###0"));
        write("SEPenaltyLabel", line,
              temperatureOrDash(year.penalty, quantities::temperatureDifference, units()));
        write("SEHighLabel", line, temperatureOrDash(year.high, temperature, units()));
        write("SELowLabel", line, temperatureOrDash(year.low, temperature, units()));
    }
    for (const Mode mode : modes) {
        std::optional<double> penalty;
        if (opinion().classicalLength[mode] > 0)
            penalty = design().lateSecondOpinion().classicalPenalty()[mode];
        write("SEClassicalPenaltyLabel", mode,
              temperatureOrDash(penalty, quantities::temperatureDifference, units()));
    }
}

/// The history shows all years, or the months of one.
void frmSecondOpinion::showYearOfMonths() {
    Control& chosen = control("SEYearUpDown");
    const auto last = static_cast<double>(yearsShown());
    chosen.setRange(0, last);
    if (chosen.value() > last) chosen.setValue(0);
    const std::string year = formatNumber(chosen.value(), "###0");
    control("SEYearShownLabel")
        .setCaption(chosen.value() < 1 ? text(Text::opinionAllYears)
                                       : filledIn(text(Text::opinionOneYear), {year}));
}

void frmSecondOpinion::showMessage() {
    const std::string reasons =
        opinionMessage(texts(), opinion(), design().project().soil.groundTemp, units());
    control("SEMessageLabel").setCaption(pasteFault_.empty() ? reasons : pasteFault_);
}

}  // namespace varnholt
