// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "design/ground_roll_up.h"
#include "design/whatIf/cases.h"

namespace varnholt {

/// The zones rolled up once, so that a case costs the same for one zone and for a thousand.
///
/// A mode's demand under a factor f on its loads is a sum of min(1, f r) P over the zones, r the
/// load over the capacity of a zone's pump and P its power: straight lines that bend where a pump
/// comes to its limit. With the zones sorted by r, sums over the first and over the rest tell it.
class RolledZones {
 public:
    explicit RolledZones(const SharedZones& zones);

    const modCalculations::PeakLoads& loads() const { return loads_; }
    const ByMode<double>& partLoadFactor() const { return partLoadFactor_; }
    const ByMode<double>& annualTonHours() const { return annualTonHours_; }
    const ByMode<double>& heatPumpCOP() const { return heatPumpCOP_; }
    /// Power of the heat pumps at peak, kW, with all loads of the mode so much greater.
    double peakDemand(Mode mode, double factor) const;

 private:
    struct Bend {
        double ratio;    ///< of a zone's load to its capacity; greatest first
        double limited;  ///< power of this zone and those before, kW
        double rising;   ///< sum of ratio times power of the zones behind, kW
    };

    modCalculations::PeakLoads loads_;
    ByMode<double> partLoadFactor_{}, annualTonHours_{}, heatPumpCOP_{};
    ByMode<double> rising_{};  ///< where no pump is at its limit, kW
    ByMode<std::vector<Bend>> bends_;
};

/// What the zones amount to for the ground in one case; with a tower, what it leaves.
struct CaseLoads {
    ByMode<double> peakLoad{};    ///< MBtu/hr
    ByMode<double> peakDemand{};  ///< kW
    ByMode<double> partLoadFactor{};
    ByMode<double> tonHours{};  ///< of the building, before the tower
    ByMode<double> heatPumpCOP{};
    double annualGroundLoad = 0;  ///< MBtu/hr
    ByMode<double> outletTemp{};  ///< degF
    double buildingPeak = 0;      ///< cooling, before the tower, MBtu/hr
};

/// @param inputs  its zones are those that were rolled up; they are not read again
CaseLoads loadsOfCase(const RolledZones& zones, const LoadsInputs& inputs,
                      const CaseFactors& factors);

}  // namespace varnholt
