// SPDX-License-Identifier: GPL-3.0-or-later
// The correction pages: each row declares all that there is to a field.
#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/field_texts.h"
#include "catalogue/editor/frmHPEdit.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {
namespace {

constexpr double usualPercent = 100;
constexpr double mostPercent = 10000;
constexpr double mostLoadFlow = 1000000;  // cfm or gpm

double& placeAt(pump& model, CorrectionKind kind, Mode mode, std::size_t row) {
    return kind == byTemperature ? model.eat[row].temperature[mode] : model.elf[row].percent[mode];
}

double& factorAt(pump& model, CorrectionKind kind, Mode mode, FittedQuantity quantity,
                 std::size_t row) {
    if (kind == byTemperature)
        return (quantity == fittedCapacity ? model.eat[row].capacityCorrection
                                           : model.eat[row].wattsCorrection)[mode];
    return (quantity == fittedCapacity ? model.elf[row].capacityCorrection
                                       : model.elf[row].wattsCorrection)[mode];
}

}  // namespace

void frmHPEdit::addCorrectionPage(CorrectionKind kind) {
    const std::string frame = pageFrames[correctionPage[kind]];
    add(frame, ControlKind::frame,
        kind == byTemperature ? Text::temperatureCorrections : Text::flowCorrections)
        .in("PumpDataPicture");
    if (kind == byFlow) addNominalFlow();
    addCorrectionHeads(kind);
    addCorrectionFields(kind);
    addTableCommands(correctionPage[kind], frame);
    addCorrectionCurves(kind);
    add(elementName("CorrectionsChart", kind), ControlKind::image, Text::correctionsChart)
        .in(frame);
}

void frmHPEdit::addNominalFlow() {
    const bool air = labelledType_ == 0;
    addField(
        {.control = "NominalFlowText",
         .stored = ofShownPump([](pump& model) -> double& { return model.nominalFlow; }),
         .quantity = air ? &quantities::airFlow : &quantities::waterFlow,
         .highest = mostLoadFlow,
         .format = "###0",
         .metricFormat = "###0.0",
         .beside = {.frame = pageFrames[correctionPage[byFlow]],
                    .label = "NominalFlowLabel",
                    .caption = {Text::nominalFlow, Text::nominalFlow},
                    .unitLabel = "NominalFlowRateLabel",
                    .unit =
                        air ? UnitTexts{Text::airFlowUnitsEnglish, Text::airFlowUnitsMetric}
                            : UnitTexts{Text::loadWaterUnitsEnglish, Text::loadWaterUnitsMetric},
                    .help = "pump_editor#corrections"},
         .checkedWhenLeft = true,
         .changed = [this] { markChanged(); }});
}

void frmHPEdit::addCorrectionHeads(CorrectionKind kind) {
    const std::string frame = pageFrames[correctionPage[kind]];
    constexpr ByMode<int> modeTexts{Text::cooling, Text::heating};
    for (const Mode mode : modes) {
        add(elementName(prefixOf(mode) + "CorrectionsLabel", kind), ControlKind::label,
            modeTexts[mode])
            .in(frame);
        if (kind == byTemperature)
            add(elementName("ELTLabel", mode), ControlKind::label).in(frame);
        else
            add(elementName("PercentNominalLabel", mode), ControlKind::label,
                Text::percentOfNominal)
                .in(frame);
    }
}

void frmHPEdit::addCorrectionFields(CorrectionKind kind) {
    const std::string frame = pageFrames[correctionPage[kind]];
    const auto factor = [&](Mode mode, FittedQuantity quantity, std::size_t row) {
        constexpr int captions[] = {Text::capacityFactor, Text::powerFactor};
        addField({.control = factorField(kind, mode, quantity, row),
                  .stored = ofShownPump([kind, mode, quantity, row](pump& model) -> double& {
                      return factorAt(model, kind, mode, quantity, row);
                  }),
                  .format = "###0.000",
                  .beside = {.frame = frame,
                             .label = elementName(
                                 prefixOf(mode) + wordOf(quantity) + "FactorHeadLabel", kind),
                             .caption = {captions[quantity], captions[quantity]},
                             .help = "pump_editor#corrections",
                             .distinction = rowTexts[row]},
                  .checkedWhenLeft = true,
                  .changed = [this, kind] { correctionEdited(kind); }});
    };
    for (std::size_t row = 0; row < mostFitPoints; ++row)
        for (const Mode mode : modes) {
            addCorrectionPlace(kind, mode, row);
            for (const FittedQuantity quantity : fittedQuantities) factor(mode, quantity, row);
            if (row < firstZeroRow) continue;
            add(elementName("cmdZeroZap", zeroButton(kind, mode, row)), ControlKind::button,
                Text::zeroRow)
                .setTooltip(text(Text::zeroRowTip))
                .in(frame)
                .helpedBy("pump_editor#corrections");
        }
}

/// The temperature or the flow that a row of factors belongs to.
void frmHPEdit::addCorrectionPlace(CorrectionKind kind, Mode mode, std::size_t row) {
    const bool temperature = kind == byTemperature;
    addField(
        {.control = placeField(kind, mode, row),
         .stored = ofShownPump(
             [kind, mode, row](pump& model) -> double& { return placeAt(model, kind, mode, row); }),
         .quantity = temperature ? &quantities::temperature : &quantities::plain,
         .lowest = 0,
         .highest = temperature ? hottestField : mostPercent,
         .fallback = temperature ? 0 : usualPercent,
         .format = temperature ? "###0.0" : "###0",
         .beside = {.frame = pageFrames[correctionPage[kind]],
                    .label = elementName(temperature ? "ELTLabel" : "PercentNominalLabel", mode),
                    .unitLabel = temperature ? prefixOf(mode) + "ELTUnitLabel" : std::string(),
                    .unit = temperature ? degreeTexts : UnitTexts{},
                    .help = "pump_editor#corrections",
                    .accessible = temperature ? Text::correctionTemperature : 0,
                    .distinction = rowTexts[row]},
         .checkedWhenLeft = true,
         .changed = [this, kind] { correctionEdited(kind); }});
}

void frmHPEdit::addCorrectionCurves(CorrectionKind kind) {
    const std::string frame = elementName("CorrectionsCoefficientsFrame", kind);
    add(frame, ControlKind::frame, Text::coefficientsFrame).in(pageFrames[correctionPage[kind]]);
    for (std::size_t k = 0; k < mostTerms; ++k)
        add(elementName("CorrectionsCoefficientLabel", kind * mostTerms + k), ControlKind::label,
            termTexts[k])
            .in(frame);
    for (const Mode mode : modes)
        for (const FittedQuantity quantity : fittedQuantities) {
            const std::string stem = correctionStem(mode, quantity);
            addCoefficientRow(frame, stem, stem + "Text", kind * mostTerms, mostTerms,
                              curveTexts[quantity][mode]);
        }
    add(elementName("CoefficientsCalculateCommand", kind), ControlKind::button,
        Text::calculateCoefficients)
        .in(frame)
        .helpedBy("pump_editor#curves");
}

}  // namespace varnholt
