// SPDX-License-Identifier: GPL-3.0-or-later
// The pages with tables: each row declares all that there is to a field.
#include <functional>

#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "forms/text_numbers.h"

namespace varnholt {
namespace {

constexpr double coldest = 0, hottest = 212;  // degF
constexpr double unlimited = 1e308;
constexpr double usualWater = 90;  // degF
constexpr double usualPercent = 100;
constexpr double mostPercent = 10000;
constexpr double mostLoadFlow = 1000000;  // cfm or gpm
constexpr double noFlow = -1;
constexpr UnitTexts degrees{Text::temperatureUnitsEnglish, Text::temperatureUnitsMetric};
constexpr UnitTexts sourceFlowUnits{Text::waterFlowUnitsEnglish, Text::waterFlowUnitsMetric};
constexpr int rowTexts[] = {Text::rowOne, Text::rowTwo, Text::rowThree, Text::rowFour,
                            Text::rowFive};
constexpr ByMode<int> curveTexts[] = {{Text::coolingCapacityCurve, Text::heatingCapacityCurve},
                                      {Text::coolingPowerCurve, Text::heatingPowerCurve}};
constexpr int termTexts[] = {Text::coefficientA, Text::coefficientB, Text::coefficientC,
                             Text::coefficientD};

UnitTexts unitsOf(FittedQuantity quantity) {
    return quantity == fittedCapacity ? UnitTexts{Text::loadUnitsEnglish, Text::loadUnitsMetric}
                                      : UnitTexts{Text::loadUnitsMetric, Text::loadUnitsMetric};
}

double& valueAt(pump& model, Mode mode, std::size_t flow, FittedQuantity quantity,
                std::size_t point) {
    HeatMode& measured = model.ewt[firstRatingRow[mode] + point].flowRate[flow].HeatMode[mode];
    return quantity == fittedCapacity ? measured.capacity : measured.watts;
}

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

/// A number of the pump on show by then; 0 while there is none.
using NumberOf = std::function<double&(pump&)>;
using ReadPump = std::function<const pump*()>;
using EditPump = std::function<pump*()>;

StoredNumber ofPump(const ReadPump& shown, const EditPump& edited, const NumberOf& number) {
    return {[shown, number] {
                const pump* model = shown();
                return model == nullptr ? 0 : number(const_cast<pump&>(*model));
            },
            [edited, number](double value) {
                if (pump* model = edited()) number(*model) = value;
            }};
}

/// The source flows of all points are one pair.
StoredNumber flowPair(const ReadPump& shown, const EditPump& edited, std::size_t flow) {
    return {[shown, flow] {
                const pump* model = shown();
                return model == nullptr ? 0 : model->ewt[3].flowRate[flow].flowRate;
            },
            [edited, flow](double value) {
                pump* model = edited();
                if (model == nullptr) return;
                for (ewt& row : model->ewt) row.flowRate[flow].flowRate = value;
            }};
}

}  // namespace

void frmHPEdit::addRatingPage(Mode mode) {
    const std::string frame = pageFrames[ratingPage[mode]];
    constexpr ByMode<int> captions{Text::coolingSpecifications, Text::heatingSpecifications};
    add(frame, ControlKind::frame, captions[mode]).in("PumpDataPicture");
    addRatingFields(mode);
    addTableCommands(ratingPage[mode], frame);
    addRatingCurves(mode);
    add(prefixOf(mode) + "RatingChart", ControlKind::image, Text::ratingChart).in(frame);
}

void frmHPEdit::addRatingFields(Mode mode) {
    const ReadPump shown = [this] { return shownPump(); };
    const EditPump edited = [this] { return editShownPump(); };
    const std::string frame = pageFrames[ratingPage[mode]], prefix = prefixOf(mode);
    const std::string help = "pump_editor#ratings";
    constexpr int flowTexts[] = {Text::flowRateOne, Text::flowRateTwo};
    for (std::size_t flow = 0; flow < 2; ++flow)
        addField({.control = elementName(prefix + "FlowRateText", flow),
                  .stored = flowPair(shown, edited, flow),
                  .quantity = &quantities::waterFlow,
                  .lowest = -unlimited,
                  .beside = {.frame = frame,
                             .label = elementName(prefix + "FlowRateLabel", flow),
                             .caption = {flowTexts[flow], flowTexts[flow]},
                             .unitLabel = elementName(prefix + "FlowRateUnitLabel", flow),
                             .unit = sourceFlowUnits,
                             .help = help},
                  .checkedWhenLeft = true,
                  .notTaken = noFlow,
                  .changed = [this, mode, flow] { flowEdited(flow, mode); }});
    const std::string waterLabel = elementName("EWTLabel", mode);
    const auto point = [&](std::size_t flow, FittedQuantity quantity, std::size_t i) {
        const std::string stem = prefix + "FR" + std::to_string(flow + 1) + wordOf(quantity);
        constexpr int captions[] = {Text::ratedCapacity, Text::ratedPower};
        constexpr int secondNames[] = {Text::secondCapacity, Text::secondPower};
        addField({.control = ratingField(mode, flow, quantity, i),
                  .stored = ofPump(shown, edited,
                                   [mode, flow, quantity, i](pump& model) -> double& {
                                       return valueAt(model, mode, flow, quantity, i);
                                   }),
                  .quantity = quantity == fittedCapacity ? &quantities::load : &quantities::plain,
                  .format = quantity == fittedCapacity ? "###0.0" : "###0.00",
                  .beside = {.frame = frame,
                             .label = stem + "Label",
                             .caption = {captions[quantity], captions[quantity]},
                             .unitLabel = stem + "UnitLabel",
                             .unit = unitsOf(quantity),
                             .help = help,
                             .accessible = flow == 0 ? 0 : secondNames[quantity],
                             .distinction = rowTexts[i]},
                  .checkedWhenLeft = true,
                  .changed = [this, mode] { ratingEdited(mode); }});
    };
    for (std::size_t i = 0; i < ratingPoints; ++i) {
        addField({.control = elementName(prefix + "EWTText", i),
                  .stored = ofPump(shown, edited,
                                   [mode, i](pump& model) -> double& {
                                       return model.ewt[firstRatingRow[mode] + i].temperature;
                                   }),
                  .quantity = &quantities::temperature,
                  .lowest = coldest,
                  .highest = hottest,
                  .fallback = usualWater,
                  .beside = {.frame = frame,
                             .label = waterLabel,
                             .caption = {Text::enteringWater, Text::enteringWater},
                             .unitLabel = prefix + "EWTUnitLabel",
                             .unit = degrees,
                             .help = help,
                             .distinction = rowTexts[i]},
                  .checkedWhenLeft = true,
                  .changed = [this, mode] { ratingEdited(mode); }});
        for (std::size_t flow = 0; flow < 2; ++flow) {
            for (const FittedQuantity quantity : fittedQuantities) point(flow, quantity, i);
            const std::string cop = prefix + "FR" + std::to_string(flow + 1) + "COP";
            if (i == 0) add(cop + "HeadLabel", ControlKind::label).in(frame);
            add(elementName(cop + "Label", i), ControlKind::label).in(frame);
        }
    }
}

/// Terms of a curve, and what is to be said of how it fits.
/// @param stem   of the names; @param array  of the fields with the terms, from `first` on
void frmHPEdit::addCoefficientRow(const std::string& frame, const std::string& stem,
                                  const std::string& array, std::size_t first, std::size_t terms,
                                  int captionText) {
    const std::string index =
        terms == mostTerms ? "(" + std::to_string(first / mostTerms) + ")" : std::string();
    const std::string label = curveLabel(stem, "Curve", index);
    add(label, ControlKind::label, captionText).in(frame);
    for (std::size_t k = 0; k < terms; ++k)
        add(elementName(array, first + k), ControlKind::text)
            .captionedBy(label)
            .in(frame)
            .setLocked(true)
            .setAccessibleName(text(captionText) + ", " + text(termTexts[k]))
            .helpedBy("pump_editor#curves");
    add(curveLabel(stem, "Fit", index), ControlKind::label).in(frame);
    add(curveLabel(stem, "Turn", index), ControlKind::label)
        .in(frame)
        .setForecolor(colours::alarm)
        .setTooltip(text(Text::fitTurnsTip))
        .setVisible(false);
}

void frmHPEdit::addRatingCurves(Mode mode) {
    const std::string prefix = prefixOf(mode), page = pageFrames[ratingPage[mode]];
    const std::string frame = prefix + "CoefficientsFrame";
    add(frame, ControlKind::frame, Text::coefficientsFrame).in(page);
    for (std::size_t k = 0; k < 3; ++k)
        add(elementName(prefix + "CoefficientLabel", k), ControlKind::label, termTexts[k])
            .in(frame);
    for (const FittedQuantity quantity : fittedQuantities) {
        const std::string stem = ratingStem(mode, quantity);
        addCoefficientRow(frame, stem, stem + "Text", 0, 3, curveTexts[quantity][mode]);
    }
    add(prefix + "FlowFactorLabel", ControlKind::label, Text::flowFactors).in(frame);
    constexpr int captions[] = {Text::ratedCapacity, Text::ratedPower};
    for (const FittedQuantity quantity : fittedQuantities)
        add(elementName(prefix + "FlowFactorText", quantity), ControlKind::text)
            .captionedBy(prefix + "FlowFactorLabel")
            .in(frame)
            .setLocked(true)
            .setAccessibleName(text(Text::flowFactors) + ", " + text(captions[quantity]))
            .helpedBy("pump_editor#curves");
    add(elementName("CalculateCoefficientsCommand", mode), ControlKind::button,
        Text::calculateCoefficients)
        .in(frame)
        .helpedBy("pump_editor#curves");
}

void frmHPEdit::addCorrectionPage(CorrectionKind kind) {
    const std::string frame = pageFrames[correctionPage[kind]];
    add(frame, ControlKind::frame,
        kind == byTemperature ? Text::temperatureCorrectionsPage : Text::flowCorrectionsPage)
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
         .stored = ofPump([this] { return shownPump(); }, [this] { return editShownPump(); },
                          [](pump& model) -> double& { return model.nominalFlow; }),
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
        addField(
            {.control = factorField(kind, mode, quantity, row),
             .stored = ofPump([this] { return shownPump(); }, [this] { return editShownPump(); },
                              [kind, mode, quantity, row](pump& model) -> double& {
                                  return factorAt(model, kind, mode, quantity, row);
                              }),
             .format = "###0.000",
             .beside = {.frame = frame,
                        .label = elementName(prefixOf(mode) + wordOf(quantity) + "FactorHeadLabel",
                                             kind),
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
         .stored = ofPump(
             [this] { return shownPump(); }, [this] { return editShownPump(); },
             [kind, mode, row](pump& model) -> double& { return placeAt(model, kind, mode, row); }),
         .quantity = temperature ? &quantities::temperature : &quantities::plain,
         .lowest = 0,
         .highest = temperature ? hottest : mostPercent,
         .fallback = temperature ? 0 : usualPercent,
         .format = temperature ? "###0.0" : "###0",
         .beside = {.frame = pageFrames[correctionPage[kind]],
                    .label = elementName(temperature ? "ELTLabel" : "PercentNominalLabel", mode),
                    .unitLabel = temperature ? prefixOf(mode) + "ELTUnitLabel" : std::string(),
                    .unit = temperature ? degrees : UnitTexts{},
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

/// Keys in a table: what is pasted may fill more than the field.
void frmHPEdit::hookFields() {
    for (std::size_t page = 0; page < pageFrames.size(); ++page) {
        const auto rows = tableFields(page);
        for (const auto& row : rows)
            for (const std::string& field : row)
                onKey(field, [this, field](const std::string& key) { keyInField(field, key); });
        if (!rows.empty())
            onClick(elementName("CopyTableCommand", page),
                    [this, page] { CopyTableCommand_Click(page); });
    }
}

}  // namespace varnholt
