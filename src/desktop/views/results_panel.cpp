// SPDX-License-Identifier: GPL-3.0-or-later
// The results of a design.
#include <QAction>
#include <QPushButton>

#include "design/ground_design.h"
#include "desktop/binding/bound_control.h"
#include "desktop/views/design_pages.h"
#include "desktop/views/length_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "forms/text_numbers/lengths.h"
#include "forms/text_numbers/main.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

bool hasNoLoads(const Binder& bind) {
    const auto* design = static_cast<const LinkedDesign*>(bind.form());
    return design != nullptr && design->loads().zoneNumber == 0;
}

std::vector<std::string> warningsOf(const Binder& bind) {
    const auto* design = static_cast<const GroundDesign*>(bind.form());
    return design == nullptr ? std::vector<std::string>() : design->warnings();
}

/// A button that gives a command of the window around all others.
QWidget* mainCommand(const Binder& bind, int caption, const char* command, const char* icon) {
    auto* button = new QPushButton(houseIcon(QString::fromLatin1(icon)), qt(bind.text(caption)));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, [button, command] {
        const QString name = QString::fromLatin1(command);
        if (auto* action = button->window()->findChild<QAction*>(name); action != nullptr)
            action->trigger();
    });
    return button;
}

/// Where a design's loads come from, with the commands for it, while it has none; then the length
/// that the design is made for. What is to be checked stands beside it, where it costs the page no
/// height, and below it in a narrow window.
QWidget* headline(Binder& bind) {
    QWidget* first =
        firstSteps(hint(bind, Text::enterLoadsFirst, [] { return true; }),
                   {mainCommand(bind, Text::zoneManager, "mnuZoneManage", "zones"),
                    mainCommand(bind, Text::averageBlock, "mnuAvgBlock", "average-block"),
                    mainCommand(bind, Text::linkLoads, "mnuLink", "link")});
    first->setObjectName(QStringLiteral("firstLoads"));
    QWidget* lengths = lengthHeadline(bind);
    QWidget* warnings = warningLines(bind, [&bind] { return warningsOf(bind); });
    constexpr int leastLengths = 52 * gridStep, leastWarnings = 36 * gridStep;
    lengths->setMinimumWidth(leastLengths);
    warnings->setMinimumWidth(leastWarnings);
    QWidget* line = reflow(grow(lengths, 3), grow(warnings, 2));
    QWidget* both = column(first, line);
    const auto refresh = [&bind, first, lengths, line, warnings] {
        first->setVisible(hasNoLoads(bind));
        lengths->setVisible(!hasNoLoads(bind));
        line->setVisible(!lengths->isHidden() || !warnings->isHidden());
    };
    refresh();
    bind.onSettled(refresh);
    return both;
}

/// Whether the figures on show are older than what they came from.
bool showsOlderFigures(const Binder& bind) {
    const auto* design = static_cast<const GroundDesign*>(bind.form());
    return design != nullptr && design->lengthSummary().state == LengthSummary::State::stale;
}

/// The figures of a run, which those that are found late are none of: they follow what is typed.
std::vector<TextLabel*> figuresOfRun(const Binder& bind, const std::vector<FieldRows>& parts) {
    std::vector<TextLabel*> figures;
    for (const FieldRows& rows : parts)
        for (const FieldRow& row : rows)
            for (QWidget* field : row.fields) {
                auto* label = dynamic_cast<TextLabel*>(field);
                const BoundControl* bound =
                    label == nullptr ? nullptr : bind.find(plain(label->objectName()));
                if (bound != nullptr && !bound->control().isLate()) figures.push_back(label);
            }
    return figures;
}

void dimWhenStale(Binder& bind, const std::vector<FieldRows>& parts) {
    const auto refresh = [&bind, figures = figuresOfRun(bind, parts)] {
        const bool stale = showsOlderFigures(bind);
        for (TextLabel* figure : figures) figure->setDimmed(stale);
    };
    refresh();
    bind.onSettled(refresh);
}

/// The results in two columns.
QWidget* resultsPanel(Binder& bind, const std::vector<FieldRows>& parts) {
    dimWhenStale(bind, parts);
    FieldRows rows{bind.heads("CATopLabel(0)", "CATopLabel(1)")};
    for (const FieldRows& part : parts) {
        if (rows.size() > 1) rows.push_back(bind.wide(rule()));
        rows.insert(rows.end(), part.begin(), part.end());
    }
    return group(bind.frame("CACalculationFrame"), gridOf(rows));
}

}  // namespace

QWidget* resultsPageOf(Binder& bind, const std::vector<FieldRows>& table,
                       const std::vector<Piece>& beside) {
    return column(headline(bind),
                  grow(reflow(grow(resultsPanel(bind, table), 2),
                              grow(column(grow(lengthPanel(bind)), grow(reflowOf(beside))), 3))));
}

QWidget* smallPlan(Binder& bind, Drawing* plan) {
    auto* box = new GroupBox;
    box->setTitle(qt(bind.text(Text::smallField)));
    plan->setAccessibleName(box->title());
    return group(box, grow(bind.drawing(plan)));
}

FieldRows unitTemperatures(Binder& bind) {
    return {bind.results("CAUnitInletLabel"), bind.results("CAUnitOutletLabel")};
}

FieldRows systemPerformance(Binder& bind) {
    return {bind.results("CATotalCapacityLabel"), bind.results("CAPeakLoadLabel"),
            bind.results("CAPeakDemandLabel"), bind.results("CAPumpCOPLabel"),
            bind.results("CASystemCOPLabel")};
}

}  // namespace varnholt
