// SPDX-License-Identifier: GPL-3.0-or-later
// Months to and from the clipboard.
#include <array>
#include <string>

#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmSecondOpinion.h"
#include "design/month_lines.h"
#include "forms/text_numbers/second_opinion.h"

namespace varnholt {
namespace {

constexpr const char* lineEnd = "\r\n";

std::string joined(const std::array<std::string, 4>& cells) {
    return cells[0] + '\t' + cells[1] + '\t' + cells[2] + '\t' + cells[3] + lineEnd;
}

std::string numberCell(double value) { return formatNumber(value, "###0.000"); }

}  // namespace

void frmSecondOpinion::SEPasteCommand_Click() {
    const MonthLines months = readMonthLines(platform().clipboard());
    if (months.isWhole()) {
        inputs().monthEnergy = months.energy;
        inputs().monthTop = months.top;
        inputs().shape = typedYear;
        fields().forgetRefused();
        showInputs();
    } else if (months.badLine) {
        pasteFault_ = filledIn(text(Text::opinionNoNumber), {std::to_string(*months.badLine)});
    } else {
        pasteFault_ = filledIn(text(Text::opinionTooFewLines), {std::to_string(months.lines)});
    }
    showMessage();
}

/// The months as they can be pasted again: as they were typed, else as energies and peaks in the
/// units shown. Below them the table of years.
void frmSecondOpinion::SECopyCommand_Click() {
    design().secondOpinion();
    showFigures();
    const bool typed = inputs().shape == typedYear;
    const YearPicture year = yearPicture();
    std::string copied;
    for (std::size_t month = 0; month < opinionMonthsOfYear; ++month) {
        const auto energy = [&](Mode mode) {
            return typed ? inputs().monthEnergy[month][mode] : year.energies[mode][month];
        };
        const auto peak = [&](Mode mode) {
            return typed ? inputs().monthTop[month][mode] : year.peaks[mode][month];
        };
        const auto cell = [&](double value) {
            return typed ? shortestText(value) : numberCell(value);
        };
        copied += joined({cell(energy(cooling)), cell(energy(heating)), cell(peak(cooling)),
                          cell(peak(heating))});
    }
    copied += lineEnd;
    const auto row = [this](const std::array<const char*, 4>& arrays, std::size_t line) {
        std::array<std::string, 4> cells;
        for (std::size_t i = 0; i < cells.size(); ++i)
            cells[i] = control(elementName(arrays[i], line)).caption();
        return joined(cells);
    };
    std::array<std::string, 4> heads;
    for (std::size_t i = 0; i < heads.size(); ++i)
        heads[i] = control(elementName("SEHeadLabel", i)).caption();
    copied += joined(heads);
    for (std::size_t line = 0; line < opinionYears.size(); ++line)
        copied += row({"SEYearLabel", "SEPenaltyLabel", "SEHighLabel", "SELowLabel"}, line);
    platform().setClipboard(copied);
}

}  // namespace varnholt
