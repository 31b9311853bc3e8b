// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/frmImportTable.h"

#include <algorithm>
#include <array>
#include <utility>

#include "basis/number_text.h"
#include "basis/text_encoding.h"
#include "forms/quantity.h"
#include "forms/text_numbers/import.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

constexpr std::array<char, 3> separators{',', ';', '\t'};
constexpr std::array<char, 2> decimals{'.', ','};
constexpr std::size_t linesNamed = 5;
constexpr std::size_t longestDate = 20, longestName = 100;  // bytes

template <std::size_t N>
int placeOf(const std::array<char, N>& signs, char sign) {
    return static_cast<int>(std::find(signs.begin(), signs.end(), sign) - signs.begin());
}

/// The text's beginning, no longer than so many bytes, and no character cut in two.
std::string cutTo(const std::string& text, std::size_t most) {
    std::string cut = text.substr(0, most);
    while (!cut.empty() && cut.size() < text.size() && !isValidUtf8(cut)) cut.pop_back();
    return cut;
}

}  // namespace

frmImportTable::frmImportTable(Varnmain& main, TableSource source, UnitSystem units)
    : Form("frmImportTable", main.platform(), main.texts()), main_(main), units_(units) {
    setCaption(text(Text::importTableTitle));
    addControls();
    addCommands();
    take(std::move(source));
}

void frmImportTable::addControls() {
    add("TISourceLabel", ControlKind::label);
    addCombo("TILayout", Text::tableLayout, {Text::tableHourly, Text::tableMonthly});
    addCombo("TISeparator", Text::tableSeparator,
             {Text::tableComma, Text::tableSemicolon, Text::tableTab});
    addCombo("TIDecimal", Text::tableDecimal, {Text::tableDecimalPoint, Text::tableDecimalComma});
    addCombo("TIUnit", Text::tableUnit,
             {Text::tableKilowatts, Text::tableWatts, Text::tableKilowattHours, Text::tableJoules,
              Text::tableBtuPerHour, Text::tableMBtuPerHour, Text::tableTons});
    addCombo("TIDateColumn", Text::tableDateColumn);
    addCombo("TICoolingColumn", Text::tableCoolingColumn);
    addCombo("TIHeatingColumn", Text::tableHeatingColumn);
    add("TISignCheck", ControlKind::check, Text::tableSigned).helpedBy("importing#tables");
    add("TIRowsLabel", ControlKind::label);
    add("TIRowsList", ControlKind::list).captionedBy("TIRowsLabel");
    add("TIMessageLabel", ControlKind::label);
}

void frmImportTable::addCombo(const std::string& stem, int caption,
                              const std::vector<int>& entries) {
    add(stem + "Label", ControlKind::label, caption);
    std::vector<std::string> items;
    for (const int entry : entries) items.push_back(text(entry));
    add(stem + "Combo", ControlKind::combo)
        .setItems(std::move(items))
        .captionedBy(stem + "Label")
        .helpedBy("importing#tables");
}

void frmImportTable::addCommands() {
    add("TIImportCommand", ControlKind::button, Text::tableImport);
    add("TICancelCommand", ControlKind::button, Text::cancelSelection);
    add("TIOpenCommand", ControlKind::button, Text::tableOpen);
    add("TIPasteCommand", ControlKind::button, Text::tablePaste);
    onClick("TILayoutCombo", [this] { layoutChosen(); });
    onClick("TISeparatorCombo", [this] { separatorChosen(); });
    onClick("TIDecimalCombo", [this] { decimalChosen(); });
    for (const char* name : {"TIUnitCombo", "TIDateColumnCombo", "TICoolingColumnCombo",
                             "TIHeatingColumnCombo", "TISignCheck"})
        onClick(name, [this] { columnChosen(); });
    onClick("TIImportCommand", [this] { import(); });
    onClick("TICancelCommand", [this] { endModal(); });
    onClick("TIOpenCommand", [this] { openFile(); });
    onClick("TIPasteCommand", [this] { paste(); });
}

void frmImportTable::take(TableSource source) {
    source_ = std::move(source);
    control("TISourceLabel")
        .setCaption(source_.name.empty() ? text(Text::tableFromClipboard) : source_.name);
    // What the rows look at must stand before they do.
    rows_.clear();
    table_.emplace(source_.bytes);
    choices_.format = table_->guessedFormat();
    cut();
}

void frmImportTable::cut() {
    const bool metric = units_ == UnitSystem::metric;
    rows_ = table_->rows(choices_.format);
    choices_ = guessedChoices(rows_, choices_.format,
                              metric ? TableUnit::kilowatts : TableUnit::mbtuPerHour);
    showChoices();
    readRows();
}

void frmImportTable::readRows() {
    reading_ = readLoads(rows_, choices_);
    showRows();
    control("TIMessageLabel").setCaption(remarks());
    control("TIImportCommand").setEnabled(reading_.years.has_value());
}

void frmImportTable::showChoices() {
    control("TILayoutCombo").setIndex(choices_.layout == TableLayout::hourly ? 0 : 1);
    control("TISeparatorCombo").setIndex(placeOf(separators, choices_.format.separator));
    control("TIDecimalCombo").setIndex(placeOf(decimals, choices_.format.decimal));
    control("TIUnitCombo").setIndex(static_cast<int>(choices_.unit));
    control("TISignCheck").setChecked(choices_.oneSignedColumn);
    showColumns("TIDateColumn", choices_.dateColumn);
    showColumns("TICoolingColumn", choices_.coolingColumn);
    showColumns("TIHeatingColumn", choices_.heatingColumn);
}

void frmImportTable::showColumns(const std::string& stem, std::optional<std::size_t> chosen) {
    std::vector<std::string> names = columnNames(rows_, choices_.format.decimal);
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = names[i].empty() ? filledIn(text(Text::tableColumn), {std::to_string(i + 1)})
                                    : cutTo(names[i], longestName);
    names.insert(names.begin(), text(Text::tableNoColumn));
    control(stem + "Combo")
        .setItems(std::move(names))
        .setIndex(chosen ? static_cast<int>(*chosen) + 1 : 0);
}

void frmImportTable::showRows() {
    const bool hourly = choices_.layout == TableLayout::hourly;
    const bool metric = units_ == UnitSystem::metric;
    const int heads = hourly
                          ? (metric ? Text::tableHoursHeadMetric : Text::tableHoursHeadEnglish)
                          : (metric ? Text::tableMonthsHeadMetric : Text::tableMonthsHeadEnglish);
    control("TIRowsLabel").setCaption(text(heads));
    std::vector<std::string> lines;
    for (const LoadTableRow& row : reading_.first) lines.push_back(rowText(row));
    control("TIRowsList").setItems(std::move(lines));
}

std::string frmImportTable::rowText(const LoadTableRow& row) const {
    std::string line = std::to_string(row.line) + "\t" + cutTo(row.date, longestDate);
    for (const double load : row.loads)
        line += "\t" + formatNumber(quantities::load.shown(load, units_), "###0.0");
    return line;
}

std::string frmImportTable::linesText(int words, const std::vector<std::size_t>& lines) const {
    if (lines.empty()) return {};
    std::string named;
    for (std::size_t i = 0; i < std::min(lines.size(), linesNamed); ++i)
        named += (i == 0 ? "" : ", ") + std::to_string(lines[i]);
    if (lines.size() > linesNamed) named += ", ...";
    return " " + filledIn(text(words), {std::to_string(lines.size()), named});
}

std::string frmImportTable::remarks() const {
    if (reading_.noColumn) return text(Text::tableChooseColumn);
    const bool hourly = choices_.layout == TableLayout::hourly;
    const int found = reading_.wrongCount
                          ? (hourly ? Text::tableWrongHours : Text::tableWrongMonths)
                          : (hourly ? Text::tableHoursFound : Text::tableMonthsFound);
    std::string said =
        filledIn(text(found), {std::to_string(reading_.taken), std::to_string(reading_.lastLine)});
    if (reading_.leapDay)
        said +=
            " " + filledIn(text(Text::tableLeapDay), {std::to_string(reading_.leapDay->first),
                                                      std::to_string(reading_.leapDay->second)});
    said += linesText(Text::tableLinesWithout, reading_.without);
    said += linesText(Text::tableLinesBlank, reading_.blanks);
    said += linesText(Text::tableLinesNegative, reading_.negative);
    if (reading_.withoutPeaks) said += " " + text(Text::tableWithoutPeaks);
    return said;
}

std::optional<std::size_t> frmImportTable::chosenColumn(const std::string& stem) const {
    const int index = control(stem + "Combo").index();
    if (index < 1) return std::nullopt;
    return static_cast<std::size_t>(index - 1);
}

void frmImportTable::layoutChosen() {
    choices_.layout =
        control("TILayoutCombo").index() == 1 ? TableLayout::monthly : TableLayout::hourly;
    readRows();
}

/// A comma cannot part cells and be the decimal mark too.
void frmImportTable::separatorChosen() {
    choices_.format.separator =
        separators.at(static_cast<std::size_t>(control("TISeparatorCombo").index()));
    if (choices_.format.separator == ',') choices_.format.decimal = '.';
    cut();
}

void frmImportTable::decimalChosen() {
    choices_.format.decimal =
        decimals.at(static_cast<std::size_t>(control("TIDecimalCombo").index()));
    if (choices_.format.decimal == ',' && choices_.format.separator == ',')
        choices_.format.separator = ';';
    cut();
}

void frmImportTable::columnChosen() {
    choices_.unit = static_cast<TableUnit>(control("TIUnitCombo").index());
    choices_.oneSignedColumn = control("TISignCheck").checked();
    choices_.dateColumn = chosenColumn("TIDateColumn");
    choices_.coolingColumn = chosenColumn("TICoolingColumn");
    choices_.heatingColumn = chosenColumn("TIHeatingColumn");
    readRows();
}

void frmImportTable::openFile() {
    if (auto source = chooseTable(main_)) take(std::move(*source));
}

void frmImportTable::paste() { take({{}, platform().clipboard()}); }

void frmImportTable::import() {
    imported_ = true;
    endModal();
}

}  // namespace varnholt
