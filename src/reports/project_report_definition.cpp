// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/project_report_definition.h"

#include <algorithm>
#include <vector>

#include "design/results_tab.h"
#include "forms/control.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {
namespace {

constexpr double headingColumns[] = {180};
constexpr double tableColumns[] = {84, 38, 38, 20};
constexpr double blockColumns[] = {54, 34, 6, 52, 34};
constexpr std::uint8_t rightBlock = 3;

/// The label of a result array that holds the row's caption.

ReportItem itemOf(const Labelled& label, ItemStyle style, int first, int span,
                  const FillContext& context) {
    return {.control = label.control,
            .text = textOf(label.source, context),
            .style = style,
            .first = static_cast<std::uint8_t>(first),
            .span = static_cast<std::uint8_t>(span)};
}

/// "FlowRatePerTonLabel" of "FlowRatePerTonTextLabel".
std::string captionControlOf(std::string value) {
    constexpr std::string_view ending = "TextLabel";
    if (value.ends_with(ending)) value.replace(value.size() - ending.size(), 4, "");
    return value;
}

struct AddPart {
    Report& report;
    const FillContext& context;

    ReportBand& band(std::span<const double> columns) const {
        report.bands.push_back({ReportSection::ProjectID_Header, columns, {}, 0});
        return report.bands.back();
    }

    void operator()(const Heading& heading) const {
        if (!isPrinted(heading.printed, context)) return;
        band(headingColumns)
            .rows.push_back({{itemOf(heading.label, heading.style, 0, 1, context)}});
    }

    void operator()(const Results& results) const {
        ReportBand& table = band(tableColumns);
        addHeads(table,
                 {{{{"CoolingLabel", words(Text::resultsCooling)}, Tint::cooling},
                   {{"HeatingLabel", words(Text::resultsHeating)}, Tint::heating}}},
                 ItemStyle::columnHead);
        for (const ResultLine& line : results.lines) addResult(table, line);
        for (const TableRow& row : results.more) addRow(table, row, ItemStyle::figure);
    }

    void operator()(const Table& table) const {
        ReportBand& rows = band(tableColumns);
        const bool figures = table.style == ItemStyle::figure;
        addHeads(rows, table.columns, figures ? ItemStyle::columnHead : ItemStyle::textHead);
        for (const TableRow& row : table.rows) addRow(rows, row, table.style);
    }

    void operator()(const Blocks& blocks) const {
        if (!isPrinted(blocks.printed, context)) return;
        std::vector<ReportRow> left = rowsOf(blocks.left, 0),
                               right = rowsOf(blocks.right, rightBlock);
        left.resize(std::max(left.size(), right.size()));
        for (std::size_t i = 0; i < right.size(); ++i)
            std::move(right[i].items.begin(), right[i].items.end(),
                      std::back_inserter(left[i].items));
        band(blockColumns).rows = std::move(left);
    }

    void operator()(const Note& note) const {
        band(headingColumns).rows.push_back({{itemOf(note.label, ItemStyle::note, 0, 1, context)}});
    }

    void operator()(const Drawings& drawings) const {
        if (report.drawings.empty()) return;
        (*this)(Heading{drawings.heading});
        static constexpr double columns[] = {90, 90};
        ReportBand& pictures = band(columns);
        for (std::size_t i = 0; i < report.drawings.size(); ++i) {
            if (i % 2 == 0) pictures.rows.emplace_back();
            pictures.rows.back().items.push_back({.control = "imgDrawing",
                                                  .text = report.drawings[i].title,
                                                  .style = ItemStyle::drawing,
                                                  .first = static_cast<std::uint8_t>(i % 2),
                                                  .drawing = i});
        }
    }

 private:
    void addHeads(ReportBand& table, const std::array<TableColumn, 2>& columns,
                  ItemStyle style) const {
        ReportRow heads;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            heads.items.push_back(
                itemOf(columns[i].label, style, static_cast<int>(i) + 1, 1, context));
            heads.items.back().tint = columns[i].tint;
        }
        table.rows.push_back(std::move(heads));
    }

    void addRow(ReportBand& table, const TableRow& row, ItemStyle style) const {
        ReportRow line{{itemOf(row.caption, ItemStyle::caption, 0, 1, context)}};
        int column = 0;
        for (const Labelled* value : {&row.first, &row.second}) {
            ++column;
            if (value->control == nullptr) continue;
            line.items.push_back(itemOf(*value, style, column, 1, context));
            line.items.back().unitAt = unitPlace(line.items.back().text);
        }
        table.rows.push_back(std::move(line));
    }

    /// The caption, words, units and rounding of the window; dark what is dark there.
    void addResult(ReportBand& table, const ResultLine& line) const {
        const std::string stem = line.stem;
        const std::string own = textOf(line.caption, context);
        ReportRow row{{{.control = stem + "Label",
                        .text = own.empty() ? shownText(context.window,
                                                        elementName(line.label, captionElement))
                                            : own,
                        .style = ItemStyle::caption}}};
        const std::array<const char*, 2> endings{"CoolingTextLabel", "HeatingTextLabel"};
        for (const Mode mode : modes) {
            const Control& label = context.window.control(elementName(line.label, mode));
            row.items.push_back({.control = stem + endings[mode],
                                 .text = label.caption(),
                                 .style = ItemStyle::figure,
                                 .strong = label.bold(),
                                 .first = static_cast<std::uint8_t>(mode + 1)});
        }
        table.rows.push_back(std::move(row));
    }

    std::vector<ReportRow> rowsOf(std::span<const Block> blocks, std::uint8_t column) const {
        std::vector<ReportRow> rows;
        for (const Block& block : blocks) {
            // Neighbouring columns keep their lines side by side, so a row parts the blocks.
            if (!rows.empty()) rows.emplace_back();
            rows.emplace_back();
            if (block.heading.control != nullptr)
                rows.back().items.push_back(
                    itemOf(block.heading, ItemStyle::subheading, column, 2, context));
            for (const Pair& pair : block.pairs) rows.push_back(rowOf(pair, column));
        }
        return rows;
    }

    ReportRow rowOf(const Pair& pair, std::uint8_t column) const {
        ReportItem value = itemOf(pair.value, ItemStyle::value, column + 1, 1, context);
        value.unitAt = unitPlace(value.text);
        return {{{.control = captionControlOf(value.control),
                  .text = textOf(pair.caption, context),
                  .style = ItemStyle::caption,
                  .first = column},
                 value}};
    }
};

}  // namespace

void addParts(Report& report, std::span<const Part> parts, const FillContext& context) {
    for (const Part& part : parts) std::visit(AddPart{report, context}, part);
}

}  // namespace varnholt
