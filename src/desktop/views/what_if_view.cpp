// SPDX-License-Identifier: GPL-3.0-or-later
// The window of What If: what the design needs above, six pages below.
#include <QLabel>
#include <QLayout>
#include <QStyledItemDelegate>
#include <QTabWidget>

#include "design/frmWhatIf.h"
#include "desktop/drawings/what_if_paintings.h"
#include "desktop/views/comparison_table.h"
#include "desktop/views/figure_labels.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/figure_text.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

const frmWhatIf* formOf(const Binder& bind) { return static_cast<const frmWhatIf*>(bind.form()); }

/// What the form has to show, or nothing once it has gone.
template <class Picture>
std::function<Picture()> from(Binder& bind, Picture (frmWhatIf::*picture)() const) {
    return [&bind, picture] {
        const frmWhatIf* form = formOf(bind);
        return form == nullptr ? Picture() : (form->*picture)();
    };
}

/// Tells the form that a part of a picture has been pressed.
std::function<void(std::size_t)> pointing(Binder& bind, const char* image,
                                          void (frmWhatIf::*pointAt)(std::size_t)) {
    return [&bind, image, pointAt](std::size_t place) {
        BoundControl* pressed = bind.find(image);
        if (pressed == nullptr) return;
        bind.act(*pressed, [place, pointAt](Form& form, const std::string&) {
            (static_cast<frmWhatIf&>(form).*pointAt)(place);
        });
    };
}

QWidget* mutedText(Binder& bind, const std::string& name) {
    QWidget* label = bind.widget(name);
    mute(label);
    return sentences(label);
}

FieldRow figureRow(Binder& bind, const std::string& caption, const std::string& array,
                   std::size_t count) {
    FieldRow row = bind.figure(caption, elementName(array, 0));
    for (std::size_t i = 1; i < count; ++i)
        row.fields.push_back(bind.figure(caption, elementName(array, i)).fields.front());
    for (QWidget* field : row.fields)
        static_cast<QLabel*>(field)->setAlignment(Qt::AlignRight | Qt::AlignAbsolute |
                                                  Qt::AlignVCenter);
    return row;
}

FieldRow headRow(Binder& bind, const std::string& array, std::size_t count) {
    FieldRow row;
    for (std::size_t i = 0; i < count; ++i)
        row.fields.push_back(headLabel(bind, elementName(array, i)));
    return row;
}

/// The cards above the pages, which are to have the height.
GroupBox* lowFrame(Binder& bind, const std::string& name) {
    GroupBox* frame = bind.frame(name);
    frame->setLow();
    return frame;
}

QWidget* top(Binder& bind) {
    GroupBox* needFrame = lowFrame(bind, "WINeedFrame");
    QWidget* need = group(needFrame,
                          grid(titled(needFrame, bind.heads("WITopLabel(0)", "WITopLabel(1)")),
                               bind.results("WINeedLabel")),
                          grid(bind.figure("WIGoverningCaptionLabel", "WIGoverningLabel"),
                               bind.figure("WIBoreCaptionLabel", "WIBoreLabel")));
    QWidget* measure = group(lowFrame(bind, "WIMeasureFrame"),
                             closeTogether(column(bind.widget("WIMeasureOption(0)"),
                                                  bind.widget("WIMeasureOption(1)"))));
    QWidget* told =
        column(passingNoticeBar(bind), passing(wrapped(bind.widget("WIMessageLabel"))),
               passing(mutedText(bind, "WINoteLabel")), passing(mutedText(bind, "WIStateLabel")));
    // In one line with the titles of the cards.
    told->layout()->setContentsMargins(0, gridStep / 2, 0, 0);
    return reflow(need, measure, grow(told));
}

// What decides.

QWidget* spreads(Binder& bind) {
    GroupBox* frame = bind.frame("WISpreadFrame");
    std::vector<FieldRow> rows{titled(frame, headRow(bind, "WISpreadHeadLabel", 3))};
    for (std::size_t j = 0; j < quantityCount; ++j) {
        FieldRow row = bind.row(elementName("WILowText", j));
        row.fields.push_back(bind.widget(elementName("WIHighText", j)));
        row.fields.push_back(figureLabel(bind, elementName("WIShareLabel", j)));
        rows.push_back(row);
    }
    return group(frame, gridOf(rows));
}

QWidget* decidesPage(Binder& bind) {
    QWidget* fields =
        column(group(bind.frame("WIGroundFrame"),
                     buttons(bind.widget("WIGroundOption(0)"), bind.widget("WIGroundOption(1)"),
                             bind.widget("WIGroundOption(2)"))),
               spreads(bind), stretch());
    QWidget* tied = mutedText(bind, "WITiedLabel");
    constexpr int leastTied = 24 * gridStep;
    tied->setMinimumWidth(leastTied);
    QWidget* ties = group(
        bind.frame("WITieFrame"),
        reflow(grid(bind.row("WITieText(0)"), bind.row("WITieText(1)"), bind.row("WITieText(2)")),
               grow(tied)));
    QWidget* picture =
        bind.drawing("imgTornado",
                     newTornadoDrawing(from(bind, &frmWhatIf::tornadoPicture), bind.form()->texts(),
                                       pointing(bind, "imgTornado", &frmWhatIf::pointAtBar)));
    return reflow(fields, grow(column(grow(picture), ties)));
}

// How sure.

QWidget* largest(QWidget* label) {
    constexpr double larger = 1.4;
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * larger);
    label->setFont(font);
    return sentences(label);
}

QWidget* surePage(Binder& bind) {
    QWidget* asked = group(bind.frame("WIDrawnFrame"),
                           grid(bind.row("WIDepthText"), bind.row("WIConfidenceText")));
    QWidget* depths =
        group(bind.frame("WIDepthsFrame"),
              gridOf({headRow(bind, "WIDepthsHeadLabel", 3),
                      figureRow(bind, "WIDepthsLabel(3)", "WIDepthsLabel", 3),
                      figureRow(bind, "WICoolingWaterLabel(3)", "WICoolingWaterLabel", 3),
                      figureRow(bind, "WIHeatingWaterLabel(3)", "WIHeatingWaterLabel", 3)}),
              mutedText(bind, "WISamplingLabel"));
    QWidget* picture = bind.drawing(
        "imgSure", newSureDrawing(from(bind, &frmWhatIf::surePicture), bind.form()->texts()));
    QWidget* told = column(asked, depths, sentences(bind.widget("WITestLabel")),
                           mutedText(bind, "WISafetyLabel"), stretch());
    return column(largest(bind.widget("WIQuestionLabel")), grow(reflow(told, grow(picture))));
}

// Layout.

/// A list that leaves its height to the page: it takes what the window has.
QWidget* lowList(Binder& bind, const std::string& name) {
    constexpr int rows = 5;
    auto* list = static_cast<ListView*>(bind.widget(name));
    list->setUsualRows(rows);
    return list;
}

/// Shows the thousands of its lines parted as those of figures are; the list's entries stay as they
/// are.
class SentenceLines : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale&) const override {
        return thinThousands(value.toString());
    }
};

QWidget* foundFields(Binder& bind) {
    auto* list = static_cast<ListView*>(lowList(bind, "WLList"));
    list->setItemDelegate(new SentenceLines(list));
    return list;
}

QWidget* land(Binder& bind) {
    return group(bind.frame("WLLandFrame"),
                 grid(bind.row("WLAcrossText"), bind.row("WLDownText"), bind.row("WLBoundaryText"),
                      bind.row("WLClearText")),
                 buttons(bind.iconButton("WLPasteCommand", QStringLiteral("paste")),
                         bind.widget("WLRectangleCommand")),
                 bind.widget("WLCornerLabel"), grow(lowList(bind, "WLCornerList")),
                 grid(bind.row("WLCornerXText"), bind.row("WLCornerYText")));
}

QWidget* search(Binder& bind) {
    return group(bind.frame("WLSearchFrame"),
                 grid(bind.row("WLFromText"), bind.row("WLToText"), bind.row("WLStepText"),
                      bind.row("WLLeastDepthText"), bind.row("WLMostDepthText"),
                      bind.row("WLMostText"), bind.row("WLMarginText")),
                 bind.widget("WLKindOption(0)"), bind.widget("WLKindOption(1)"),
                 buttons(bind.primary("WLSearchCommand")));
}

QWidget* layoutPage(Binder& bind) {
    const Texts& texts = bind.form()->texts();
    QWidget* picture =
        bind.drawing("imgLand", newLandDrawing(from(bind, &frmWhatIf::landPicture), texts));
    QWidget* points = bind.drawing(
        "imgFields", newFieldsDrawing(from(bind, &frmWhatIf::fieldsPicture), texts,
                                      pointing(bind, "imgFields", &frmWhatIf::pointAtField)));
    QWidget* list = group(bind.frame("WLFieldsFrame"), passing(mutedText(bind, "WLStateLabel")),
                          grow(foundFields(bind)),
                          buttons(bind.widget("WLTakeCommand"), bind.widget("WLCopyCommand")));
    QWidget* found = column(passing(sentences(bind.widget("WLMessageLabel"))),
                            grow(reflow(grow(picture), grow(points)), 3), grow(list, 2));
    return reflow(land(bind), column(search(bind), stretch()), grow(found));
}

// Cost.

QWidget* costPage(Binder& bind) {
    QWidget* build =
        group(bind.frame("WCBuildFrame"),
              grid(bind.row("WCFixedText"), bind.row("WCBoreText"), bind.row("WCFootText"),
                   bind.row("WCBandText"), bind.row("WCDeepText"), bind.row("WCTrenchText"),
                   bind.row("WCRunText")));
    QWidget* others = column(
        group(bind.frame("WCTowerFrame"),
              grid(bind.row("WCTowerText"), bind.row("WCCareText"), bind.row("WCTowerPowerText"))),
        group(bind.frame("WCLoopFrame"), grid(bind.row("WCGroundText"), bind.row("WCPipeText"))));
    QWidget* energy = group(
        bind.frame("WCEnergyFrame"),
        grid(bind.row("WCEnergyText"), bind.row("WCEscalationText"), bind.row("WCDiscountText"),
             bind.row("WCYearsText"), bind.row("WCCurrencyText"), bind.row("WCDateText")));
    std::vector<FieldRow> parts, results;
    for (std::size_t i = 0; i < costPartTexts.size(); ++i)
        parts.push_back(
            bind.figure(elementName("WCPartLabel", i), elementName("WCPartCostLabel", i)));
    for (std::size_t i = 0; i < 4; ++i)
        results.push_back(
            bind.figure(elementName("WCResultCaptionLabel", i), elementName("WCResultLabel", i)));
    QWidget* picture = bind.drawing(
        "imgCost", newCostDrawing(from(bind, &frmWhatIf::costPicture), bind.form()->texts()));
    QWidget* figures = row_(gridOf(parts), gap(), gap(), gridOf(results), gap());
    QWidget* cost = group(bind.frame("WCResultFrame"), grow(reflow(figures, grow(picture))),
                          mutedText(bind, "WCLeftOutLabel"));
    return column(reflow(build, others, grow(energy)), grow(cost));
}

// Alternatives.

QWidget* comparison(Binder& bind) {
    constexpr std::size_t columns = frmWhatIf::alternativeColumns;
    constexpr const char* arrays[] = {"WVLength", "WVBores", "WVDepth",
                                      "WVFirst",  "WVLife",  "WVEnergy"};
    std::vector<FieldRow> rows{headRow(bind, "WVHeadLabel", columns)};
    for (std::size_t i = 0; i < std::size(arrays); ++i) {
        const std::string array = arrays[i];
        rows.push_back(figureRow(bind, elementName("WVRowLabel", i), array + "Label", columns));
        rows.push_back(headRow(bind, array + "ChangeLabel", columns));
        for (QWidget* change : rows.back().fields) asSentence(change);
    }
    auto* table = new ComparisonTable(rows);
    table->setObjectName(QStringLiteral("alternativesTable"));
    return group(bind.frame("WVTableFrame"), grow(table), sentences(bind.widget("WVReasonLabel")));
}

QWidget* alternativesPage(Binder& bind) {
    QWidget* kept = group(bind.frame("WVKeepFrame"), grid(bind.row("WVNameText")),
                          buttons(bind.widget("WVKeepCommand")), grow(bind.widget("WVList")),
                          buttons(bind.widget("WVRestoreCommand"), bind.widget("WVRemoveCommand")));
    return reflow(kept, grow(comparison(bind)));
}

// Tower.

QWidget* towerPage(Binder& bind) {
    QWidget* judge = group(bind.frame("WTJudgeFrame"), bind.widget("WTJudgeOption(0)"),
                           bind.widget("WTJudgeOption(1)"), sentences(bind.widget("WTBestLabel")),
                           buttons(bind.widget("WTTakeCommand")));
    QWidget* picture = bind.drawing(
        "imgTower", newTowerDrawing(from(bind, &frmWhatIf::towerPicture), bind.form()->texts()));
    return reflow(column(judge, stretch()), grow(picture));
}

}  // namespace

QWidget* makeWhatIfView(Binder& bind) {
    QWidget* pages = bind.tabs(
        "WITabs",
        {[&bind] { return page(decidesPage(bind)); }, [&bind] { return page(surePage(bind)); },
         [&bind] { return page(layoutPage(bind)); }, [&bind] { return page(costPage(bind)); },
         [&bind] { return page(alternativesPage(bind)); },
         [&bind] { return page(towerPage(bind)); }});
    QWidget* window = column(bar(top(bind)), grow(pages));
    // A screen is low: the tabs follow the cards.
    window->layout()->setSpacing(0);
    return roomy(window, {148 * gridStep, 820});
}

}  // namespace varnholt
