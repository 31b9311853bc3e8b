// SPDX-License-Identifier: GPL-3.0-or-later
// What the names and numbers of a table tell about its columns.
#include <algorithm>
#include <cctype>

#include "loads/import/load_table.h"

namespace varnholt {
namespace {

using Rows = std::vector<TableText::Row>;

std::string inLowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

bool holds(const std::string& name, std::initializer_list<const char*> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](const char* word) { return name.find(word) != std::string::npos; });
}

std::size_t numbersIn(const TableText::Row& row, char decimal) {
    return static_cast<std::size_t>(
        std::count_if(row.cells.begin(), row.cells.end(),
                      [=](std::string_view cell) { return numberIn(cell, decimal).has_value(); }));
}

/// Position of the first line of numbers; the number of lines where there is none.
std::size_t firstOfNumbers(const Rows& rows, char decimal) {
    std::size_t most = 0;
    for (const TableText::Row& row : rows) most = std::max(most, numbersIn(row, decimal));
    std::size_t first = 0;
    while (first < rows.size() && (most == 0 || 2 * numbersIn(rows[first], decimal) < most))
        ++first;
    return first;
}

struct Column {
    std::string name;
    std::size_t numbers = 0;
    bool negative = false, positive = false;
    bool counts = true;  ///< 1, 2, 3, ... from its first number on
};

std::vector<Column> columnsOf(const Rows& rows, std::size_t first, char decimal) {
    std::vector<Column> columns;
    for (std::size_t i = first; i < rows.size(); ++i) {
        columns.resize(std::max(columns.size(), rows[i].cells.size()));
        for (std::size_t c = 0; c < rows[i].cells.size(); ++c) {
            const auto number = numberIn(rows[i].cells[c], decimal);
            if (!number) continue;
            Column& column = columns[c];
            ++column.numbers;
            column.negative = column.negative || *number < 0;
            column.positive = column.positive || *number > 0;
            column.counts = column.counts && *number == static_cast<double>(column.numbers);
        }
    }
    return columns;
}

bool isDate(const std::string& name) {
    return holds(name, {"date", "time", "hour", "month", "day"}) && !holds(name, {"cool", "heat"});
}
bool isCooling(const std::string& name) { return holds(name, {"cool", "gain"}); }
bool isHeating(const std::string& name) {
    return holds(name, {"heat", "loss"}) && !isCooling(name);
}
bool isPeak(const std::string& name) { return holds(name, {"peak", "max"}); }

TableUnit unitIn(const std::string& name, TableUnit usual) {
    if (holds(name, {"mbtu", "kbtu", "mbh"})) return TableUnit::mbtuPerHour;
    if (holds(name, {"btu"})) return TableUnit::btuPerHour;
    if (holds(name, {"kwh", "kw-h", "kw h"})) return TableUnit::kilowattHours;
    if (holds(name, {"kw", "kilowatt"})) return TableUnit::kilowatts;
    if (holds(name, {"[w]", "(w)", " w,", "watt"}) || name.ends_with(" w")) return TableUnit::watts;
    if (holds(name, {"[j]", "(j)", "joule"}) || name.ends_with(" j")) return TableUnit::joules;
    if (holds(name, {"ton"})) return TableUnit::tons;
    return usual;
}

class Guess {
 public:
    Guess(const Rows& rows, const TableFormat& format)
        : first_(firstOfNumbers(rows, format.decimal)),
          columns_(columnsOf(rows, first_, format.decimal)) {
        const std::vector<std::string> names = columnNames(rows, format.decimal);
        for (std::size_t c = 0; c < columns_.size() && c < names.size(); ++c)
            columns_[c].name = inLowerCase(names[c]);
        choices_.format = format;
        for (const Column& column : columns_) most_ = std::max(most_, column.numbers);
        choices_.layout = layoutOf(most_).value_or(most_ > 4 * monthsOfYear ? TableLayout::hourly
                                                                            : TableLayout::monthly);
    }

    TableChoices choices(TableUnit usual) {
        findDate();
        findLoads();
        choices_.unit = usual;
        for (const auto& column : {choices_.coolingColumn, choices_.heatingColumn})
            if (column) {
                choices_.unit = unitIn(columns_[*column].name, usual);
                break;
            }
        return choices_;
    }

 private:
    void findDate() {
        for (std::size_t c = 0; c < columns_.size() && !choices_.dateColumn; ++c)
            if (isDate(columns_[c].name)) choices_.dateColumn = c;
        if (choices_.dateColumn || columns_.size() < 2) return;
        const Column& first = columns_.front();
        if (first.numbers == 0 || (first.counts && first.numbers > 1)) choices_.dateColumn = 0;
    }

    /// Columns that may hold loads: full of numbers, and no counters.
    std::vector<std::size_t> candidates() const {
        std::vector<std::size_t> found;
        for (std::size_t c = 0; c < columns_.size(); ++c) {
            const Column& column = columns_[c];
            const bool full = column.numbers > 0 && 10 * column.numbers >= 9 * most_;
            if (full && choices_.dateColumn != c && !isDate(column.name)) found.push_back(c);
        }
        return found;
    }

    void findLoads() {
        const std::vector<std::size_t> found = candidates();
        for (const std::size_t c : found) {
            const std::string& name = columns_[c].name;
            if (isPeak(name) && found.size() > 2) continue;
            if (isCooling(name) && !choices_.coolingColumn) choices_.coolingColumn = c;
            if (isHeating(name) && !choices_.heatingColumn) choices_.heatingColumn = c;
        }
        if (!choices_.coolingColumn && !choices_.heatingColumn) takeInOrder(found);
        const bool one = !choices_.coolingColumn != !choices_.heatingColumn;
        const std::size_t only =
            choices_.coolingColumn.value_or(choices_.heatingColumn.value_or(0));
        choices_.oneSignedColumn = one && columns_[only].negative && columns_[only].positive;
    }

    /// Without names: cooling first. Four columns are energies with their peaks.
    void takeInOrder(const std::vector<std::size_t>& found) {
        if (found.empty()) return;
        choices_.coolingColumn = found.front();
        const bool peaks = choices_.layout == TableLayout::monthly && found.size() >= 4;
        if (found.size() > 1) choices_.heatingColumn = found[peaks ? 2 : 1];
    }

    std::size_t first_;
    std::vector<Column> columns_;
    std::size_t most_ = 0;
    TableChoices choices_;
};

}  // namespace

std::vector<std::string> columnNames(const Rows& rows, char decimal) {
    const std::size_t first = firstOfNumbers(rows, decimal);
    std::size_t count = 0;
    for (std::size_t i = first; i < rows.size(); ++i) count = std::max(count, rows[i].cells.size());
    std::vector<std::string> names(count);
    if (first == 0 || first >= rows.size()) return names;
    const TableText::Row& heads = rows[first - 1];
    for (std::size_t c = 0; c < std::min(count, heads.cells.size()); ++c)
        names[c] = std::string(heads.cells[c]);
    return names;
}

ByMode<std::optional<std::size_t>> namedPeakColumns(const Rows& rows, char decimal) {
    ByMode<std::optional<std::size_t>> found;
    const std::vector<std::string> names = columnNames(rows, decimal);
    for (std::size_t c = 0; c < names.size(); ++c) {
        const std::string name = inLowerCase(names[c]);
        // Beside a peak may stand when it was.
        if (!isPeak(name) || holds(name, {"date", "time", "day"})) continue;
        if (isCooling(name) && !found[cooling]) found[cooling] = c;
        if (isHeating(name) && !found[heating]) found[heating] = c;
    }
    return found;
}

TableChoices guessedChoices(const Rows& rows, const TableFormat& format, TableUnit usual) {
    return Guess(rows, format).choices(usual);
}

}  // namespace varnholt
