// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/page_painter.h"

#include <QSvgRenderer>
#include <algorithm>

#include "desktop/drawings/bore_picture.h"
#include "desktop/drawings/circuit_picture.h"
#include "desktop/drawings/field_picture.h"
#include "desktop/drawings/loads_picture.h"
#include "desktop/drawings/trench_picture.h"
#include "desktop/drawings/trench_plan_picture.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr double ruleWidth = 4;

/// Drawings are painted as on the screen, and set to this many of its pixels on a line of text.
constexpr double pixelsPerUnit = 0.125;

struct PaintWhat {
    const Canvas& canvas;
    const Texts& texts;

    void operator()(const BoreDrawing& bore) const { paintBore(canvas, bore, texts); }
    void operator()(const FieldPlan& field) const { paintField(canvas, field, texts); }
    void operator()(const TrenchDrawing& trench) const { paintTrench(canvas, trench, texts); }
    void operator()(const TrenchPlan& plan) const { paintTrenches(canvas, plan, texts); }
    void operator()(const CircuitPlan& plan) const { paintCircuit(canvas, plan, texts); }
    void operator()(const DayDrawing& day) const {
        paintLoads(canvas, day.chart, {day.blocks, day.unit}, texts);
    }
};

/// What of an item stands on a page: all of it, or the lines of a text that goes on over pages.
QString wordsOn(const LaidRow& row, const LaidItem& laid, std::size_t page, std::size_t pages) {
    if (laid.item->text == pageNumberText) return qt(withPages(laid.item->text, page + 1, pages));
    const std::size_t end = std::min(row.lastLine, laid.lines.size());
    if (row.firstLine == 0 && end == laid.lines.size()) return qt(laid.item->text);
    QStringList lines;
    for (std::size_t line = row.firstLine; line < end; ++line) lines << laid.lines[line];
    return lines.join(u'\n');
}

QString numberOf(const ReportItem& item) {
    return qt(item.unitAt == 0 ? item.text : item.text.substr(0, item.unitAt - 1));
}

}  // namespace

void PagePainter::paint(QPainter& painter, std::size_t page) const {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    if (page > 0) paintRunningHeader(painter, page);
    for (const PlacedRow& placed : layout_.pages()[page].rows) paintRow(painter, placed, page);
}

void PagePainter::paintRunningHeader(QPainter& painter, std::size_t page) const {
    const Report& report = layout_.report();
    const PaperStyle& style = layout_.type().of(ItemStyle::small);
    const QRectF text = layout_.text();
    const double baseline = layout_.runningTop() + style.ascent;
    painter.setFont(style.font);
    painter.setPen(style.colour);
    const QString pages = qt(report.pageOfPages).arg(page + 1).arg(layout_.pages().size());
    const double pagesWidth = style.widthOf(pages);
    const QString project = qt(report.projectName).simplified();
    const QString running =
        project.isEmpty() ? qt(report.caption).trimmed()
                          : project + QStringLiteral("  \u00B7  ") + qt(report.caption).trimmed();
    const QString shown = QFontMetricsF(style.font)
                              .elidedText(running, Qt::ElideRight, text.width() - pagesWidth - 100);
    painter.drawText(QPointF(text.left(), baseline), shown);
    painter.drawText(QPointF(text.right() - pagesWidth, baseline), pages);
    const double rule = layout_.runningTop() + style.lineHeight + 15;
    painter.setPen(QPen(paperRule(), ruleWidth));
    painter.drawLine(QPointF(text.left(), rule), QPointF(text.right(), rule));
}

void PagePainter::paintRow(QPainter& painter, const PlacedRow& placed, std::size_t page) const {
    const LaidRow& row = *placed.row;
    const QRectF text = layout_.text();
    double top = placed.top;
    painter.setPen(QPen(paperRule(), ruleWidth));
    if (row.ruleAbove) {
        if (!placed.underHead)
            painter.drawLine(QPointF(text.left(), top), QPointF(text.right(), top));
        top += 20;
    }
    if (row.ruleBelow) {
        const double below = top + row.height - (row.ruleAbove ? 20 : 0) - 15;
        painter.drawLine(QPointF(text.left(), below), QPointF(text.right(), below));
    }
    for (const LaidItem& laid : row.items) paintItem(painter, row, laid, top, page);
}

void PagePainter::paintItem(QPainter& painter, const LaidRow& row, const LaidItem& laid, double top,
                            std::size_t page) const {
    const ReportItem& item = *laid.item;
    const PaperStyle& style = layout_.type().of(item);
    const double left = layout_.text().left() + laid.left;
    if (item.style == ItemStyle::rule) {
        painter.setPen(QPen(paperRule(), ruleWidth));
        painter.drawLine(QPointF(left, top + 5), QPointF(left + laid.width, top + 5));
        return;
    }
    if (item.style == ItemStyle::drawing) return paintDrawing(painter, laid, top);
    if (item.style == ItemStyle::logo) return paintLogo(painter, laid, top);
    painter.setFont(style.font);
    painter.setPen(tintColour(item.tint, style.colour));
    double baseline = top + row.ascent;
    if (style.bottom)
        baseline += static_cast<double>(row.lastLine - std::min(row.lastLine, laid.lines.size())) *
                    style.lineHeight;
    const std::size_t end = std::min(row.lastLine, laid.lines.size());
    for (std::size_t line = row.firstLine; line < end; ++line, baseline += style.lineHeight) {
        const QString words = item.text == pageNumberText
                                  ? qt(withPages(item.text, page + 1, layout_.pages().size()))
                                  : laid.lines[line];
        if (item.style == ItemStyle::figure)
            paintFigure(painter, laid, baseline);
        else if (style.right)
            painter.drawText(QPointF(left + laid.width - style.widthOf(words), baseline), words);
        else
            paintValue(painter, laid, words, baseline);
    }
}

/// A number stands with its point below those of its column, its unit behind it.
void PagePainter::paintFigure(QPainter& painter, const LaidItem& laid, double baseline) const {
    const ReportItem& item = *laid.item;
    const PaperStyle& style = layout_.type().of(item);
    const QString number = numberOf(item);
    const double left = layout_.text().left() + laid.left;
    const qsizetype point = number.lastIndexOf(u'.');
    const QString whole = point < 0 ? number : number.left(point);
    const double digit = style.widthOf(QStringLiteral("0"));
    const int decimals = layout_.decimalsAt(laid);
    const double behind = decimals == 0 ? 0 : style.widthOf(QStringLiteral(".")) + digit * decimals;
    const double start = left + laid.width - behind - style.widthOf(whole);
    painter.drawText(QPointF(start, baseline), number);
    if (item.unitAt == 0) return;
    const PaperStyle& unit = layout_.type().of(ItemStyle::unit);
    painter.setFont(unit.font);
    painter.setPen(unit.colour);
    painter.drawText(QPointF(start + style.widthOf(number) + digit / 2, baseline),
                     qt(item.text.substr(item.unitAt)));
}

/// A value's unit is printed paler, where it stands on one line with its number.
void PagePainter::paintValue(QPainter& painter, const LaidItem& laid, const QString& line,
                             double baseline) const {
    const ReportItem& item = *laid.item;
    const double left = layout_.text().left() + laid.left;
    if (item.unitAt == 0 || laid.lines.size() != 1) {
        painter.drawText(QPointF(left, baseline), line);
        return;
    }
    const PaperStyle& style = layout_.type().of(item);
    const QString number = qt(item.text.substr(0, item.unitAt));
    painter.drawText(QPointF(left, baseline), number);
    painter.setPen(paperMuted());
    painter.drawText(QPointF(left + style.widthOf(number), baseline),
                     qt(item.text.substr(item.unitAt)));
}

void PagePainter::paintDrawing(QPainter& painter, const LaidItem& laid, double top) const {
    const ReportItem& item = *laid.item;
    const PaperStyle& style = layout_.type().of(item);
    const double left = layout_.text().left() + laid.left;
    painter.setFont(style.font);
    painter.setPen(style.colour);
    painter.drawText(QPointF(left, top + style.ascent), qt(item.text));
    painter.save();
    painter.translate(left, top + style.lineHeight);
    painter.scale(1 / pixelsPerUnit, 1 / pixelsPerUnit);
    const QRectF area(0, 0, laid.width * pixelsPerUnit, 62 * unitsPerMillimetre * pixelsPerUnit);
    QFont words = style.font;
    words.setPixelSize(10);
    words.setWeight(QFont::Normal);
    const Canvas canvas{painter, area, lightLook(), words, figureFont(words)};
    std::visit(PaintWhat{canvas, texts_}, layout_.report().drawings[item.drawing].what);
    painter.restore();
}

void PagePainter::paintLogo(QPainter& painter, const LaidItem& laid, double top) const {
    QSvgRenderer picture(qt(layout_.report().logo));
    if (!picture.isValid()) return;
    QSizeF size = picture.defaultSize();
    const double height = 11 * unitsPerMillimetre;
    size.scale(laid.width, height, Qt::KeepAspectRatio);
    const QPointF corner(layout_.text().left() + laid.left + laid.width - size.width(), top);
    picture.render(&painter, QRectF(corner, size));
}

std::vector<TextPlace> placesOf(const PageLayout& layout, const QString& words) {
    std::vector<TextPlace> places;
    if (words.isEmpty()) return places;
    for (std::size_t page = 0; page < layout.pages().size(); ++page)
        for (const PlacedRow& placed : layout.pages()[page].rows)
            for (const LaidItem& laid : placed.row->items)
                if (isText(laid.item->style) &&
                    qt(laid.item->text).contains(words, Qt::CaseInsensitive))
                    places.push_back({page,
                                      {layout.text().left() + laid.left, placed.top, laid.width,
                                       placed.row->height}});
    return places;
}

QString wordsOf(const PageLayout& layout, std::size_t page) {
    std::vector<PlacedRow> rows = layout.pages()[page].rows;
    std::stable_sort(rows.begin(), rows.end(),
                     [](const PlacedRow& a, const PlacedRow& b) { return a.top < b.top; });
    QString words;
    for (const PlacedRow& placed : rows) {
        qsizetype column = 0;
        for (const LaidItem& laid : placed.row->items) {
            if (!isText(laid.item->style)) continue;
            // Columns that are empty are passed over, so that a row stays below the heads.
            words += QString(laid.item->first - column, u'\t');
            column = laid.item->first;
            words += wordsOn(*placed.row, laid, page, layout.pages().size());
        }
        words += u'\n';
    }
    return words;
}

}  // namespace varnholt
