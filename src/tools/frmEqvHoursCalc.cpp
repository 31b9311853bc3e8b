// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmEqvHoursCalc.h"

#include <algorithm>
#include <vector>

#include "basis/pasted_lines.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/calculators.h"
#include "forms/text_numbers/loads.h"
#include "tools/frmTransferOptions.h"

namespace varnholt {
namespace {

constexpr const char* frame = "fraEqvHours";
constexpr const char* hoursField = "txtEqvHours(13)";
constexpr std::size_t lastInput = 12;   // index of December's field
constexpr std::size_t mostPasted = 12;  // fields that one paste fills
constexpr double unlimited = 1e308;

constexpr std::array<int, monthsOfYear> monthTexts{
    Text::january, Text::february, Text::march,     Text::april,   Text::may,      Text::june,
    Text::july,    Text::august,   Text::september, Text::october, Text::november, Text::december};

std::string fieldName(std::size_t index) { return elementName("txtEqvHours", index); }

}  // namespace

frmEqvHoursCalc::frmEqvHoursCalc(Varnmain& main)
    : Calculator("frmEqvHoursCalc", &Varnmain::frmEqvHoursCalcExists, Text::annualHoursTitle,
                 main) {
    add(frame, ControlKind::frame, Text::annualHoursFrame);
    addFields();
    add("cmdCalculate", ControlKind::button, Text::calculate);
    add("cmdClear", ControlKind::button, Text::clearPump);
    addClose();
    onClick("cmdCalculate", [this] { cmdCalculate_Click(); });
    onClick("cmdClear", [this] { cmdClear_Click(); });
    Values& values = publicValues();
    values.add("fullLoad", &fullLoad_);
    values.add("monthlyLoads", 1,
               [this](const Values::Indices& i) { return at(monthlyLoads_, i[0] - 1); });
    values.add("eqvHours", &eqvHours_);
    values.addArray("daysInMonth", &daysInMonth);
}

void frmEqvHoursCalc::addFields() {
    addField({.control = fieldName(0),
              .stored = &fullLoad_,
              .quantity = &quantities::load,
              .lowest = -unlimited,
              .beside = {.frame = frame,
                         .label = "txtEqvHoursLabel(0)",
                         .caption = {Text::peakHourlyLoad, Text::peakHourlyLoad},
                         .unitLabel = "txtEqvHoursUnitLabel(0)",
                         .unit = {Text::loadUnitsEnglish, Text::importPeakUnitsMetric},
                         .help = "calculators#hours"}});
    add("lblMonthlyLoads", ControlKind::label, Text::monthlyTotalLoads).in(frame);
    for (std::size_t month = 0; month < monthsOfYear; ++month) addMonth(month);
    addHoursField();
    for (std::size_t index = 0; index <= lastInput; ++index)
        onKey(fieldName(index), [this, index](const std::string& key) { fieldKey(index, key); });
}

void frmEqvHoursCalc::addMonth(std::size_t month) {
    const std::string index = "(" + std::to_string(month + 1) + ")";
    addField({.control = fieldName(month + 1),
              .stored = &monthlyLoads_[month],
              .quantity = &quantities::load,
              .lowest = -unlimited,
              .beside = {.frame = frame,
                         .label = "txtEqvHoursLabel" + index,
                         .caption = {monthTexts[month], monthTexts[month]},
                         .unitLabel = "txtEqvHoursUnitLabel" + index,
                         .unit = {Text::importTotalUnitsEnglish, Text::importTotalUnitsMetric},
                         .help = "calculators#hours"}});
}

void frmEqvHoursCalc::addHoursField() {
    addField({.control = hoursField,
              .stored = &eqvHours_,
              .format = "###0",
              .beside = {.frame = frame,
                         .label = "txtEqvHoursLabel(13)",
                         .caption = {Text::fullLoadHoursResult, Text::fullLoadHoursResult},
                         .unitLabel = "txtEqvHoursUnitLabel(13)",
                         .unit = {Text::hoursUnits, Text::hoursUnits},
                         .help = "calculators#hours"},
              .left = [this] { showHours(); }})
        .setLocked(true);
}

/// Enter goes down the fields, and from December to the command.
void frmEqvHoursCalc::fieldKey(std::size_t index, const std::string& key) {
    if (key == "Ctrl+V") return paste(index);
    if (key != "Enter") return;
    leave(fieldName(index));
    control(index < lastInput ? fieldName(index + 1) : "cmdCalculate").takeFocus();
}

/// One value a line, typed into the fields from the first one down; what is beyond December is
/// dropped.
void frmEqvHoursCalc::paste(std::size_t first) {
    const std::vector<std::string> lines = pastedLines(platform().clipboard()).all();
    const std::size_t count = std::min({lines.size(), mostPasted, lastInput + 1 - first});
    for (std::size_t i = 0; i < count; ++i) {
        type(fieldName(first + i), lines[i]);
        if (count > 1) leave(fieldName(first + i));
    }
}

void frmEqvHoursCalc::startFrom(double hours) { setHours(hours); }

void frmEqvHoursCalc::calculate() { setHours(fullLoadHoursOf(monthlyLoads_, fullLoad_)); }

void frmEqvHoursCalc::setHours(double hours) {
    eqvHours_ = hours;
    cleared_ = false;
    showHours();
}

/// Hours of 0 are a result too; a cleared window has none, in whatever units.
void frmEqvHoursCalc::showHours() {
    fields().show(hoursField);
    if (cleared_) control(hoursField).setText({});
}

void frmEqvHoursCalc::showValues() {
    Calculator::showValues();
    showHours();
}

double frmEqvHoursCalc::factor() const {
    if (!(fullLoad_ > 0)) return 0;
    const std::size_t peak = greatestMonth(monthlyLoads_);
    return loadFactorOf(monthlyLoads_[peak], fullLoad_, peak);
}

Mode frmEqvHoursCalc::modeOfTransfer() const {
    return main().TransferOption == 1 ? heating : cooling;
}

void frmEqvHoursCalc::cmdCalculate_Click() {
    calculate();
    if (taker_.window == nullptr) {
        main().transferPLFm[modeOfTransfer()] = factor();
        return;
    }
    frmTransferOptions options(main());
    main().runModal(options);
    if (!options.isSelected() || taker_.window == nullptr) return;
    nameStep(caption());
    toInteger(eqvHours_);  // what is too large goes nowhere
    main().transferPLFm[modeOfTransfer()] = factor();
    taker_.take({fullLoad_, eqvHours_, factor()}, modeOfTransfer());
}

void frmEqvHoursCalc::TransferValuesFromImport1ToCalc(const Months& energy, double peak,
                                                      double hours) {
    monthlyLoads_ = energy;
    fullLoad_ = peak;
    eqvHours_ = hours;
    calculate();
    main().transferPLFm[modeOfTransfer()] = factor();
    const RaisedFlag writing(settingUnits);
    showValues();
}

void frmEqvHoursCalc::cmdClear_Click() {
    fullLoad_ = 0;
    monthlyLoads_ = {};
    eqvHours_ = 0;
    cleared_ = true;
    fields().forgetRefused();
    fields().showAll();
    showHours();
}

void frmEqvHoursCalc::windowsChanged() {
    if (!main().isOpen(taker_.window)) taker_ = {};
}

}  // namespace varnholt
