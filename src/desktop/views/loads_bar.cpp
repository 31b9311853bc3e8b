// SPDX-License-Identifier: GPL-3.0-or-later
// What stands above and beside the pages of a loads window.
#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/zone_columns.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

QWidget* withIcon(Binder& bind, const std::string& name, const char* icon) {
    return bind.has(name) ? bind.iconButton(name, QString::fromLatin1(icon)) : nullptr;
}

/// A button that does what one of the window's own does, at a place where it is looked for.
QWidget* second(Binder& bind, const std::string& name, const char* icon) {
    auto* button = new QPushButton(houseIcon(QString::fromLatin1(icon)),
                                   qt(bind.form()->control(name).caption()));
    button->setAutoDefault(false);
    // Not by its caption, which the other button has too.
    button->setAccessibleName(qt(bind.form()->control(name).tooltip()));
    auto* own = static_cast<QAbstractButton*>(bind.widget(name));
    QObject::connect(button, &QPushButton::clicked, own, &QAbstractButton::click);
    return button;
}

/// What is typed after New is the new zone's label.
void beginAfterNew(Binder& bind) {
    auto* button = static_cast<QAbstractButton*>(bind.widget("LONewCommand"));
    QObject::connect(button, &QAbstractButton::clicked, &bind, [&bind] {
        const BoundControl* label = bind.find("LOZoneReferenceText");
        if (bind.isScripted() || label == nullptr || !label->widget()->isVisible()) return;
        label->widget()->setFocus(Qt::OtherFocusReason);
        static_cast<QLineEdit*>(label->widget())->selectAll();
    });
}

}  // namespace

QWidget* firstZone(Binder& bind, int text) {
    QWidget* first =
        firstSteps(hint(bind, text, [] { return true; }),
                   {second(bind, "LONewCommand", "zones"), second(bind, "LOOpenCommand", "open")});
    const auto refresh = [&bind, first] {
        const ZoneWindow* window = zoneWindowOf(bind);
        const bool shown = window != nullptr && window->ZoneList().empty();
        if (!shown || first->parentWidget() != nullptr) first->setVisible(shown);
    };
    refresh();
    bind.onSettled(refresh);
    return first;
}

QWidget* loadsWindow(Binder& bind, QWidget* pages) {
    beginAfterNew(bind);
    QWidget* commands = column(
        buttons(bind.widget("LONewCommand"), ifAny(bind, "LOCopyCommand"),
                ifAny(bind, "LORemoveCommand"), ifAny(bind, "LORenumberCommand"),
                bind.widget("LOClearCommand"), ifAny(bind, "LOSummaryCommand"),
                withIcon(bind, "LOOpenCommand", "open"), withIcon(bind, "LOSaveCommand", "save"),
                withIcon(bind, "LOPrintCommand", "print"), bind.widget("LOImportCommand"),
                ifAny(bind, "LOAutoSelectAllCommand"), bind.widget("LOUpdatePumpsCommand")));
    QWidget* window = column(
        bar(commands),
        grow(headedTabs(bind, pages, {bind.widget("LOWorkingZoneLabel"), linkLights(bind)})));
    window->layout()->setSpacing(gridStep / 2);
    return roomy(window, {152 * gridStep, 700});
}

QWidget* zoneList(Binder& bind) {
    if (bind.has("LOCopyCommand")) return zoneColumns(bind);
    constexpr int listWidth = 136;
    auto* list = static_cast<QAbstractItemView*>(bind.widget("LOZoneList"));
    list->setFixedWidth(listWidth);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

}  // namespace varnholt
