// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/shown_table.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>

#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/list_view.h"

namespace varnholt {
namespace {

/// What a cell shows; a field may stand in a box with what steps it.
QString textOf(const QWidget* cell) {
    if (cell->isHidden()) return {};
    if (const auto* label = qobject_cast<const QLabel*>(cell)) return label->text();
    if (const auto* edit = qobject_cast<const QLineEdit*>(cell)) return edit->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(cell)) return combo->currentText();
    const auto* inner = cell->findChild<const QLineEdit*>();
    return inner == nullptr ? QString() : inner->text();
}

/// One row of a grid, its unit taken to its caption.
struct GridRow {
    QString caption, unit;
    QStringList cells;
    bool hasFields = false;

    bool isEmpty() const { return caption.isEmpty() && cells.join(QString()).isEmpty(); }
    /// Heads of the columns, or their units below them.
    bool isWords() const {
        return !cells.isEmpty() && !hasFields &&
               std::none_of(cells.begin(), cells.end(), [](const QString& cell) {
                   bool isNumber = false;
                   cell.toDouble(&isNumber);
                   return isNumber;
               });
    }
};

QString withUnit(const QString& head, const QString& unit) {
    if (unit.isEmpty()) return head;
    return unit.startsWith(u'(') ? QStringLiteral("%1 %2").arg(head, unit)
                                 : QStringLiteral("%1 (%2)").arg(head, unit);
}

GridRow rowOf(const QGridLayout& grid, int line) {
    GridRow row;
    for (int column = 0; column < grid.columnCount(); ++column) {
        const QLayoutItem* item = grid.itemAtPosition(line, column);
        const QWidget* cell = item == nullptr ? nullptr : item->widget();
        if (cell == nullptr || cell->property(titleProperty).toBool()) continue;
        if (column > 0 && item == grid.itemAtPosition(line, column - 1)) continue;
        const QString text = textOf(cell).simplified();
        row.hasFields = row.hasFields || qobject_cast<const QLineEdit*>(cell) != nullptr;
        if (cell->property(unitProperty).toBool())
            row.unit = text;
        else if (column == 0)
            row.caption = text;
        else if (cell->layout() == nullptr || !text.isEmpty())
            row.cells << text;
    }
    return row;
}

void appendRows(const QGridLayout& grid, QStringList& lines) {
    std::vector<GridRow> rows;
    for (int line = 0; line < grid.rowCount(); ++line) {
        GridRow row = rowOf(grid, line);
        if (row.isEmpty()) continue;
        if (row.caption.isEmpty() && row.isWords() && !rows.empty() && rows.back().isWords() &&
            rows.back().cells.size() == row.cells.size()) {
            for (qsizetype i = 0; i < row.cells.size(); ++i)
                rows.back().cells[i] = withUnit(rows.back().cells[i], row.cells[i]);
            continue;
        }
        rows.push_back(std::move(row));
    }
    for (const GridRow& row : rows) {
        QString caption = row.caption;
        while (caption.endsWith(u':')) caption.chop(1);
        lines << (QStringList(withUnit(caption, row.unit)) + row.cells).join(u'\t');
    }
}

/// The grids below a widget, in the order of their layouts.
void appendGrids(const QWidget& widget, QStringList& lines) {
    const QLayout* layout = widget.layout();
    if (layout == nullptr) return;
    if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) appendRows(*grid, lines);
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget* inner = layout->itemAt(i)->widget();
        if (inner != nullptr && !inner->isHidden()) appendGrids(*inner, lines);
    }
}

const ListView* listAround(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget())
        if (const auto* list = dynamic_cast<const ListView*>(widget)) return list;
    return nullptr;
}

}  // namespace

QString tableAround(const QWidget* widget) {
    if (const ListView* list = listAround(widget)) return list->table();
    for (; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
        const bool isTable = dynamic_cast<const GroupBox*>(widget) != nullptr ||
                             qobject_cast<const QGridLayout*>(widget->layout()) != nullptr;
        if (!isTable) continue;
        QStringList lines;
        appendGrids(*widget, lines);
        if (lines.size() > 1) return lines.join(u'\n');
    }
    return {};
}

QString selectedLines(const QWidget* widget) {
    const ListView* list = listAround(widget);
    if (list == nullptr || list->rows().empty()) return {};
    const QString lines = list->tableOf(list->rows());
    // The heads belong to the whole table.
    return lines.section(u'\n', -static_cast<int>(list->rows().size()));
}

}  // namespace varnholt
