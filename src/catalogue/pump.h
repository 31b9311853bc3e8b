// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "basis/date.h"
#include "basis/mode.h"
#include "catalogue/polynomial.h"

namespace varnholt {

// Everything here is in English units: degF, MBtu/hr, kW; source flow in gpm, load flow in cfm
// (water-to-air) or gpm (water-to-water).

/// One measured point of a model.
struct HeatMode {
    double watts = 0;     ///< kW
    double capacity = 0;  ///< MBtu/hr

    friend bool operator==(const HeatMode&, const HeatMode&) = default;
};

/// The points measured at one source flow.
struct flowRate {
    ByMode<varnholt::HeatMode> HeatMode{};
    double flowRate = 0;  ///< gpm

    friend bool operator==(const varnholt::flowRate&, const varnholt::flowRate&) = default;
};

/// A row of the measured table: one entering water temperature, three source flows.
struct ewt {
    std::array<varnholt::flowRate, 3> flowRate{};
    double temperature = 0;  ///< degF

    friend bool operator==(const ewt&, const ewt&) = default;
};

/// A row of the correction by load-side entering temperature.
struct eat {
    ByMode<double> temperature{};  ///< degF
    ByMode<double> capacityCorrection{};
    ByMode<double> wattsCorrection{};

    friend bool operator==(const eat&, const eat&) = default;
};

/// A row of the correction by load-side flow.
struct elf {
    ByMode<double> capacityCorrection{};
    ByMode<double> wattsCorrection{};
    ByMode<double> percent{};  ///< percent of the nominal load flow

    friend bool operator==(const elf&, const elf&) = default;
};

/// The fitted curves of a model.
struct coefficients {
    Polynomial wattsCorrection{};         ///< over load-side entering temperature, degF
    Polynomial capacityCorrection{};      ///< the same
    Polynomial wattsFlowCorrection{};     ///< over load-side flow, percent of nominal
    Polynomial capacityFlowCorrection{};  ///< the same
    Polynomial watts{};                   ///< kW a unit over entering water temperature; 3 terms
    Polynomial capacity{};                ///< MBtu/hr a unit, the same

    friend bool operator==(const coefficients&, const coefficients&) = default;
};

struct PumpManufacturerInfo {
    std::string mfgName;
    std::string addressLine1;
    std::string addressLine2;
    std::string country;
    std::string phone;

    friend bool operator==(const PumpManufacturerInfo&, const PumpManufacturerInfo&) = default;
};

struct PumpSeriesInfo {
    std::string seriesName;
    std::string FileName;  ///< base name of the series file
    Date currentDate;      ///< of the series' data

    friend bool operator==(const PumpSeriesInfo&, const PumpSeriesInfo&) = default;
};

/// A catalogue model.
struct pump {
    double nominalFlow = 0;  ///< load side; 0: the model has no load-flow data
    varnholt::coefficients coefficients;
    PumpManufacturerInfo mfgInfo;
    PumpSeriesInfo seriesInfo;
    std::array<varnholt::eat, 5> eat{};
    std::array<varnholt::elf, 5> elf{};
    std::array<varnholt::ewt, 6> ewt{};  ///< rows 0..2 are heating points, 3..5 cooling points
    /// Value at the second catalogue flow over the value at the first: [0 capacity, 1 power][mode].
    std::array<ByMode<double>, 2> flowCf{};
    std::int16_t pumpType = 0;  ///< 0 water-to-air, 1 water-to-water
    std::string name;

    friend bool operator==(const pump&, const pump&) = default;
};

/// At most as many series a manufacturer.
constexpr std::size_t seriesPerManufacturer = 36;

/// One manufacturer of the catalogue's index; despite its name it holds no pumps.
struct PumpList {
    PumpManufacturerInfo mfgInfo;
    std::vector<PumpSeriesInfo> seriesInfo;

    std::int16_t seriesCount() const { return static_cast<std::int16_t>(seriesInfo.size()); }

    friend bool operator==(const PumpList&, const PumpList&) = default;
};

}  // namespace varnholt
