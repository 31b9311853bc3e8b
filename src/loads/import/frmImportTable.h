// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "basis/units.h"
#include "forms/form.h"
#include "loads/import/load_table.h"
#include "loads/import/table_source.h"

namespace varnholt {

class Varnmain;

/// The preview of a table of loads: what has been found in it, and how it is to be read. Modal.
class frmImportTable : public Form {
 public:
    frmImportTable(Varnmain& main, TableSource source, UnitSystem units);

    /// `TIImportCommand` has closed it.
    bool isImported() const { return imported_; }
    const TableReading& reading() const { return reading_; }
    /// Of the file, empty for the clipboard.
    const std::string& sourceName() const { return source_.name; }

 private:
    void addControls();
    void addCombo(const std::string& stem, int caption, const std::vector<int>& entries = {});
    void addCommands();

    void take(TableSource source);
    void cut();
    void readRows();
    void showChoices();
    void showColumns(const std::string& stem, std::optional<std::size_t> chosen);
    void showRows();
    std::string rowText(const LoadTableRow& row) const;
    std::string remarks() const;
    std::string linesText(int words, const std::vector<std::size_t>& lines) const;
    std::optional<std::size_t> chosenColumn(const std::string& stem) const;

    void layoutChosen();
    void separatorChosen();
    void decimalChosen();
    void columnChosen();
    void openFile();
    void paste();
    void import();

    Varnmain& main_;
    UnitSystem units_;
    TableSource source_;
    std::optional<TableText> table_;
    std::vector<TableText::Row> rows_;
    TableChoices choices_;
    TableReading reading_;
    bool imported_ = false;
};

}  // namespace varnholt
