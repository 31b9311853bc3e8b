// SPDX-License-Identifier: GPL-3.0-or-later
// The curves of the pump on show: fitting, showing and judging them.
#include <utility>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "basis/units.h"
#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "catalogue/fitting/display_coefficients.h"
#include "catalogue/fitting/fit_quality.h"
#include "forms/text_numbers/editor_messages.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {
namespace {

constexpr std::array<const char*, mostTerms> correctionFormats{"###0.00000", "###0.00000",
                                                               "###0.000000", "###0.0000000"};
constexpr const char* ratingFormat = "###0.00000";

}  // namespace

/// A fit that fails ends in its message, with the pump and the button as they were.
void frmHPEdit::CalculateCoefficientsCommand_Click(Mode mode) {
    const pump* shown = shownPump();
    if (shown == nullptr) return;
    pump model = *shown;
    try {
        fitRating(model, mode);
    } catch (const RunTimeError& error) {
        return show(MessageIcon::exclamation, error.message());
    }
    fitted(std::move(model));
    element("CalculateCoefficientsCommand", static_cast<int>(mode))
        .setBackcolor(colours::buttonFace);
}

void frmHPEdit::CoefficientsCalculateCommand_Click(CorrectionKind kind) {
    const pump* shown = shownPump();
    if (shown == nullptr) return;
    pump model = *shown;
    bool all = false;
    try {
        all = fitCorrections(model, kind, [this](FitFault fault) { tellFault(fault); });
    } catch (const RunTimeError& error) {
        return show(MessageIcon::exclamation, error.message());
    }
    fitted(std::move(model));
    element("CoefficientsCalculateCommand", static_cast<int>(kind))
        .setBackcolor(all ? colours::buttonFace : colours::alarm);
}

void frmHPEdit::tellFault(FitFault fault) {
    platform().message(MessageIcon::exclamation, text(Text::correctionDataTitle),
                       text(fault == FitFault::noPlace ? Text::correctionPlaceMissing
                                                       : Text::correctionRowNotPositive));
}

/// The pump on show has other curves.
void frmHPEdit::fitted(pump model) {
    *editShownPump() = std::move(model);
    ShowCoefficients();
    showFlowFactors();
    recalculationNeeded = false;
    markChanged();
}

void frmHPEdit::ShowCoefficients() {
    const pump* shown = shownPump();
    if (shown == nullptr) return;
    const coefficients display = units() == UnitSystem::metric
                                     ? ConvertCoefficientsToMetric(shown->coefficients)
                                     : CopyCoefficientsForDisplay(shown->coefficients);
    for (const Mode mode : modes)
        for (const FittedQuantity quantity : fittedQuantities) {
            const Polynomial& rating = ratingCurve(display, quantity);
            for (std::size_t k = 0; k < ratingPoints; ++k)
                control(elementName(ratingStem(mode, quantity) + "Text", k))
                    .setText(formatNumber(rating[k][mode], ratingFormat));
            for (const CorrectionKind kind : {byTemperature, byFlow}) {
                const Polynomial& correction = correctionCurve(display, kind, quantity);
                for (std::size_t k = 0; k < mostTerms; ++k)
                    control(
                        elementName(correctionStem(mode, quantity) + "Text", kind * mostTerms + k))
                        .setText(formatNumber(correction[k][mode], correctionFormats[k]));
            }
        }
}

void frmHPEdit::showFlowFactors() {
    const pump* shown = shownPump();
    if (shown == nullptr) return;
    for (const Mode mode : modes)
        for (const FittedQuantity quantity : fittedQuantities)
            control(elementName(prefixOf(mode) + "FlowFactorText", quantity))
                .setText(formatNumber(shown->flowCf[quantity][mode], "###0.00"));
}

/// COP or EER of the measured points, and how the curves meet theirs.
void frmHPEdit::refreshJudgements() {
    const pump* shown = shownPump();
    const pump none;
    const pump& model = shown == nullptr ? none : *shown;
    for (const Mode mode : modes) {
        showMeasuredCOP(mode);
        for (const FittedQuantity quantity : fittedQuantities) {
            const std::string rating = ratingStem(mode, quantity);
            showFit(rating, {}, ratingCurve(model.coefficients, quantity), mode,
                    usedPoints(model, mode, quantity), true);
            const std::string correction = correctionStem(mode, quantity);
            for (const CorrectionKind kind : {byTemperature, byFlow})
                showFit(correction, "(" + std::to_string(kind) + ")",
                        correctionCurve(model.coefficients, kind, quantity), mode,
                        usedRows(model, kind, mode, quantity), kind == byTemperature);
        }
    }
}

void frmHPEdit::showMeasuredCOP(Mode mode) {
    const pump* shown = shownPump();
    const bool asEER = mode == cooling && units() == UnitSystem::english;
    for (std::size_t flow = 0; flow < 2; ++flow)
        for (std::size_t i = 0; i < ratingPoints; ++i) {
            Control& label = control(elementName(ratingColumn(mode, flow, "COP") + "Label", i));
            const auto COP =
                shown == nullptr
                    ? std::nullopt
                    : coefficientOfPerformance(
                          shown->ewt[firstRatingRow[mode] + i].flowRate[flow].HeatMode[mode]);
            const bool likely = !COP || isLikely(*COP);
            std::string figure =
                COP ? formatNumber(asEER ? *COP * mbtuPerKilowatt : *COP, "###0.0") : std::string();
            if (!likely) figure.insert(0, text(Text::unlikelySign) + " ");
            label.setCaption(std::move(figure))
                .setForecolor(likely ? colours::black : colours::alarm)
                .setBold(!likely)
                .setTooltip(
                    likely ? std::string()
                           : filledIn(text(Text::unlikelyCop), {formatNumber(*COP, "###0.0")}));
        }
}

/// @param index  of the labels, for the curves that have two of each
void frmHPEdit::showFit(const std::string& stem, const std::string& index, const Polynomial& curve,
                        Mode mode, const FitPoints& points, bool temperatures) {
    const auto place = [&](double x) {
        if (!temperatures) return formatNumber(x, "###0") + " " + text(Text::percentUnit);
        const bool metric = units() == UnitSystem::metric;
        return formatNumber(quantities::temperature.shown(x, units()), "###0.0") + " " +
               text(metric ? Text::temperatureUnitsMetric : Text::temperatureUnitsEnglish);
    };
    const auto deviation = greatestDeviation(curve, mode, points);
    control(curveLabel(stem, "Fit", index))
        .setCaption(
            deviation ? filledIn(text(Text::fitDeviation),
                                 {formatNumber(deviation->percent, "###0.00"), place(deviation->x)})
                      : std::string());
    const auto turn = deviation ? turningPoint(curve, mode, points) : std::nullopt;
    control(curveLabel(stem, "Turn", index))
        .setCaption(turn ? filledIn(text(Text::fitTurns), {place(*turn)}) : std::string())
        .setVisible(turn.has_value());
}

FitButtons frmHPEdit::redButtons() const {
    const auto isRed = [this](const char* button, std::size_t i) {
        return control(elementName(button, i)).backcolor() == colours::alarm;
    };
    FitButtons red;
    for (const Mode mode : modes) red.rating[mode] = isRed("CalculateCoefficientsCommand", mode);
    for (const CorrectionKind kind : {byTemperature, byFlow})
        red.correction[kind] = isRed("CoefficientsCalculateCommand", kind);
    return red;
}

/// Does what the notice of stale curves offers.
void frmHPEdit::fitStaleCurves() {
    const pump* shown = shownPump();
    if (shown == nullptr) return;
    const StaleCurves stale = staleCurves(*shown);
    for (const Mode mode : modes)
        if (stale.rating[mode]) CalculateCoefficientsCommand_Click(mode);
    for (const CorrectionKind kind : {byTemperature, byFlow})
        if (stale.correction[kind]) CoefficientsCalculateCommand_Click(kind);
}

}  // namespace varnholt
