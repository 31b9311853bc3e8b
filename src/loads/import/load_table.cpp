// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/load_table.h"

#include <algorithm>
#include <cmath>

#include "basis/units.h"

namespace varnholt {
namespace {

constexpr std::size_t hoursOfDayCount = 24;
constexpr std::size_t leapDayStart = (31 + 28) * hoursOfDayCount;  // first hour of 29 February
constexpr std::size_t rowsToShow = 48;
constexpr double wattsPerKilowatt = 1000.0;
constexpr double joulesPerKilowattHour = 3.6e6;

/// A number of the unit as MBtu: an energy, or a mean load over an hour. Kilowatts are divided by
/// the factor by which they are shown, so that they come back as they were.
double mbtuOf(double number, TableUnit unit) {
    switch (unit) {
        case TableUnit::kilowatts:
        case TableUnit::kilowattHours:
            return number / kilowattsPerMBtu;
        case TableUnit::watts:
            return number / wattsPerKilowatt / kilowattsPerMBtu;
        case TableUnit::joules:
            return number / joulesPerKilowattHour / kilowattsPerMBtu;
        case TableUnit::btuPerHour:
            return number / btuPerMBtu;
        case TableUnit::tons:
            return number * mbtuPerTon;
        case TableUnit::mbtuPerHour:
            break;
    }
    return number;
}

std::string_view cellOf(const TableText::Row& row, std::optional<std::size_t> column) {
    return column && *column < row.cells.size() ? row.cells[*column] : std::string_view();
}

/// A row as it is written, before its signs are looked at.
struct WrittenRow {
    const TableText::Row* row;
    ByMode<double> loads{};
    ByMode<double> peaks{};
};

class Reader {
 public:
    Reader(const std::vector<TableText::Row>& rows, const TableChoices& choices)
        : rows_(rows), choices_(choices) {
        columns_[cooling] = choices.coolingColumn;
        columns_[heating] = choices.heatingColumn;
        // The one signed column counts for the mode under which it is chosen.
        if (choices.oneSignedColumn && columns_[cooling]) columns_[heating].reset();
        if (choices.layout == TableLayout::monthly) findPeaks();
    }

    TableReading read() {
        if (!columns_[cooling] && !columns_[heating]) {
            reading_.noColumn = true;
            return std::move(reading_);
        }
        for (const TableText::Row& row : rows_) take(row);
        settleSigns();
        leaveOutLeapDay();
        finish();
        return std::move(reading_);
    }

 private:
    /// A row counts when each chosen column holds a number, or one of two nothing.
    void take(const TableText::Row& row) {
        WrittenRow written{&row};
        bool any = false, empty = false;
        for (const Mode m : modes) {
            if (!columns_[m]) continue;
            const std::string_view cell = cellOf(row, columns_[m]);
            const auto number = numberIn(cell, choices_.format.decimal);
            if (!number && !cell.empty()) return reading_.without.push_back(row.line);
            any = any || number;
            empty = empty || !number;
            written.loads[m] = number.value_or(0);
            written.peaks[m] =
                numberIn(cellOf(row, peaks_[m]), choices_.format.decimal).value_or(0);
        }
        if (!any) return reading_.without.push_back(row.line);
        if (empty) reading_.blanks.push_back(row.line);
        written_.push_back(written);
        reading_.lastLine = row.line;
    }

    void findPeaks() {
        const auto named = namedPeakColumns(rows_, choices_.format.decimal);
        for (const Mode m : modes)
            if (columns_[m]) peaks_[m] = peakColumn(*columns_[m], named[m], named[1 - m]);
    }

    /// The column that is named so, or else the one to the right of the mode's energies.
    std::optional<std::size_t> peakColumn(std::size_t energies, std::optional<std::size_t> named,
                                          std::optional<std::size_t> othersNamed) const {
        if (named && isFree(*named)) return named;
        const std::size_t beside = energies + 1;
        if (othersNamed == beside || !isFree(beside)) return std::nullopt;
        return beside;
    }

    /// It holds numbers, and is chosen for nothing else.
    bool isFree(std::size_t column) const {
        const auto has = [&](const TableText::Row& row) {
            return numberIn(cellOf(row, column), choices_.format.decimal).has_value();
        };
        return columns_[cooling] != column && columns_[heating] != column &&
               choices_.dateColumn != column && std::any_of(rows_.begin(), rows_.end(), has);
    }

    void settleSigns() {
        if (choices_.oneSignedColumn) return splitSigned();
        for (const Mode m : modes) {
            const bool allBelow =
                std::none_of(written_.begin(), written_.end(),
                             [m](const WrittenRow& row) { return row.loads[m] > 0; });
            for (WrittenRow& row : written_) {
                double& load = row.loads[m];
                if (allBelow) load = 0 - load;
                if (load >= 0) continue;
                reading_.negative.push_back(row.row->line);
                load = 0;
            }
            for (WrittenRow& row : written_) row.peaks[m] = std::abs(row.peaks[m]);
        }
    }

    void splitSigned() {
        const Mode own = columns_[cooling] ? cooling : heating;
        const Mode other = own == cooling ? heating : cooling;
        for (WrittenRow& row : written_) {
            const double load = row.loads[own], peak = row.peaks[own];
            row.loads[own] = std::max(load, 0.0);
            row.loads[other] = std::max(0 - load, 0.0);
            row.peaks[own] = std::max(peak, 0.0);
            row.peaks[other] = std::max(0 - peak, 0.0);
        }
    }

    void leaveOutLeapDay() {
        if (choices_.layout != TableLayout::hourly || written_.size() != hoursOfLeapYear) return;
        const auto first = written_.begin() + leapDayStart;
        reading_.leapDay = {first->row->line, (first + hoursOfDayCount - 1)->row->line};
        written_.erase(first, first + hoursOfDayCount);
    }

    void finish() {
        reading_.taken = written_.size() + (reading_.leapDay ? hoursOfDayCount : 0);
        convert();
        for (std::size_t i = 0; i < std::min(written_.size(), rowsToShow); ++i)
            reading_.first.push_back({written_[i].row->line,
                                      std::string(cellOf(*written_[i].row, choices_.dateColumn)),
                                      written_[i].loads});
        const bool hourly = choices_.layout == TableLayout::hourly;
        reading_.wrongCount = written_.size() != (hourly ? hoursOfYear : monthsOfYear);
        if (reading_.wrongCount) return;
        if (hourly)
            takeHours();
        else
            takeMonths();
    }

    void convert() {
        const TableUnit power =
            choices_.unit == TableUnit::joules ? TableUnit::watts : choices_.unit;
        for (WrittenRow& row : written_)
            for (const Mode m : modes) {
                row.loads[m] = mbtuOf(row.loads[m], choices_.unit);
                row.peaks[m] = mbtuOf(row.peaks[m], power) * btuPerMBtu;
            }
    }

    void takeHours() {
        std::vector<ByMode<double>> hours;
        hours.reserve(written_.size());
        for (const WrittenRow& row : written_) hours.push_back(row.loads);
        reading_.years = monthsOfHours(hours);
        reading_.peakDays = peakDaysOf(hours);
    }

    void takeMonths() {
        ByMode<MonthlyLoads> years;
        for (const Mode m : modes) {
            if (columns_[m] && !peaks_[m]) reading_.withoutPeaks = true;
            for (std::size_t month = 0; month < monthsOfYear; ++month) {
                years[m].totalLoads[month] = written_[month].loads[m];
                years[m].peakLoads[month] = written_[month].peaks[m];
            }
            years[m].recompute();
        }
        reading_.years = years;
    }

    const std::vector<TableText::Row>& rows_;
    const TableChoices& choices_;
    ByMode<std::optional<std::size_t>> columns_, peaks_;
    std::vector<WrittenRow> written_;
    TableReading reading_;
};

}  // namespace

TableReading readLoads(const std::vector<TableText::Row>& rows, const TableChoices& choices) {
    return Reader(rows, choices).read();
}

std::optional<TableLayout> layoutOf(std::size_t rows) {
    if (rows == hoursOfYear || rows == hoursOfLeapYear) return TableLayout::hourly;
    if (rows == monthsOfYear) return TableLayout::monthly;
    return std::nullopt;
}

ByMode<MonthlyLoads> monthsOfHours(const std::vector<ByMode<double>>& hours) {
    ByMode<MonthlyLoads> years;
    std::size_t hour = 0;
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        const auto end = hour + static_cast<std::size_t>(daysInMonth[month]) * hoursOfDayCount;
        for (; hour < std::min(end, hours.size()); ++hour)
            for (const Mode m : modes) {
                years[m].totalLoads[month] += hours[hour][m];
                years[m].peakLoads[month] =
                    std::max(years[m].peakLoads[month], hours[hour][m] * btuPerMBtu);
            }
    }
    for (MonthlyLoads& year : years) year.recompute();
    return years;
}

ByMode<DayLoads> peakDaysOf(const std::vector<ByMode<double>>& hours) {
    constexpr std::array<std::size_t, timeBlocks> firstHour{8, 12, 16, 20};  // of the day, from 0
    ByMode<DayLoads> days{};
    for (const Mode m : modes) {
        const auto peak = std::max_element(
            hours.begin(), hours.end(),
            [m](const ByMode<double>& a, const ByMode<double>& b) { return a[m] < b[m]; });
        if (peak == hours.end()) continue;
        const auto day = static_cast<std::size_t>(peak - hours.begin()) / hoursOfDayCount;
        for (std::size_t block = 0; block < timeBlocks; ++block) {
            double sum = 0;
            for (std::size_t i = 0; i < static_cast<std::size_t>(blockHours[block]); ++i) {
                const std::size_t hour = (firstHour[block] + i) % hoursOfDayCount;
                sum += hours[day * hoursOfDayCount + hour][m];
            }
            days[m][block] = sum / blockHours[block];
        }
    }
    return days;
}

}  // namespace varnholt
