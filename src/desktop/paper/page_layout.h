// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageLayout>
#include <QRectF>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "desktop/paper/paper_type.h"
#include "reports/report.h"

namespace varnholt {

/// One control of a row, broken into lines.
struct LaidItem {
    const ReportItem* item = nullptr;
    double left = 0, width = 0;
    std::vector<QString> lines;     ///< at least one for what is a text
    const int* decimals = nullptr;  ///< most of its column of figures
};

/// A row of a report, measured. Lengths are tenths of a point.
struct LaidRow {
    std::vector<LaidItem> items;
    double height = 0;
    double before = 0;                        ///< room above, dropped at the head of a page
    double ascent = 0;                        ///< of its first line
    std::size_t firstLine = 0, lastLine = 0;  ///< lines that it shows of its items
    bool keepsNext = false;
    bool ruleAbove = false, ruleBelow = false;
    std::size_t zone = 0;
    std::size_t bandEnd = 0;  ///< the row behind the last of its band
};

struct PlacedRow {
    const LaidRow* row = nullptr;
    double top = 0;  ///< of the sheet
    /// The first below the heads of the columns, whose line parts it from them.
    bool underHead = false;
};

struct LaidPage {
    std::vector<PlacedRow> rows;
};

/// Where a zone begins, for the bookmarks of a file.
struct ZonePlace {
    std::size_t page = 0;
    double top = 0;
};

/// A report on pages of one paper: rows measured, long texts wrapped, zones kept together.
class PageLayout {
 public:
    /// Told how far it has come; false breaks it off.
    using Progress = std::function<bool(std::size_t done, std::size_t total)>;

    PageLayout(std::shared_ptr<const Report> report, const QPageLayout& paper,
               const Progress& progress = {});

    const Report& report() const { return *report_; }
    const PaperType& type() const { return type_; }
    /// False when it was broken off; the pages then end early.
    bool isComplete() const { return complete_; }
    const std::vector<LaidPage>& pages() const { return pages_; }
    const std::vector<ZonePlace>& zones() const { return zones_; }
    QSizeF sheet() const { return sheet_; }
    QRectF text() const { return text_; }
    /// Top of the running header of pages behind the first.
    double runningTop() const { return text_.top(); }
    /// Most decimals in the item's column of figures.
    int decimalsAt(const LaidItem& item) const { return item.decimals ? *item.decimals : 0; }

 private:
    using Rows = std::vector<LaidRow>;

    void measureAll(const Progress& progress);
    void ruleOffPageHead();
    static void setApart(const ReportBand& band, LaidRow& first);
    Rows& rowsFor(ReportSection section);
    LaidRow measure(const ReportBand& band, const ReportRow& row);
    LaidItem measureItem(const ReportBand& band, const ReportItem& item,
                         const std::vector<double>& edges);
    std::vector<QString> linesOf(const ReportItem& item, double width);
    std::vector<QString> brokenLines(const ReportItem& item, double width) const;
    void finish(LaidRow& row) const;
    void noteDecimals(const ReportBand& band, const ReportItem& item);
    std::vector<double> edgesOf(const ReportBand& band) const;

    void breakIntoPages(const Progress& progress);
    std::size_t groupAt(std::size_t row) const;
    double heightOf(std::size_t from, std::size_t to) const;
    void beginPage();
    void placePageHead(double top);
    void placeFixed(const Rows& rows, double top);
    void place(std::size_t row);
    void placeInPieces(std::size_t row);
    double room() const { return bottom_ - cursor_; }

    std::shared_ptr<const Report> report_;
    PaperType type_;
    QSizeF sheet_;
    QRectF text_;
    Rows pageHead_, body_, foot_;
    std::size_t headRows_ = 0;  ///< of the body, which are the report's own head
    std::vector<std::unique_ptr<LaidRow>> pieces_;
    std::vector<LaidPage> pages_;
    std::vector<ZonePlace> zones_;
    std::map<std::pair<const double*, std::size_t>, int> decimals_;
    /// Lines of captions and heads, which every zone has alike.
    std::map<std::tuple<ItemStyle, double, std::string>, std::vector<QString>> captions_;
    double cursor_ = 0, bottom_ = 0;
    bool complete_ = true;
    bool atHead_ = false;     ///< nothing of the body stands on the page yet
    bool underHead_ = false;  ///< the heads of the columns stand right above
};

}  // namespace varnholt
