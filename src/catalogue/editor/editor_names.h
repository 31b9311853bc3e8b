// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "catalogue/fitting/pump_fit.h"
#include "forms/control.h"

namespace varnholt {

// Names of the editor's controls that are made of parts.

/// The frames of the pages, in their order.
constexpr std::array<const char*, 6> pageFrames{
    "PumpDetailsFrame",           "CoolingSpecificationsFrame",
    "HeatingSpecificationsFrame", "TemperatureCorrectionsFrame",
    "FlowCorrectionsFrame",       "TestFrame"};

constexpr ByMode<std::size_t> ratingPage{1, 2};
constexpr std::array<std::size_t, 2> correctionPage{3, 4};  ///< by CorrectionKind

/// Rows of the correction tables that may be empty, each with a button that empties it.
constexpr std::size_t firstZeroRow = 3;
constexpr std::size_t zeroButtons = 8;

/// The first entries of the lists of manufacturers tell what to do.
constexpr int hintEntries = 2;

/// "Cooling" or "Heating", with which the names of a mode's fields begin.
inline std::string prefixOf(Mode mode) { return mode == cooling ? "Cooling" : "Heating"; }
/// "Capacity" or "Power".
inline std::string wordOf(FittedQuantity quantity) {
    return quantity == fittedCapacity ? "Capacity" : "Power";
}

/// "CoolingFR2Power", with which the names of a rating column's controls begin.
inline std::string ratingColumn(Mode mode, std::size_t flow, const std::string& word) {
    return prefixOf(mode) + "FR" + std::to_string(flow + 1) + word;
}

/// "CoolingFR2PowerText(1)"
inline std::string ratingField(Mode mode, std::size_t flow, FittedQuantity quantity,
                               std::size_t point) {
    return elementName(ratingColumn(mode, flow, wordOf(quantity)) + "Text", point);
}

/// "CoolingELTText(3)" or "CoolingPercentNominalText(3)"
inline std::string placeField(CorrectionKind kind, Mode mode, std::size_t row) {
    return elementName(prefixOf(mode) + (kind == byTemperature ? "ELTText" : "PercentNominalText"),
                       row);
}

/// "CoolingCorrectionsPowerFactorText(8)": the rows 0 to 4 are those by temperature, 5 to 9 those
/// by flow.
inline std::string factorField(CorrectionKind kind, Mode mode, FittedQuantity quantity,
                               std::size_t row) {
    return elementName(prefixOf(mode) + "Corrections" + wordOf(quantity) + "FactorText",
                       row + kind * mostFitPoints);
}

/// "CoolingCoefficientsCapacity", with which the names of a rating curve's controls begin.
inline std::string ratingStem(Mode mode, FittedQuantity quantity) {
    return prefixOf(mode) + "Coefficients" + wordOf(quantity);
}

/// "CoolingCorrectionsCapacityCoefficients", likewise of a correction curve's.
inline std::string correctionStem(Mode mode, FittedQuantity quantity) {
    return prefixOf(mode) + "Corrections" + wordOf(quantity) + "Coefficients";
}

/// The control array's element that belongs to a curve: of a rating's the one of the name itself.
inline std::string curveLabel(const std::string& stem, const char* what,
                              const std::string& index = {}) {
    return stem + what + "Label" + index;
}

/// Which zero button empties the row of a table.
inline std::size_t zeroButton(CorrectionKind kind, Mode mode, std::size_t row) {
    return kind * 4 + mode * 2 + (row - firstZeroRow);
}

/// The fields of a page's table, row by row as they stand; none for a page without a table.
std::vector<std::vector<std::string>> tableFields(std::size_t page);

}  // namespace varnholt
