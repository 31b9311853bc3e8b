// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/page_layout.h"

#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr double gutter = 2 * unitsPerMillimetre;  // between neighbouring columns
constexpr double rowGap = 8;
constexpr double drawingHeight = 62 * unitsPerMillimetre;
constexpr double logoHeight = 11 * unitsPerMillimetre;
constexpr double runningHeight = 200;
constexpr double footGap = 60;
constexpr double ruleRoom = 30;
/// Rows of a table that stays on one page where it can.
constexpr std::size_t fewRows = 12;
/// Rows between two looks at whether the user has had enough.
constexpr std::size_t patience = 256;

/// Characters that would move the pen instead of showing something.
QString printable(const std::string& text) {
    QString shown = qt(text);
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    for (QChar& c : shown) {
        if (c == u'\t') c = u' ';
        if (c != u'\n' && c.category() == QChar::Other_Control) c = QChar::ReplacementCharacter;
    }
    return shown;
}

std::size_t linesIn(const LaidItem& item) { return item.lines.size(); }

/// Words of the report itself, which stand in it again and again.
bool isCaption(ItemStyle style) {
    using enum ItemStyle;
    return style == caption || style == columnHead || style == textHead || style == unit ||
           style == subheading;
}

/// A block's heading beside lines of the neighbouring block, which it must not push apart.
bool besideOthers(const LaidRow& row, const LaidItem& heading) {
    return heading.item->style == ItemStyle::subheading &&
           std::any_of(row.items.begin(), row.items.end(),
                       [](const LaidItem& laid) { return laid.item->style == ItemStyle::caption; });
}

}  // namespace

PageLayout::PageLayout(std::shared_ptr<const Report> report, const QPageLayout& paper,
                       const Progress& progress)
    : report_(std::move(report)),
      type_(qt(report_->font)),
      sheet_(paper.fullRect(QPageLayout::Point).size() * unitsPerPoint),
      text_(paper.paintRect(QPageLayout::Point).topLeft() * unitsPerPoint,
            paper.paintRect(QPageLayout::Point).size() * unitsPerPoint) {
    if (progress) progress(0, report_->bands.size());
    measureAll(progress);
    breakIntoPages(progress);
    if (progress) progress(report_->bands.size(), report_->bands.size());
}

PageLayout::Rows& PageLayout::rowsFor(ReportSection section) {
    switch (section) {
        case ReportSection::PageHeader:
            return pageHead_;
        case ReportSection::PageFooter:
            return foot_;
        default:
            return body_;
    }
}

void PageLayout::measureAll(const Progress& progress) {
    for (const ReportBand& band : report_->bands)
        for (const ReportRow& row : band.rows)
            for (const ReportItem& item : row.items) noteDecimals(band, item);
    std::size_t done = 0;
    for (const ReportBand& band : report_->bands) {
        if (progress && ++done % patience == 0 && !progress(done, 2 * report_->bands.size())) {
            complete_ = false;
            return;
        }
        Rows& rows = rowsFor(band.section);
        const std::size_t first = rows.size();
        for (const ReportRow& row : band.rows) rows.push_back(measure(band, row));
        if (first > 0 && first < rows.size()) setApart(band, rows[first]);
        for (std::size_t row = first; row < rows.size(); ++row) rows[row].bandEnd = rows.size();
        if (band.section == ReportSection::ReportHeader) headRows_ = body_.size();
    }
    ruleOffPageHead();
}

/// Columns of another band begin with some room, where their first row brings none.
void PageLayout::setApart(const ReportBand& band, LaidRow& first) {
    if (band.columns.size() <= 1 || first.before > 0) return;
    if (band.section == ReportSection::ProjectID_Header) first.before = 40;
    if (band.section == ReportSection::ReportHeader) first.before = 70;
    if (band.section == ReportSection::PageHeader) first.before = 50;
}

/// A line parts the heads of the columns from what stands below, unless the report has one there.
void PageLayout::ruleOffPageHead() {
    if (pageHead_.empty()) return;
    LaidRow& last = pageHead_.back();
    if (last.items.front().item->style == ItemStyle::rule) return;
    last.ruleBelow = true;
    last.height += ruleRoom;
}

std::vector<double> PageLayout::edgesOf(const ReportBand& band) const {
    const double whole = std::accumulate(band.columns.begin(), band.columns.end(), 0.0);
    std::vector<double> edges{0};
    for (const double column : band.columns)
        edges.push_back(edges.back() + column / whole * text_.width());
    return edges;
}

void PageLayout::noteDecimals(const ReportBand& band, const ReportItem& item) {
    if (item.style != ItemStyle::figure) return;
    const std::size_t end = item.unitAt == 0 ? item.text.size() : item.unitAt - 1;
    const std::size_t point = item.text.rfind('.', end);
    if (point == std::string::npos) return;
    int& most = decimals_[{band.columns.data(), std::size_t{item.first} + item.span}];
    most = std::max(most, static_cast<int>(end - point - 1));
}

LaidRow PageLayout::measure(const ReportBand& band, const ReportRow& row) {
    LaidRow laid;
    laid.zone = band.zone;
    const std::vector<double> edges = edgesOf(band);
    for (const ReportItem& item : row.items) laid.items.push_back(measureItem(band, item, edges));
    finish(laid);
    return laid;
}

LaidItem PageLayout::measureItem(const ReportBand& band, const ReportItem& item,
                                 const std::vector<double>& edges) {
    LaidItem laid{&item, edges[item.first], 0, {}, nullptr};
    const std::size_t last = std::size_t{item.first} + item.span;
    if (item.style == ItemStyle::figure) {
        const auto found = decimals_.find({band.columns.data(), last});
        if (found != decimals_.end()) laid.decimals = &found->second;
    }
    laid.width = edges[last] - laid.left - (last < band.columns.size() ? gutter : 0);
    if (item.style == ItemStyle::rule)
        laid.width = item.length * text_.width() /
                     std::accumulate(band.columns.begin(), band.columns.end(), 0.0);
    if (isText(item.style)) laid.lines = linesOf(item, laid.width);
    return laid;
}

std::vector<QString> PageLayout::linesOf(const ReportItem& item, double width) {
    if (!isCaption(item.style)) return brokenLines(item, width);
    const auto [known, isNew] = captions_.try_emplace({item.style, width, item.text});
    if (isNew) known->second = brokenLines(item, width);
    return known->second;
}

std::vector<QString> PageLayout::brokenLines(const ReportItem& item, double width) const {
    const QString text = printable(item.text);
    const PaperStyle& style = type_.of(item);
    // Figures are never broken.
    const bool broken = text.contains(u'\n');
    if (item.style == ItemStyle::figure) return {text};
    if (!broken && static_cast<double>(text.size()) * style.widest <= width) return {text};
    if (!broken && style.widthOf(text) <= width) return {text};
    std::vector<QString> lines;
    for (QString paragraph : text.split(u'\n')) {
        // A unit such as L/min stays on one line of a column's head.
        if (item.style == ItemStyle::columnHead) paragraph.replace(u'/', QStringLiteral("/\u2060"));
        QTextLayout layout(paragraph, style.font);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        bool any = false;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines.push_back(
                paragraph.mid(line.textStart(), line.textLength()).remove(u'\u2060').trimmed());
            any = true;
        }
        layout.endLayout();
        if (!any) lines.emplace_back();
    }
    return lines;
}

void PageLayout::finish(LaidRow& row) const {
    double tallest = 0, descent = 0;
    std::size_t lines = 0;
    for (const LaidItem& laid : row.items) {
        const PaperStyle& style = type_.of(*laid.item);
        lines = std::max(lines, linesIn(laid));
        row.ascent = std::max(row.ascent, style.ascent);
        descent = std::max(descent, style.descent);
        if (!besideOthers(row, laid)) row.before = std::max(row.before, style.before);
        row.keepsNext = row.keepsNext || style.keepsNext;
        row.ruleAbove = row.ruleAbove ||
                        (laid.item->style == ItemStyle::zone && laid.item->control != "txtZoneID");
        row.ruleBelow = row.ruleBelow || laid.item->style == ItemStyle::heading;
        double height =
            style.lineHeight * static_cast<double>(std::max<std::size_t>(1, linesIn(laid)));
        if (laid.item->style == ItemStyle::drawing) height += drawingHeight;
        if (laid.item->style == ItemStyle::logo && !report_->logo.empty()) height = logoHeight;
        if (laid.item->style == ItemStyle::rule) height = 14;
        tallest = std::max(tallest, height);
    }
    row.lastLine = lines;
    row.height = std::max(tallest, row.ascent + descent) + rowGap;
    if (row.items.empty()) row.height = 0;
    if (row.ruleBelow) row.height += ruleRoom;
    if (row.ruleAbove) row.height += 20;
}

double PageLayout::heightOf(std::size_t from, std::size_t to) const {
    double height = 0;
    for (std::size_t row = from; row < to; ++row)
        height += body_[row].height + (row == from ? 0 : body_[row].before);
    return height;
}

/// The row behind the last of those that stay together with this one: a zone's, or a heading's up
/// to the first row of what it heads.
std::size_t PageLayout::groupAt(std::size_t row) const {
    std::size_t end = row + 1;
    if (body_[row].zone > 0) {
        while (end < body_.size() && body_[end].zone == body_[row].zone) ++end;
        return end;
    }
    while (end < body_.size() && end != headRows_ && body_[end - 1].keepsNext) ++end;
    // A table of a few rows is not torn.
    const LaidRow& last = body_[end - 1];
    const bool ofDrawings = !last.items.empty() && !isText(last.items.front().item->style);
    return !ofDrawings && last.bandEnd - end < fewRows ? last.bandEnd : end;
}

void PageLayout::placeFixed(const Rows& rows, double top) {
    cursor_ = top;
    for (const LaidRow& row : rows) {
        cursor_ += row.before;
        pages_.back().rows.push_back({&row, cursor_});
        cursor_ += row.height;
    }
}

void PageLayout::beginPage() {
    pages_.emplace_back();
    double footHeight = 0;
    for (const LaidRow& row : foot_) footHeight += row.before + row.height;
    placeFixed(foot_, text_.bottom() - footHeight);
    bottom_ = text_.bottom() - footHeight - footGap;
    cursor_ = text_.top();
    atHead_ = true;
    if (pages_.size() > 1) placePageHead(text_.top() + runningHeight);
}

void PageLayout::placePageHead(double top) {
    cursor_ = top;
    if (pageHead_.empty()) return;
    placeFixed(pageHead_, top);
    underHead_ = true;
    cursor_ += 30;
}

void PageLayout::place(std::size_t row) {
    const LaidRow& laid = body_[row];
    if (!atHead_) cursor_ += laid.before;
    atHead_ = false;
    if (laid.zone > zones_.size()) zones_.push_back({pages_.size() - 1, cursor_});
    pages_.back().rows.push_back({&laid, cursor_, underHead_});
    underHead_ = false;
    cursor_ += laid.height;
}

/// A row that is taller than what is left of the page goes on over as many pages as it needs.
void PageLayout::placeInPieces(std::size_t row) {
    const LaidRow& whole = body_[row];
    double lineHeight = 1;
    for (const LaidItem& item : whole.items)
        lineHeight = std::max(lineHeight, type_.of(*item.item).lineHeight);
    for (std::size_t line = 0; line < whole.lastLine;) {
        auto fit = static_cast<std::size_t>(std::max(0.0, room() - rowGap) / lineHeight);
        if (fit == 0 || (line == 0 && fit < 3 && whole.lastLine > fit)) {
            beginPage();
            fit =
                std::max<std::size_t>(1, static_cast<std::size_t>((room() - rowGap) / lineHeight));
        }
        pieces_.push_back(std::make_unique<LaidRow>(whole));
        LaidRow& piece = *pieces_.back();
        piece.firstLine = line;
        piece.lastLine = std::min(whole.lastLine, line + fit);
        piece.height = lineHeight * static_cast<double>(piece.lastLine - line) + rowGap;
        piece.ruleAbove = piece.ruleAbove && line == 0;
        if (piece.zone > zones_.size()) zones_.push_back({pages_.size() - 1, cursor_});
        pages_.back().rows.push_back({&piece, cursor_});
        cursor_ += piece.height;
        atHead_ = false;
        line = piece.lastLine;
    }
}

void PageLayout::breakIntoPages(const Progress& progress) {
    beginPage();
    const double wholePage = bottom_ - text_.top() - runningHeight;
    for (std::size_t row = 0; row < body_.size();) {
        if (progress && row % patience == 0 && !progress(body_.size() + row, 2 * body_.size())) {
            complete_ = false;
            return;
        }
        // On the first page the heads of the columns stand below the report's own.
        if (row == headRows_ && pages_.size() == 1) placePageHead(cursor_ + 80);
        const std::size_t end = groupAt(row);
        const double height = body_[row].before + heightOf(row, end);
        if (height > room() && height <= wholePage) beginPage();
        for (; row < end; ++row) {
            const double needed = body_[row].before + body_[row].height;
            if (needed > room() && body_[row].lastLine > 1 && needed > wholePage / 3)
                placeInPieces(row);
            else {
                if (needed > room()) beginPage();
                place(row);
            }
        }
    }
    if (body_.size() == headRows_ && pages_.size() == 1) placePageHead(cursor_ + 80);
}

}  // namespace varnholt
