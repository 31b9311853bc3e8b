// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the second opinion: figures above, what is asked at the left, pictures and years at
// the right.
#include <QLabel>

#include "design/frmSecondOpinion.h"
#include "desktop/drawings/opinion_pictures.h"
#include "desktop/views/figure_labels.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

const frmSecondOpinion* opinionOf(const Binder& bind) {
    return static_cast<const frmSecondOpinion*>(bind.form());
}

QWidget* sizes(Binder& bind) {
    return group(bind.frame("SESizesFrame"),
                 grid(bind.heads("SETopLabel(0)", "SETopLabel(1)"),
                      bind.results("SEClassicalLabel"), bind.results("SELengthLabel"),
                      bind.results("SEClassicalDepthLabel"), bind.results("SEBoreDepthLabel"),
                      bind.results("SEDifferenceLabel"), bind.results("SEMonthLabel")));
}

FieldRow partRow(Binder& bind, std::size_t part) {
    FieldRow row =
        bind.figure(elementName("SEPartLabel", part), elementName("SECoolingPartLabel", part));
    const FieldRow ofHeating =
        bind.figure(elementName("SEPartLabel", part), elementName("SEHeatingPartLabel", part));
    row.fields.push_back(ofHeating.fields.front());
    return row;
}

QWidget* parts(Binder& bind) {
    return column(group(bind.frame("SEPartsFrame"),
                        grid(bind.heads("SEPartTopLabel(0)", "SEPartTopLabel(1)"),
                             partRow(bind, neighboursAndEnds), partRow(bind, shortPulseAsLine),
                             partRow(bind, monthsAndYears))),
                  wrapped(bind.widget("SEMessageLabel")), sentences(bind.widget("SENoteLabel")));
}

QWidget* inputs(Binder& bind) {
    return group(
        bind.frame("SEInputsFrame"),
        grid(bind.row("SEBuriedDepthText"), bind.row("SEPulseText"), bind.row("SEYearsText")),
        bind.widget("SECylinderCheck"));
}

QWidget* depth(Binder& bind) {
    return group(bind.frame("SEDepthFrame"), bind.widget("SEDepthOption(0)"),
                 bind.widget("SEDepthOption(1)"),
                 centredRow(bind.widget("SEDepthOption(2)"), bind.widget("SEDepthText"),
                            bind.widget("SEDepthUnitsLabel"), stretch()),
                 centredRow(bind.widget("SEYearOfMonthsLabel"), bind.widget("SEYearUpDown"),
                            bind.widget("SEYearShownLabel"), stretch()));
}

QWidget* history(Binder& bind) {
    return bind.drawing("imgHistory",
                        newHistoryDrawing(
                            [&bind] {
                                const frmSecondOpinion* form = opinionOf(bind);
                                return form == nullptr ? HistoryPicture() : form->historyPicture();
                            },
                            bind.form()->texts(),
                            [&bind](std::optional<std::size_t> year) {
                                BoundControl* chosen = bind.find("SEYearUpDown");
                                if (chosen == nullptr) return;
                                const double wanted = year ? static_cast<double>(*year) + 1 : 0;
                                bind.act(*chosen, [wanted](Form& form, const std::string& name) {
                                    form.slide(name, wanted);
                                });
                            }));
}

QWidget* months(Binder& bind) {
    return bind.drawing("imgMonths", newYearDrawing(
                                         [&bind] {
                                             const frmSecondOpinion* form = opinionOf(bind);
                                             return form == nullptr ? YearPicture()
                                                                    : form->yearPicture();
                                         },
                                         bind.form()->texts()));
}

QWidget* gFunction(Binder& bind) {
    return bind.drawing("imgGFunction", newGFunctionDrawing(
                                            [&bind] {
                                                const frmSecondOpinion* form = opinionOf(bind);
                                                return form == nullptr ? GFunctionPicture()
                                                                       : form->gFunctionPicture();
                                            },
                                            bind.form()->texts()));
}

FieldRow monthRow(Binder& bind, std::size_t month) {
    FieldRow row = bind.row(elementName("SECoolingEnergyText", month));
    for (const char* column : {"SEHeatingEnergyText", "SECoolingPeakText", "SEHeatingPeakText"})
        row.fields.push_back(bind.widget(elementName(column, month)));
    for (const char* column : {"SECoolingEnergyText", "SECoolingPeakText"})
        bind.mark(elementName(column, month), cooling);
    for (const char* column : {"SEHeatingEnergyText", "SEHeatingPeakText"})
        bind.mark(elementName(column, month), heating);
    return row;
}

QWidget* yearOfOpinion(Binder& bind) {
    FieldRow heads;
    for (std::size_t i = 0; i < 4; ++i)
        heads.fields.push_back(headLabel(bind, elementName("SEMonthHeadLabel", i)));
    std::vector<FieldRow> rows{heads};
    for (std::size_t month = 0; month < opinionMonthsOfYear; ++month)
        rows.push_back(monthRow(bind, month));
    return group(bind.frame("SEYearFrame"),
                 grid(bind.row("SEShapeCombo", {bind.widget("SESouthCheck")})), gridOf(rows),
                 buttons(bind.iconButton("SEPasteCommand", QStringLiteral("paste")),
                         bind.widget("SECopyCommand")));
}

QWidget* table(Binder& bind) {
    FieldRow heads;
    for (std::size_t i = 0; i < 4; ++i)
        heads.fields.push_back(headLabel(bind, elementName("SEHeadLabel", i)));
    std::vector<FieldRow> rows{heads};
    for (std::size_t line = 0; line < opinionYears.size(); ++line) {
        FieldRow row;
        for (const char* column : {"SEYearLabel", "SEPenaltyLabel", "SEHighLabel", "SELowLabel"})
            row.fields.push_back(figureLabel(bind, elementName(column, line)));
        rows.push_back(row);
    }
    bind.mark("SEClassicalPenaltyLabel(0)", cooling).mark("SEClassicalPenaltyLabel(1)", heating);
    return group(bind.frame("SETableFrame"), gridOf(rows), rule(),
                 row_(bind.widget("SEClassicalPenaltyLabel(2)"), gap(),
                      figureLabel(bind, "SEClassicalPenaltyLabel(0)"), gap(),
                      figureLabel(bind, "SEClassicalPenaltyLabel(1)"), stretch()));
}

}  // namespace

QWidget* makeSecondOpinionView(Binder& bind) {
    QWidget* figures = reflow(sizes(bind), grow(parts(bind)));
    QWidget* asked = column(reflow(inputs(bind), grow(depth(bind))), passingNoticeBar(bind),
                            yearOfOpinion(bind), stretch());
    QWidget* told = column(grow(history(bind)),
                           grow(reflow(grow(months(bind)), grow(gFunction(bind)))), table(bind));
    constexpr int width = 130 * gridStep, height = 110 * gridStep;
    return roomy(
        column(grow(new ScrollPage(page(column(figures, grow(reflow(asked, grow(told)))))))),
        {width, height});
}

}  // namespace varnholt
