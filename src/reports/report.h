// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "reports/report_drawing.h"
#include "script/report_source.h"

namespace varnholt {

/// The bands of a report, in the order in which they are printed.
enum class ReportSection {
    ReportHeader,
    PageHeader,
    ProjectID_Header,
    Zones_Header,
    Pumps_Detail,
    Zones_Footer,
    ProjectID_Footer,
    PageFooter,
    ReportFooter,
};

constexpr std::size_t reportSections = 9;

/// "ReportHeader", ...: the section's name.
const char* nameOf(ReportSection section);

/// What an item is in the hierarchy of the page.
enum class ItemStyle : std::uint8_t {
    brand,       ///< the program's name
    title,       ///< of the report
    notice,      ///< what a reader must know before all else
    heading,     ///< of a part
    subheading,  ///< of a block within a part
    zone,        ///< a zone's name, which begins its block
    caption,     ///< before a value
    value,       ///< a value that is a text
    figure,      ///< a value that is a number, in a column of numbers
    columnHead,  ///< above figures, aligned with them
    textHead,    ///< above texts
    unit,        ///< below the head of a column
    note,        ///< a long text of the user
    small,       ///< the foot of a page
    smallRight,
    rule,     ///< a thin line
    logo,     ///< the maker's picture; its text says whose
    drawing,  ///< one of the report's drawings
};

/// Cooling and heating have a colour of their own.
enum class Tint : std::uint8_t { none, cooling, heating };

/// One control of a band: what it prints, and its place in the columns of the band.
struct ReportItem {
    std::string control;
    std::string text{};
    ItemStyle style = ItemStyle::value;
    Tint tint = Tint::none;
    bool strong = false;     ///< the mode that governs
    std::uint8_t first = 0;  /// first of the columns that it takes
    std::uint8_t span = 1;
    /// Where the text's unit begins, which is printed paler; 0 for a text without one.
    std::size_t unitAt = 0;
    /// Of a rule, in the measure of the columns.
    double length = 0;
    /// Of a drawing: its place among the report's drawings.
    std::size_t drawing = 0;
};

/// Items side by side.
struct ReportRow {
    std::vector<ReportItem> items;
};

/// Rows that stand in the same columns.
struct ReportBand {
    ReportSection section = ReportSection::ReportHeader;
    /// Widths of the columns, mm on a page whose text is `designWidth` wide; a static table.
    std::span<const double> columns;
    std::vector<ReportRow> rows;
    /// The zone that the band belongs to, counted from 1; 0 for none. The bands of a zone stay
    /// together on a page where they fit.
    std::size_t zone = 0;
};

/// Width of the text for which the columns of bands are designed, mm.
constexpr double designWidth = 180;

/// A report as a document: bands, rows and labels by name, filled. What shows, prints or writes it
/// takes it as it is.
struct Report {
    std::string object;   ///< "rptBH"
    std::string caption;  ///< of its window
    std::string font;     ///< face of the language's font; empty for the house's own
    bool landscape = false;
    /// A short form carries no page number in its foot.
    bool numbered = true;
    /// "Page %1 of %2" of the language, for the header of later pages.
    std::string pageOfPages;
    std::string logo;  ///< the picture's file; empty where the language has none
    std::string projectName, designer;
    std::vector<ReportBand> bands;
    std::vector<ReportDrawing> drawings;
    /// Titles of the zones, in their order.
    std::vector<std::string> zones;
    /// Controls of the zones' bands that print a field, in their order; whatever zones there are.
    std::vector<std::string> fields;
};

/// What a page number prints; the places are filled for each page.
inline constexpr const char* pageNumberText = "%p / %P";
/// The text with the page and the number of pages in its places.
std::string withPages(const std::string& text, std::size_t page, std::size_t pages);

/// Whether the style is printed as text.
bool isText(ItemStyle style);
/// Whether it is a field's value, and not a word of the report itself.
bool isField(ItemStyle style);

/// Band by band, row by row, what is printed. Bands of a page stand once, as on the first of one
/// page.
std::vector<ReportEntry> entriesOf(const Report& report);

}  // namespace varnholt
