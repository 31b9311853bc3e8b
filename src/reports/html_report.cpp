// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/html_report.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <string_view>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "reports/svg_drawing.h"

namespace varnholt {
namespace {

constexpr const char* pageStyle = R"(
:root{color-scheme:light dark;--ink:#1c2430;--muted:#5b6673;--line:#c9d0d8;--cool:#1d5fa8;--heat:#b23a2e;--paper:#fff}
@media (prefers-color-scheme:dark){:root{--ink:#e6eaef;--muted:#a3adb8;--line:#475260;--cool:#79b4f2;--heat:#f2958b;--paper:#171c22}}
body{font:14px/1.45 Inter,"Segoe UI","Noto Sans",sans-serif;color:var(--ink);background:var(--paper);max-width:70em;margin:2em auto;padding:0 1.5em}
.brand{color:var(--muted);letter-spacing:.06em;margin:0}
h1{font-size:1.7em;margin:.1em 0 .6em}
h2{font-size:1.2em;border-bottom:1px solid var(--line);margin:1.6em 0 .5em;padding-bottom:.2em}
h3{font-size:1em;margin:1.2em 0 .3em}
.scroll{overflow-x:auto}
table{border-collapse:collapse;width:100%;table-layout:fixed;margin:.2em 0 .9em}
th,td{padding:.12em .5em .12em 0;vertical-align:top;text-align:left;font-weight:normal;overflow-wrap:break-word}
.caption,.unit{color:var(--muted)}
.figure,.columnHead,.unit{text-align:right;font-variant-numeric:tabular-nums}
.columnHead,.textHead{vertical-align:bottom;font-weight:600}
.subheading,.zone,.strong{font-weight:700}
.begins td,.begins th{border-top:1px solid var(--line);padding-top:.5em}
.cooling{color:var(--cool)}.heating{color:var(--heat)}
.rule td{padding:0}.rule hr{border:0;border-top:1px solid var(--line);margin:.2em 0}
.notice{border-left:.3em solid #b8860b;padding:.3em .8em;font-weight:600}
.note{white-space:pre-wrap;overflow-wrap:break-word}
figure{margin:1em 0;display:inline-block;width:48%;vertical-align:top}
figcaption,footer{color:var(--muted);font-size:.9em}
footer{border-top:1px solid var(--line);margin-top:2em;padding-top:.5em;display:flex;gap:2em;flex-wrap:wrap}
svg{width:100%;height:auto}
@media print{body{margin:0;max-width:none}h2,h3{break-after:avoid}tr,figure{break-inside:avoid}}
)";

const char* classOf(ItemStyle itemStyle) {
    switch (itemStyle) {
        case ItemStyle::figure:
            return "figure";
        case ItemStyle::columnHead:
            return "columnHead";
        case ItemStyle::textHead:
            return "textHead";
        case ItemStyle::unit:
            return "unit";
        case ItemStyle::zone:
            return "zone";
        case ItemStyle::subheading:
            return "subheading";
        case ItemStyle::caption:
            return "caption";
        default:
            return "value";
    }
}

std::string classesOf(const ReportItem& item) {
    std::string classes = classOf(item.style);
    if (item.tint == Tint::cooling) classes += " cooling";
    if (item.tint == Tint::heating) classes += " heating";
    if (item.strong) classes += " strong";
    return classes;
}

bool isColumnHead(ItemStyle itemStyle) {
    return itemStyle == ItemStyle::columnHead || itemStyle == ItemStyle::textHead;
}

bool isRowHead(ItemStyle itemStyle) {
    return itemStyle == ItemStyle::caption || itemStyle == ItemStyle::zone ||
           itemStyle == ItemStyle::subheading;
}

/// Writes the bands of a report one after the other; those that stand in the same columns make one
/// table.
class Page {
 public:
    explicit Page(const Report& report) : report_(report) {}

    std::string write() {
        for (const ReportBand& band : report_.bands)
            if (band.section != ReportSection::PageFooter && !band.rows.empty()) add(band);
        endTable();
        for (const ReportBand& band : report_.bands)
            if (band.section == ReportSection::PageFooter) addFoot(band);
        return std::move(html_);
    }

 private:
    void add(const ReportBand& band) {
        const ItemStyle first = band.rows.front().items.empty()
                                    ? ItemStyle::value
                                    : band.rows.front().items.front().style;
        if (first == ItemStyle::brand) return addTitle(band);
        if (first == ItemStyle::heading || first == ItemStyle::note ||
            (first == ItemStyle::subheading && band.columns.size() == 1))
            return addPlain(band);
        if (first == ItemStyle::drawing) return addDrawings(band);
        const bool newZone = band.section == ReportSection::Zones_Header;
        if (band.columns.data() != columns_ || newZone) beginTable(band);
        for (const ReportRow& row : band.rows) addRow(band, row);
    }

    void addTitle(const ReportBand& band) {
        endTable();
        for (const ReportRow& row : band.rows)
            for (const ReportItem& item : row.items) {
                const std::string text = htmlText(item.text);
                if (item.style == ItemStyle::logo)
                    html_ += logo(text);
                else if (item.style == ItemStyle::title)
                    html_ += fmt::format("<h1>{}</h1>\n", text);
                else
                    html_ += fmt::format("<p class=\"{}\">{}</p>\n",
                                         item.style == ItemStyle::brand ? "brand" : "notice", text);
            }
    }

    /// The picture itself stands in the page, where it is a drawing.
    std::string logo(const std::string& words) const {
        if (!report_.logo.ends_with(".svg"))
            return fmt::format("<p class=\"brand\">{}</p>\n", words);
        try {
            return fmt::format(
                "<div role=\"img\" aria-label=\"{}\" style=\"float:right;width:9em\">{}</div>\n",
                words, readWholeFile(report_.logo));
        } catch (const RunTimeError&) {
            return fmt::format("<p class=\"brand\">{}</p>\n", words);
        }
    }

    void addPlain(const ReportBand& band) {
        endTable();
        for (const ReportRow& row : band.rows)
            for (const ReportItem& item : row.items) {
                const std::string text = htmlText(item.text);
                if (item.style == ItemStyle::heading)
                    html_ += fmt::format("<h2>{}</h2>\n", text);
                else if (item.style == ItemStyle::subheading)
                    html_ += fmt::format("<h3>{}</h3>\n", text);
                else
                    html_ += fmt::format("<p class=\"note\">{}</p>\n", text);
            }
    }

    void addDrawings(const ReportBand& band) {
        endTable();
        for (const ReportRow& row : band.rows)
            for (const ReportItem& item : row.items)
                html_ += fmt::format("<figure>{}<figcaption>{}</figcaption></figure>\n",
                                     svgOf(report_.drawings[item.drawing]), htmlText(item.text));
    }

    void beginTable(const ReportBand& band) {
        endTable();
        columns_ = band.columns.data();
        html_ += "<div class=\"scroll\"><table><colgroup>";
        const double whole = std::accumulate(band.columns.begin(), band.columns.end(), 0.0);
        for (const double column : band.columns)
            html_ += fmt::format("<col style=\"width:{:.2f}%\">", 100 * column / whole);
        html_ += "</colgroup>\n";
    }

    void endTable() {
        if (columns_ != nullptr) html_ += "</table></div>\n";
        columns_ = nullptr;
    }

    void addRow(const ReportBand& band, const ReportRow& row) {
        if (row.items.empty()) return;
        const ItemStyle first = row.items.front().style;
        html_ += first == ItemStyle::rule   ? "<tr class=\"rule\">"
                 : first == ItemStyle::zone ? "<tr class=\"begins\">"
                                            : "<tr>";
        std::size_t column = 0;
        for (const ReportItem& item : row.items) {
            fill(item.first - column);
            html_ += cell(item);
            column = std::size_t{item.first} + item.span;
        }
        fill(band.columns.size() - column);
        html_ += "</tr>\n";
    }

    void fill(std::size_t columns) {
        if (columns > 0) html_ += fmt::format("<td colspan=\"{}\"></td>", columns);
    }

    std::string cell(const ReportItem& item) const {
        const std::string span = item.span > 1 ? fmt::format(" colspan=\"{}\"", item.span) : "";
        if (item.style == ItemStyle::rule) return fmt::format("<td{}><hr></td>", span);
        const char* tag = isColumnHead(item.style) || isRowHead(item.style) ? "th" : "td";
        const char* scope = isColumnHead(item.style) ? " scope=\"col\""
                            : isRowHead(item.style)  ? " scope=\"row\""
                                                     : "";
        return fmt::format("<{0} class=\"{1}\"{2}{3}>{4}</{0}>", tag, classesOf(item), scope, span,
                           valueText(item));
    }

    static std::string valueText(const ReportItem& item) {
        if (item.unitAt == 0) return htmlText(item.text);
        return htmlText(item.text.substr(0, item.unitAt)) + "<span class=\"unit\">" +
               htmlText(item.text.substr(item.unitAt)) + "</span>";
    }

    void addFoot(const ReportBand& band) {
        html_ += "<footer>";
        for (const ReportRow& row : band.rows)
            for (const ReportItem& item : row.items)
                if (item.text != pageNumberText)
                    html_ += fmt::format("<span>{}</span>", htmlText(item.text));
        html_ += "</footer>\n";
    }

    const Report& report_;
    const double* columns_ = nullptr;
    std::string html_;
};

/// The language's font before the house's own; a name that is none cannot end the rule.
std::string fontRule(const std::string& font) {
    std::string name;
    for (const char c : font)
        if (static_cast<unsigned char>(c) >= 0x20 &&
            std::string_view("\"\\<>{};").find(c) == std::string_view::npos)
            name += c;
    if (name.empty()) return {};
    return "body{font-family:\"" + name + "\",Inter,\"Segoe UI\",\"Noto Sans\",sans-serif}\n";
}

}  // namespace

std::string htmlText(const std::string& text) {
    std::string safe;
    safe.reserve(text.size());
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '&')
            safe += "&amp;";
        else if (c == '<')
            safe += "&lt;";
        else if (c == '>')
            safe += "&gt;";
        else if (c == '"')
            safe += "&quot;";
        else if (c == '\'')
            safe += "&#39;";
        else if (code >= 0x20 ? code != 0x7F : c == '\n' || c == '\t')
            safe += c;
    }
    return safe;
}

std::string htmlOf(const Report& report) {
    return fmt::format(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<title>{}</title>\n<meta name=\"author\" content=\"{}\">\n<style>{}{}</style>\n</head>\n"
        "<body>\n<main>\n{}</main>\n</body>\n</html>\n",
        htmlText(report.caption), htmlText(report.designer), pageStyle, fontRule(report.font),
        Page(report).write());
}

}  // namespace varnholt
