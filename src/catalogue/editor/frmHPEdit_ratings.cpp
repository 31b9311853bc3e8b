// SPDX-License-Identifier: GPL-3.0-or-later
// The rating pages: each row declares all that there is to a field.
#include <functional>

#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/field_texts.h"
#include "catalogue/editor/frmHPEdit.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {
namespace {

constexpr double unlimited = 1e308;
constexpr double usualWater = 90;  // degF
constexpr double noFlow = -1;      // gpm
constexpr UnitTexts sourceFlowUnits{Text::waterFlowUnitsEnglish, Text::waterFlowUnitsMetric};
constexpr const char* topic = "pump_editor#ratings";

UnitTexts unitsOf(FittedQuantity quantity) {
    return quantity == fittedCapacity ? UnitTexts{Text::loadUnitsEnglish, Text::loadUnitsMetric}
                                      : UnitTexts{Text::loadUnitsMetric, Text::loadUnitsMetric};
}

double& valueAt(pump& model, Mode mode, std::size_t flow, FittedQuantity quantity,
                std::size_t point) {
    HeatMode& measured = model.ewt[firstRatingRow[mode] + point].flowRate[flow].HeatMode[mode];
    return quantity == fittedCapacity ? measured.capacity : measured.watts;
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
    for (std::size_t flow = 0; flow < 2; ++flow) addFlowField(mode, flow);
    for (std::size_t point = 0; point < ratingPoints; ++point) {
        addWaterField(mode, point);
        for (std::size_t flow = 0; flow < 2; ++flow) addPointFields(mode, flow, point);
    }
}

/// The source flows of all points, in both modes, are one pair.
void frmHPEdit::addFlowField(Mode mode, std::size_t flow) {
    constexpr int captions[] = {Text::flowRateOne, Text::flowRateTwo};
    const auto get = [this, flow] {
        const pump* model = shownPump();
        return model == nullptr ? 0 : model->ewt[3].flowRate[flow].flowRate;
    };
    const auto set = [this, flow](double value) {
        pump* model = editShownPump();
        if (model == nullptr) return;
        for (ewt& row : model->ewt) row.flowRate[flow].flowRate = value;
    };
    const std::string stem = prefixOf(mode) + "FlowRate";
    addField({.control = elementName(stem + "Text", flow),
              .stored = {get, set},
              .quantity = &quantities::waterFlow,
              .lowest = -unlimited,
              .beside = {.frame = pageFrames[ratingPage[mode]],
                         .label = elementName(stem + "Label", flow),
                         .caption = {captions[flow], captions[flow]},
                         .unitLabel = elementName(stem + "UnitLabel", flow),
                         .unit = sourceFlowUnits,
                         .help = topic},
              .checkedWhenLeft = true,
              .notTaken = noFlow,
              .changed = [this, mode, flow] { flowEdited(flow, mode); }});
}

void frmHPEdit::addWaterField(Mode mode, std::size_t point) {
    addField({.control = elementName(prefixOf(mode) + "EWTText", point),
              .stored = ofShownPump([mode, point](pump& model) -> double& {
                  return model.ewt[firstRatingRow[mode] + point].temperature;
              }),
              .quantity = &quantities::temperature,
              .lowest = coldestField,
              .highest = hottestField,
              .fallback = usualWater,
              .beside = {.frame = pageFrames[ratingPage[mode]],
                         .label = elementName("EWTLabel", mode),
                         .caption = {Text::enteringWater, Text::enteringWater},
                         .unitLabel = prefixOf(mode) + "EWTUnitLabel",
                         .unit = degreeTexts,
                         .help = topic,
                         .distinction = rowTexts[point]},
              .checkedWhenLeft = true,
              .changed = [this, mode] { ratingEdited(mode); }});
}

/// Capacity and power of a point at one of the flows, and the COP that they make.
void frmHPEdit::addPointFields(Mode mode, std::size_t flow, std::size_t point) {
    const std::string frame = pageFrames[ratingPage[mode]];
    for (const FittedQuantity quantity : fittedQuantities)
        addPointField(mode, flow, quantity, point);
    const std::string COP = ratingColumn(mode, flow, "COP");
    if (point == 0) add(COP + "HeadLabel", ControlKind::label).in(frame);
    add(elementName(COP + "Label", point), ControlKind::label).in(frame);
}

void frmHPEdit::addPointField(Mode mode, std::size_t flow, FittedQuantity quantity,
                              std::size_t point) {
    constexpr int captions[] = {Text::ratedCapacity, Text::ratedPower};
    constexpr int secondNames[] = {Text::secondCapacity, Text::secondPower};
    const bool capacity = quantity == fittedCapacity;
    const std::string column = ratingColumn(mode, flow, wordOf(quantity));
    addField({.control = ratingField(mode, flow, quantity, point),
              .stored = ofShownPump([mode, flow, quantity, point](pump& model) -> double& {
                  return valueAt(model, mode, flow, quantity, point);
              }),
              .quantity = capacity ? &quantities::load : &quantities::plain,
              .format = capacity ? "###0.0" : "###0.00",
              .beside = {.frame = pageFrames[ratingPage[mode]],
                         .label = column + "Label",
                         .caption = {captions[quantity], captions[quantity]},
                         .unitLabel = column + "UnitLabel",
                         .unit = unitsOf(quantity),
                         .help = topic,
                         .accessible = flow == 0 ? 0 : secondNames[quantity],
                         .distinction = rowTexts[point]},
              .checkedWhenLeft = true,
              .changed = [this, mode] { ratingEdited(mode); }});
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

}  // namespace varnholt
