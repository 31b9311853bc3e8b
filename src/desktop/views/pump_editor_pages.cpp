// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of measured data with their curves: figures at the left, pictures at the right.
#include "desktop/views/pump_editor_pages.h"

#include <QGridLayout>
#include <QLabel>

#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "desktop/drawings/drawings.h"
#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

constexpr int figuresInTable = 7;
constexpr int figuresOfTerm = 11;

const frmHPEdit* editorOf(const Binder& bind) { return static_cast<const frmHPEdit*>(bind.form()); }

QWidget* narrow(QWidget* field, int figures) {
    field->setFont(figureFont(field->font()));
    static_cast<FieldEdit*>(field)->setFigures(figures);
    return field;
}

QWidget* tableField(Binder& bind, const std::string& name, Mode mode) {
    bind.mark(name, mode);
    return narrow(bind.widget(name), figuresInTable);
}

QLabel* atRight(QWidget* label) {
    auto* text = static_cast<QLabel*>(label);
    text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return text;
}

QWidget* head(Binder& bind, const std::string& name) {
    QLabel* label = atRight(bind.widget(name));
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

QWidget* unit(Binder& bind, const std::string& name) {
    QLabel* label = atRight(bind.widget(name));
    mute(label);
    return label;
}

QWidget* figure(Binder& bind, const std::string& name) {
    constexpr int room = 5 * gridStep;
    QLabel* label = atRight(bind.widget(name));
    asFigures(label);
    label->setMinimumWidth(room);
    return label;
}

QWidget* nothing() { return new QWidget; }

/// Rows with a button stand no farther apart than rows without.
QWidget* asHighAsFields(QWidget* button) {
    button->setProperty("inTable", true);
    return button;
}

/// A table with its command beside it, or below it where the window is narrow.
QWidget* withCommand(QWidget* table, QWidget* command) { return reflow(table, column(command)); }

/// Each curve's fit stands near the curve.
QWidget* curveGrid(const std::vector<FieldRow>& rows) {
    QWidget* curves = gridOf(rows);
    static_cast<QGridLayout*>(curves->layout())->setVerticalSpacing(gridStep / 4);
    return curves;
}

FieldRow tableRow(std::vector<QWidget*> cells) {
    FieldRow row;
    row.fields = std::move(cells);
    return row;
}

QWidget* ratingTable(Binder& bind, Mode mode) {
    const std::string prefix = prefixOf(mode);
    FieldRow heads = tableRow({head(bind, elementName("EWTLabel", mode))});
    FieldRow units = tableRow({unit(bind, prefix + "EWTUnitLabel")});
    for (std::size_t flow = 0; flow < 2; ++flow)
        for (const std::string word : {"Capacity", "Power", "COP"}) {
            const bool COP = word == "COP";
            const std::string column = ratingColumn(mode, flow, word);
            heads.fields.push_back(head(bind, column + (COP ? "HeadLabel" : "Label")));
            units.fields.push_back(COP ? nothing() : unit(bind, column + "UnitLabel"));
        }
    std::vector<FieldRow> rows{heads, units};
    std::vector<std::vector<std::string>> names(ratingPoints);
    for (std::size_t i = 0; i < ratingPoints; ++i) {
        names[i].push_back(elementName(prefix + "EWTText", i));
        FieldRow row = tableRow({tableField(bind, elementName(prefix + "EWTText", i), mode)});
        for (std::size_t flow = 0; flow < 2; ++flow) {
            for (const FittedQuantity quantity : fittedQuantities) {
                names[i].push_back(ratingField(mode, flow, quantity, i));
                row.fields.push_back(tableField(bind, names[i].back(), mode));
            }
            row.fields.push_back(
                figure(bind, elementName(ratingColumn(mode, flow, "COP") + "Label", i)));
        }
        rows.push_back(row);
    }
    // A data sheet's points can be pasted as they stand there.
    bind.block(std::move(names));
    return gridOf(rows);
}

QWidget* flowPair(Binder& bind, Mode mode) {
    const std::string field = prefixOf(mode) + "FlowRateText";
    return row_(grid(bind.row(elementName(field, 0))), gap(), grid(bind.row(elementName(field, 1))),
                stretch());
}

QWidget* fitNote(Binder& bind, const std::string& name) {
    auto* label = static_cast<QLabel*>(bind.widget(name));
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 0.9);
    label->setFont(font);
    return label;
}

/// The terms of one curve, and below them how the curve fits.
void addCurve(std::vector<FieldRow>& rows, Binder& bind, const std::string& stem,
              const std::string& index, std::size_t first, std::size_t terms, Mode mode) {
    FieldRow row;
    row.caption = bind.widget(curveLabel(stem, "Curve", index));
    bind.mark(curveLabel(stem, "Curve", index), mode);
    for (std::size_t k = 0; k < terms; ++k)
        row.fields.push_back(
            narrow(bind.widget(elementName(stem + "Text", first + k)), figuresOfTerm));
    rows.push_back(row);
    QWidget* fit = fitNote(bind, curveLabel(stem, "Fit", index));
    mute(fit);
    rows.push_back(bind.wide(buttons(fit, fitNote(bind, curveLabel(stem, "Turn", index)))));
}

FieldRow termHeads(Binder& bind, const std::string& array, std::size_t first, std::size_t terms) {
    FieldRow heads;
    for (std::size_t k = 0; k < terms; ++k)
        heads.fields.push_back(head(bind, elementName(array, first + k)));
    return heads;
}

QWidget* ratingCurves(Binder& bind, Mode mode) {
    const std::string prefix = prefixOf(mode);
    GroupBox* frame = bind.frame(prefix + "CoefficientsFrame");
    std::vector<FieldRow> rows{titled(frame, termHeads(bind, prefix + "CoefficientLabel", 0, 3))};
    for (const FittedQuantity quantity : fittedQuantities)
        addCurve(rows, bind, ratingStem(mode, quantity), {}, 0, 3, mode);
    FieldRow factors;
    factors.caption = bind.widget(prefix + "FlowFactorLabel");
    for (const FittedQuantity quantity : fittedQuantities)
        factors.fields.push_back(
            narrow(bind.widget(elementName(prefix + "FlowFactorText", quantity)), figuresOfTerm));
    rows.push_back(factors);
    return group(frame, withCommand(curveGrid(rows), bind.widget(elementName(
                                                         "CalculateCoefficientsCommand", mode))));
}

/// A picture of the pump on show.
QWidget* curves(Binder& bind, const std::string& image) {
    Drawing* drawing = newFitCurves(
        [&bind, image] {
            const frmHPEdit* editor = editorOf(bind);
            return editor == nullptr ? FitCurvesPicture() : editor->chart(image);
        },
        bind.form()->texts());
    return bind.drawing(image, drawing);
}

/// The units stand over the places of both modes; nothing over the factors and the buttons.
FieldRow temperatureUnits(Binder& bind) {
    FieldRow units;
    for (const Mode mode : modes) {
        units.fields.push_back(unit(bind, prefixOf(mode) + "ELTUnitLabel"));
        for (std::size_t i = 0; i < fittedQuantities.size() + 1; ++i)
            units.fields.push_back(nothing());
    }
    return units;
}

QWidget* correctionTable(Binder& bind, CorrectionKind kind) {
    const bool temperature = kind == byTemperature;
    FieldRow titles, heads;
    for (const Mode mode : modes) {
        const std::string prefix = prefixOf(mode);
        const std::string title = elementName(prefix + "CorrectionsLabel", kind);
        titles.fields.push_back(head(bind, title));
        bind.mark(title, mode);
        heads.fields.push_back(
            head(bind, elementName(temperature ? "ELTLabel" : "PercentNominalLabel", mode)));
        for (const FittedQuantity quantity : fittedQuantities) {
            titles.fields.push_back(nothing());
            heads.fields.push_back(
                head(bind, elementName(prefix + wordOf(quantity) + "FactorHeadLabel", kind)));
        }
        for (FieldRow* row : {&titles, &heads}) row->fields.push_back(nothing());
    }
    std::vector<FieldRow> rows{titles, heads};
    if (temperature) rows.push_back(temperatureUnits(bind));
    for (std::size_t r = 0; r < mostFitPoints; ++r) {
        FieldRow row;
        for (const Mode mode : modes) {
            row.fields.push_back(tableField(bind, placeField(kind, mode, r), mode));
            for (const FittedQuantity quantity : fittedQuantities)
                row.fields.push_back(tableField(bind, factorField(kind, mode, quantity, r), mode));
            row.fields.push_back(r < firstZeroRow ? nothing()
                                                  : asHighAsFields(bind.widget(elementName(
                                                        "cmdZeroZap", zeroButton(kind, mode, r)))));
        }
        rows.push_back(row);
    }
    return gridOf(rows);
}

QWidget* correctionCurves(Binder& bind, CorrectionKind kind) {
    GroupBox* frame = bind.frame(elementName("CorrectionsCoefficientsFrame", kind));
    std::vector<FieldRow> rows{
        titled(frame, termHeads(bind, "CorrectionsCoefficientLabel", kind * mostTerms, mostTerms))};
    for (const Mode mode : modes)
        for (const FittedQuantity quantity : fittedQuantities)
            addCurve(rows, bind, correctionStem(mode, quantity), "(" + std::to_string(kind) + ")",
                     kind * mostTerms, mostTerms, mode);
    return group(frame, withCommand(curveGrid(rows), bind.widget(elementName(
                                                         "CoefficientsCalculateCommand", kind))));
}

/// The flow that the table's are shares of, in the line of the page's title.
QWidget* nominalFlow(Binder& bind, GroupBox* frame) {
    FieldRow row = bind.row("NominalFlowText");
    row.unit = bind.widget("NominalFlowRateLabel");
    return row_(frame->takeTitle(), gap(), grid(row), stretch());
}

}  // namespace

QWidget* pumpDetailsPage(Binder& bind) {
    FieldRow type;
    type.caption = bind.widget("PumpTypeLabel");
    type.fields = {buttons(bind.widget("PumpTypeOption(0)"), bind.widget("PumpTypeOption(1)"))};
    QWidget* chart = curves(bind, "PumpChart");
    return group(bind.frame(pageFrames[0]),
                 grow(reflow(grid(bind.row("PumpModelText"), type), grow(chart))));
}

QWidget* ratingPageOf(Binder& bind, Mode mode) {
    QWidget* chart = curves(bind, prefixOf(mode) + "RatingChart");
    QWidget* figures =
        column(flowPair(bind, mode),
               withCommand(ratingTable(bind, mode),
                           bind.widget(elementName("CopyTableCommand", ratingPage[mode]))),
               ratingCurves(bind, mode));
    return group(bind.frame(pageFrames[ratingPage[mode]]), grow(reflow(figures, grow(chart))));
}

QWidget* correctionPageOf(Binder& bind, CorrectionKind kind) {
    const std::size_t page = correctionPage[kind];
    QWidget* chart = curves(bind, elementName("CorrectionsChart", kind));
    GroupBox* frame = bind.frame(pageFrames[page]);
    QWidget* nominal = kind == byFlow ? nominalFlow(bind, frame) : nullptr;
    QWidget* figures = column(nominal,
                              withCommand(correctionTable(bind, kind),
                                          bind.widget(elementName("CopyTableCommand", page))),
                              correctionCurves(bind, kind));
    return group(frame, grow(reflow(figures, grow(chart))));
}

QWidget* pumpTestPage(Binder& bind) {
    QWidget* chart = curves(bind, "TestChart");
    // One grid, so that results stand below what was typed for them.
    QWidget* figures =
        grid(bind.heads("TestModeLabel(0)", "TestModeLabel(1)"), bind.pair("TestSourceEWTText"),
             bind.pair("TestSourceFlowText"), bind.pair("TestLoadELTText"),
             bind.pair("TestLoadFlowText"), bind.wide(buttons(bind.primary("TestCommand"))),
             bind.results("TestCapacityLabel"), bind.results("TestPowerLabel"),
             bind.results("TestCOPLabel"));
    return group(bind.frame(pageFrames[5]), grow(reflow(column(figures, stretch()), grow(chart))));
}

}  // namespace varnholt
