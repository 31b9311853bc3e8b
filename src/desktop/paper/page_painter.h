// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>
#include <vector>

#include "desktop/paper/page_layout.h"
#include "forms/texts.h"

namespace varnholt {

/// Paints a page of a report, as paper, screen and file show it. The painter measures in tenths of
/// a point from the sheet's corner.
class PagePainter {
 public:
    /// @param layout, texts  must outlive the painter
    PagePainter(const PageLayout& layout, const Texts& texts) : layout_(layout), texts_(texts) {}

    void paint(QPainter& painter, std::size_t page) const;

 private:
    void paintRunningHeader(QPainter& painter, std::size_t page) const;
    void paintRow(QPainter& painter, const PlacedRow& placed, std::size_t page) const;
    void paintItem(QPainter& painter, const LaidRow& row, const LaidItem& laid, double top,
                   std::size_t page) const;
    void paintFigure(QPainter& painter, const LaidItem& laid, double baseline) const;
    void paintValue(QPainter& painter, const LaidItem& laid, const QString& line,
                    double baseline) const;
    void paintDrawing(QPainter& painter, const LaidItem& laid, double top) const;
    void paintLogo(QPainter& painter, const LaidItem& laid, double top) const;

    const PageLayout& layout_;
    const Texts& texts_;
};

/// A place of a text on the pages.
struct TextPlace {
    std::size_t page = 0;
    QRectF where;
};

/// Every item whose text has the words in it, whatever their case, in the order of the pages.
std::vector<TextPlace> placesOf(const PageLayout& layout, const QString& words);

/// The words of a page, line by line, columns apart by tabulators.
QString wordsOf(const PageLayout& layout, std::size_t page);

}  // namespace varnholt
