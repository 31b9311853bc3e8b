// SPDX-License-Identifier: GPL-3.0-or-later
// What stands above and beside the pages of a loads window.
#include <QAbstractItemView>

#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/zone_columns.h"

namespace varnholt {
namespace {

QWidget* withIcon(Binder& bind, const std::string& name, const char* icon) {
    return bind.has(name) ? bind.iconButton(name, QString::fromLatin1(icon)) : nullptr;
}

}  // namespace

QWidget* loadsBar(Binder& bind) {
    return bar(column(
        buttons(bind.widget("LONewCommand"), ifAny(bind, "LOCopyCommand"),
                ifAny(bind, "LORemoveCommand"), ifAny(bind, "LORenumberCommand"),
                bind.widget("LOClearCommand"), ifAny(bind, "LOSummaryCommand"),
                withIcon(bind, "LOOpenCommand", "open"), withIcon(bind, "LOSaveCommand", "save"),
                withIcon(bind, "LOPrintCommand", "print"), bind.widget("LOImportCommand"),
                ifAny(bind, "LOAutoSelectAllCommand"), bind.widget("LOUpdatePumpsCommand")),
        centredRow(bind.widget("MetricCheck"), grow(noticeBar(bind)),
                   bind.widget("LOWorkingZoneLabel"), linkLights(bind))));
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
