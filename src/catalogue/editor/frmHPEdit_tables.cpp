// SPDX-License-Identifier: GPL-3.0-or-later
// Tables that take a spreadsheet's cells and give theirs.
#include <algorithm>

#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "forms/text_numbers/heat_pump_editor.h"

namespace varnholt {
namespace {

using Cells = std::vector<std::vector<std::string>>;

/// Lines end in CR, LF or both; a line end behind the last row makes no row.
Cells cellsOf(const std::string& clipboard) {
    Cells rows(1, {std::string()});
    for (std::size_t i = 0; i < clipboard.size(); ++i) {
        const char c = clipboard[i];
        if (c == '\t') {
            rows.back().emplace_back();
        } else if (c == '\r' || c == '\n') {
            if (c == '\r' && i + 1 < clipboard.size() && clipboard[i + 1] == '\n') ++i;
            rows.emplace_back(1, std::string());
        } else {
            rows.back().back() += c;
        }
    }
    if (rows.size() > 1 && rows.back() == std::vector<std::string>{""}) rows.pop_back();
    return rows;
}

struct Cell {
    std::size_t row, column;
};

/// Where in the table the field stands.
std::optional<Cell> cellOf(const Cells& table, const std::string& field) {
    for (std::size_t row = 0; row < table.size(); ++row) {
        const auto found = std::find(table[row].begin(), table[row].end(), field);
        if (found != table[row].end())
            return Cell{row, static_cast<std::size_t>(found - table[row].begin())};
    }
    return std::nullopt;
}

}  // namespace

/// Keys in a table: what is pasted may fill more than the field.
void frmHPEdit::hookFields() {
    for (std::size_t page = 0; page < pageFrames.size(); ++page) {
        const auto rows = tableFields(page);
        for (const auto& row : rows)
            for (const std::string& field : row)
                onKey(field, [this, field](const std::string& key) { keyInField(field, key); });
        if (!rows.empty())
            onClick(elementName("CopyTableCommand", page),
                    [this, page] { CopyTableCommand_Click(page); });
    }
}

void frmHPEdit::keyInField(const std::string& field, const std::string& key) {
    if (key == "Enter") return leave(field);
    if (key != "Ctrl+V") return;
    const Cells cells = cellsOf(platform().clipboard());
    if (cells.size() == 1 && cells[0].size() == 1) return type(field, cells[0][0]);
    nameStep(text(Text::pasteTable));
    pasteInto(field, cells);
}

/// Fills the table from the field on as if each cell had been typed. What would lie beyond the
/// table is left out, and so are empty cells.
void frmHPEdit::pasteInto(const std::string& field, const Cells& cells) {
    for (std::size_t page = 0; page < pageFrames.size(); ++page) {
        const Cells table = tableFields(page);
        const auto start = cellOf(table, field);
        if (!start) continue;
        for (std::size_t r = 0; r < cells.size() && start->row + r < table.size(); ++r) {
            const auto& fields = table[start->row + r];
            for (std::size_t c = 0; c < cells[r].size() && start->column + c < fields.size(); ++c) {
                if (cells[r][c].empty()) continue;
                const std::string& target = fields[start->column + c];
                type(target, cells[r][c]);
                leave(target);
            }
        }
    }
}

void frmHPEdit::CopyTableCommand_Click(std::size_t page) {
    std::string copied;
    for (const auto& row : tableFields(page)) {
        for (std::size_t c = 0; c < row.size(); ++c)
            copied += (c > 0 ? "\t" : "") + control(row[c]).text();
        copied += "\r\n";
    }
    platform().setClipboard(copied);
}

}  // namespace varnholt
