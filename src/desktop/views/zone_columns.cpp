// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/zone_columns.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <algorithm>
#include <memory>

#include "basis/number_text.h"
#include "desktop/binding/binder.h"
#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/zone_edit_dialog.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"
#include "forms/quantity.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/screen_reader.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

enum Column { numberColumn, labelColumn, loadColumn, pumpColumn };
constexpr int shareRole = Qt::UserRole + 1;  // the loads over the largest of all zones, by mode

double largestLoad(const Zone& zone, Mode m) {
    double largest = 0;
    for (const ByMode<double>& block : zone.gains) largest = std::max(largest, block[m]);
    return largest;
}

QString loadText(const Zone& zone, UnitSystem units) {
    const auto shown = [&](Mode m) {
        return qt(formatNumber(quantities::load.shown(largestLoad(zone, m), units), "##0.0"));
    };
    return shown(cooling) + QStringLiteral(" / ") + shown(heating);
}

/// Two bars, cooling over heating: one solid and one framed.
class LoadBars : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem empty = option;
        initStyleOption(&empty, index);
        empty.text.clear();
        empty.widget->style()->drawControl(QStyle::CE_ItemViewItem, &empty, painter, empty.widget);
        const QVariantList shares = index.data(shareRole).toList();
        const Look& look = lookOf(option.palette);
        const bool chosen = (option.state & QStyle::State_Selected) != 0;
        constexpr double edge = 4, height = 5, gap = 2;
        const double top = option.rect.center().y() - height - gap / 2;
        for (qsizetype m = 0; m < shares.size(); ++m) {
            const QColor own = m == 0 ? look.cooling : look.heating;
            const double width = (option.rect.width() - 2 * edge) * shares[m].toDouble();
            const QRectF bar(option.rect.left() + edge + 0.5,
                             top + static_cast<double>(m) * (height + gap) + 0.5, width,
                             height - 1);
            if (!(width > 0)) continue;
            painter->setPen(chosen ? look.onAccent : own);
            painter->setBrush(m == 0 ? QBrush(chosen ? look.onAccent : own) : QBrush(Qt::NoBrush));
            painter->drawRect(bar);
        }
    }
};

/// Zones with a sign where something is to be checked. Their rows are no higher for it, so that
/// they stay where they are when it comes or goes.
class SignedZones : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem plain = option;
        initStyleOption(&plain, index);
        plain.features &= ~QStyleOptionViewItem::HasDecoration;
        const int height =
            plain.widget->style()
                ->sizeFromContents(QStyle::CT_ItemViewItem, &plain, QSize(), plain.widget)
                .height();
        return {QStyledItemDelegate::sizeHint(option, index).width(), height};
    }
};

/// What the columns say of the zones.
class ZoneColumns {
 public:
    explicit ZoneColumns(Binder& bind) : bind_(bind) { measure(); }

    void measure() {
        largest_ = 0;
        if (const ZoneWindow* window = zoneWindowOf(bind_))
            for (const Zone& zone : window->ZoneList())
                for (const Mode m : modes) largest_ = std::max(largest_, largestLoad(zone, m));
    }

    QVariant data(int row, int column, int role) const {
        const ZoneWindow* window = zoneWindowOf(bind_);
        const auto position = static_cast<std::size_t>(row);
        if (window == nullptr || position >= window->ZoneList().size()) return {};
        const Zone& zone = window->ZoneList()[position];
        if (column == numberColumn) return ofNumber(*window, position, role);
        if (column == labelColumn)
            return role == Qt::DisplayRole || role == Qt::UserRole ? QVariant(qt(zone.title))
                                                                   : QVariant();
        if (column == loadColumn) return ofLoad(zone, window->units(), role);
        return role == Qt::DisplayRole || role == Qt::UserRole ? QVariant(qt(zone.pump.name))
                                                               : QVariant();
    }

    QString shown(int row) const {
        QStringList shown;
        for (const auto& [column, role] : {std::pair<int, int>{numberColumn, Qt::ToolTipRole},
                                           {labelColumn, Qt::DisplayRole},
                                           {loadColumn, Qt::DisplayRole},
                                           {pumpColumn, Qt::DisplayRole}})
            shown << data(row, column, role).toString();
        for (const QVariant& share : data(row, loadColumn, shareRole).toList())
            shown << QString::number(share.toDouble(), 'g', 17);
        return shown.join(u'\n');
    }

 private:
    QVariant ofNumber(const ZoneWindow& window, std::size_t position, int role) const {
        if (role == Qt::UserRole) return static_cast<int>(position);
        if (role != Qt::DecorationRole && role != Qt::ToolTipRole && role != Qt::AccessibleTextRole)
            return {};
        const std::vector<std::string> warnings = window.warningsOfZone(position);
        if (warnings.empty()) return {};
        if (role == Qt::DecorationRole) return houseIcon(QStringLiteral("refused"));
        QString told;
        for (const std::string& warning : warnings)
            told += (told.isEmpty() ? QString() : QStringLiteral("\n")) + qt(warning);
        return told;
    }

    QVariant ofLoad(const Zone& zone, UnitSystem units, int role) const {
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return loadText(zone, units);
        if (role == Qt::UserRole)
            return std::max(largestLoad(zone, cooling), largestLoad(zone, heating));
        if (role != shareRole || !(largest_ > 0)) return {};
        return QVariantList{largestLoad(zone, cooling) / largest_,
                            largestLoad(zone, heating) / largest_};
    }

    Binder& bind_;
    double largest_ = 0;  ///< of all zones, MBtu/hr
};

QStringList headsOf(const Binder& bind) {
    QStringList heads;
    for (const int text : {Text::zoneColumnNumber, Text::zoneColumnLabel, Text::zoneColumnLoad,
                           Text::zoneColumnPump})
        heads << qt(bind.text(text));
    return heads;
}

void addColumns(Binder& bind, ListView& list) {
    const auto columns = std::make_shared<ZoneColumns>(bind);
    const int sign = list.fontMetrics().ascent();
    list.setIconSize({sign, sign});
    // Numbers are seen whole; loads are bars, which need little.
    list.setColumns(
        {headsOf(bind),
         [columns](int row, int column, int role) { return columns->data(row, column, role); },
         [columns](int row) { return columns->shown(row); },
         {{0, 0}, {11, 5}, {6, 1}, {8, 1}}});
    list.setItemDelegateForColumn(numberColumn, new SignedZones(&list));
    list.setItemDelegateForColumn(loadColumn, new LoadBars(&list));
    list.setCells({[&list](int row) {
                       QStringList cells;
                       for (int column = 0; column < list.entries().columnCount(); ++column)
                           cells << list.entries().index(row, column).data().toString();
                       return cells;
                   },
                   [&bind] { return headsOf(bind); }});
    bind.onSettled([columns, &list] {
        columns->measure();
        list.refreshColumns();
    });
}

QPushButton* editCommand(Binder& bind, ListView& list) {
    auto* command = new QPushButton(qt(bind.text(Text::editSelectedZones)));
    command->setAutoDefault(false);
    QObject::connect(command, &QPushButton::clicked, &bind, [&bind] { editSelectedZones(bind); });
    const auto refresh = [command, &list] { command->setEnabled(!list.rows().empty()); };
    refresh();
    bind.onSettled(refresh);
    return command;
}

}  // namespace

QWidget* zoneColumns(Binder& bind) {
    auto* list = static_cast<ListView*>(bind.widget("LOZoneList"));
    addColumns(bind, *list);
    auto* filter = new QLineEdit;
    filter->setObjectName(QStringLiteral("zoneFilter"));
    makeSearch(*filter, qt(bind.text(Text::zoneFilter)), qt(bind.text(Text::emptySearch)));
    QObject::connect(filter, &QLineEdit::textChanged, list,
                     [list](const QString& text) { list->setFilter(text); });
    bind.addToMenu = [&bind](QMenu& menu, const std::string& control) {
        if (control != "LOZoneList") return;
        QObject::connect(
            menu.addAction(qt(bind.text(Text::pasteZones))), &QAction::triggered, &bind, [&bind] {
                bind.act(*bind.find("LOZoneList"),
                         [](Form& form, const std::string& n) { form.key(n, "Ctrl+V"); });
            });
        QObject::connect(menu.addAction(qt(bind.text(Text::editSelectedZones))),
                         &QAction::triggered, &bind, [&bind] { editSelectedZones(bind); });
        menu.addSeparator();
    };
    QWidget* column = varnholt::column(filter, grow(list), editCommand(bind, *list));
    constexpr int leastWidth = 24 * gridStep;
    column->setMinimumWidth(leastWidth);
    return column;
}

}  // namespace varnholt
