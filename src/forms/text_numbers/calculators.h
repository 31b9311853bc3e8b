// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/5000_calculators.txt.
namespace varnholt::Text {

// Units of the importer and of the hours calculator.
constexpr int importPeakUnitsMetric = 5104;
constexpr int importTotalUnitsMetric = 5105;
constexpr int importTotalUnitsEnglish = 5109;
constexpr int hoursUnits = 5127;

// The hours calculator.
constexpr int annualHoursFrame = 5103;
constexpr int annualHoursTitle = 5110;
constexpr int peakHourlyLoad = 5111;
constexpr int monthlyTotalLoads = 5112;
constexpr int january = 5113;
constexpr int february = 5114;
constexpr int march = 5115;
constexpr int april = 5116;
constexpr int may = 5117;
constexpr int june = 5118;
constexpr int july = 5119;
constexpr int august = 5120;
constexpr int september = 5121;
constexpr int october = 5122;
constexpr int november = 5123;
constexpr int december = 5124;
constexpr int fullLoadHoursResult = 5125;
constexpr int closeWindow = 5126;

// The diffusivity calculator.
constexpr int diffusivityCalculatorTitle = 5134;
constexpr int moisture = 5135;
constexpr int dryDensity = 5136;
constexpr int drySpecificHeat = 5137;
constexpr int soilThermalConductivity = 5138;
constexpr int soilThermalDiffusivity = 5139;

// The pump power calculator; a report's flow has the same caption.
constexpr int pumpPowerFrame = 5156;
constexpr int requiredPumpPower = 5157;
constexpr int pumpHead = 5158;
constexpr int pumpEfficiency = 5159;
constexpr int headMetric = 5160;

}  // namespace varnholt::Text
