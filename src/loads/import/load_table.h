// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "basis/mode.h"
#include "basis/table_text.h"
#include "loads/import/monthly_loads.h"

namespace varnholt {

constexpr std::size_t hoursOfYear = 8760;
constexpr std::size_t hoursOfLeapYear = 8784;

enum class TableLayout { hourly, monthly };

/// What the numbers of a table are. In rows of hours all are mean loads of the hour, an energy
/// being that of the hour. In rows of months the energy has the unit's energy (kW and kWh alike
/// kWh) and the peak beside it the unit's power (J go with W).
enum class TableUnit { kilowatts, watts, kilowattHours, joules, btuPerHour, mbtuPerHour, tons };

/// How a table is read. A column is counted from 0.
struct TableChoices {
    TableFormat format;
    TableLayout layout = TableLayout::hourly;
    std::optional<std::size_t> dateColumn;  ///< holds no loads
    std::optional<std::size_t> coolingColumn, heatingColumn;
    /// One column holds both modes: above 0 it has the mode whose column it is, below 0 the other.
    bool oneSignedColumn = false;
    TableUnit unit = TableUnit::kilowatts;

    friend bool operator==(const TableChoices&, const TableChoices&) = default;
};

/// The columns' names: of the line above the first line of numbers, or empty.
std::vector<std::string> columnNames(const std::vector<TableText::Row>& rows, char decimal);

/// The columns whose names say that they hold a mode's peaks: "Peak cooling [kW]".
ByMode<std::optional<std::size_t>> namedPeakColumns(const std::vector<TableText::Row>& rows,
                                                    char decimal);

/// Layout, columns, sign and unit as names and numbers tell them.
/// @param usual unit where no name tells it
TableChoices guessedChoices(const std::vector<TableText::Row>& rows, const TableFormat& format,
                            TableUnit usual);

/// One row that was taken: loads of an hour, MBtu/hr, or energies of a month, MBtu.
struct LoadTableRow {
    std::size_t line = 0;
    std::string date;
    ByMode<double> loads{};
};

/// What a table gives, and what was passed over on the way.
struct TableReading {
    std::size_t taken = 0;              ///< rows with numbers
    std::vector<LoadTableRow> first;    ///< some of them, to be shown
    std::vector<std::size_t> without;   ///< lines with text, or nothing, in place of a load
    std::vector<std::size_t> blanks;    ///< lines of which one load of two is empty and counts as 0
    std::vector<std::size_t> negative;  ///< lines whose negative load counts as 0
    /// Lines of the 29 February that is left out, the first and the last.
    std::optional<std::pair<std::size_t, std::size_t>> leapDay;
    bool noColumn = false;      ///< no column of loads is chosen
    bool wrongCount = false;    ///< not as many rows as the layout has
    std::size_t lastLine = 0;   ///< of the rows taken
    bool withoutPeaks = false;  ///< months, and no column of peaks beside a column of energies

    /// The twelve months of both modes; none where the table cannot be imported.
    std::optional<ByMode<MonthlyLoads>> years;
    /// Each mode's peak day, where the rows are hours.
    std::optional<ByMode<DayLoads>> peakDays;
};

/// Reads the loads. In a column that holds no number above 0 the sign is dropped, since heating is
/// often written as negative; of other columns negative loads count as 0.
TableReading readLoads(const std::vector<TableText::Row>& rows, const TableChoices& choices);

/// The layout that has as many rows; none for any other number.
std::optional<TableLayout> layoutOf(std::size_t rows);

/// Twelve months from the hours of a year, January's first hour first: sums, and greatest loads.
/// @param hours MBtu/hr
ByMode<MonthlyLoads> monthsOfHours(const std::vector<ByMode<double>>& hours);

/// Means of the four blocks on each mode's day with the greatest hour, of equal ones the first. A
/// row is the hour that ends with its number: "8-12" is rows 9 to 12 of the day.
ByMode<DayLoads> peakDaysOf(const std::vector<ByMode<double>>& hours);

}  // namespace varnholt
