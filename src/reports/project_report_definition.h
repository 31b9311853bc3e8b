// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <variant>

#include "reports/report_definition.h"

namespace varnholt {

// What the project reports are built from, as data: headings, tables of two columns of values,
// blocks of captions with values side by side, and long texts.

/// A control by name and what it prints; without a name there is none.
struct Labelled {
    const char* control = nullptr;
    Source source = nothing();
};

/// The heading of a part.
struct Heading {
    Labelled label;
    ItemStyle style = ItemStyle::heading;
    Printed printed = Printed::always;
};

/// One row of a table: a caption and a value in each of two columns, or a caption of the rows
/// below.
struct TableRow {
    Labelled caption, first{}, second{};
};

struct TableColumn {
    Labelled label;
    Tint tint = Tint::none;
};

/// A table with two columns of values.
struct Table {
    std::array<TableColumn, 2> columns;
    std::span<const TableRow> rows;
    ItemStyle style = ItemStyle::value;
};

/// A row of results: the stem of its controls' names, and the window's array of labels that it
/// copies. A row without a caption of its own takes the window's.
struct ResultLine {
    const char* stem;
    const char* label;
    Source caption = nothing();
};

/// The results, as the window shows them, and what is found from them.
struct Results {
    std::span<const ResultLine> lines;
    std::span<const TableRow> more{};
};

/// A caption with its value. The caption's control is called as the value's, without "Text".
struct Pair {
    Labelled value;
    Source caption;
};

/// A block of such pairs under a heading.
struct Block {
    Labelled heading;
    std::span<const Pair> pairs;
};

/// Blocks below each other in two columns.
struct Blocks {
    std::span<const Block> left, right;
    Printed printed = Printed::always;
};

/// A text of any length.
struct Note {
    Labelled label;
};

/// The drawings that the report has; those of a short form are none.
struct Drawings {
    Labelled heading;
};

using Part = std::variant<Heading, Results, Table, Blocks, Note, Drawings>;

/// One of the reports of a design window.
struct ProjectReportDefinition {
    const char* formName;
    int option;  ///< of `PrintOption` in `frmPROptions`
    const char* object;
    int titleText;
    std::span<const Part> parts;  ///< before those that end every project report
};

constexpr int detailedForm = 0;
constexpr int shortForm = 1;

/// The parts of a definition as the band of the report that holds them all.
void addParts(Report& report, std::span<const Part> parts, const FillContext& context);

}  // namespace varnholt
