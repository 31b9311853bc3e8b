// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/pdf_file.h"

#include <QBuffer>
#include <QPdfWriter>

#include "desktop/paper/page_painter.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/main.h"
#include "reports/pdf_supplement.h"

namespace varnholt {
namespace {

constexpr int dotsPerInch = 720;  // one for each unit of the layout

std::vector<PdfBookmark> bookmarksOf(const PageLayout& layout) {
    std::vector<PdfBookmark> marks;
    for (std::size_t zone = 0; zone < layout.zones().size(); ++zone) {
        const ZonePlace& place = layout.zones()[zone];
        marks.push_back({layout.report().zones[zone], place.page,
                         (layout.sheet().height() - place.top) / unitsPerPoint});
    }
    return marks;
}

}  // namespace

std::string pdfOf(const PageLayout& layout, const QPageLayout& paper, const Texts& texts,
                  const PageLayout::Progress& progress) {
    const Report& report = layout.report();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(dotsPerInch);
        QPageLayout sheet = paper;
        sheet.setMode(QPageLayout::FullPageMode);
        writer.setPageLayout(sheet);
        writer.setTitle(qt(report.caption).trimmed());
        writer.setCreator(qt(texts.text(Text::programTitle)));
        QPainter painter(&writer);
        const PagePainter pages(layout, texts);
        for (std::size_t page = 0; page < layout.pages().size(); ++page) {
            if (progress && !progress(page, layout.pages().size())) return {};
            if (page > 0) writer.newPage();
            pages.paint(painter, page);
        }
    }
    if (progress) progress(layout.pages().size(), layout.pages().size());
    return withAuthorAndOutline(buffer.data().toStdString(), report.designer, bookmarksOf(layout));
}

}  // namespace varnholt
