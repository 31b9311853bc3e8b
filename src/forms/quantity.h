// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "basis/units.h"

namespace varnholt {

/// How a stored value is shown and read in each unit system. Index 0 is English, 1 metric.
struct Quantity {
    using Conversion = double (*)(double);

    std::array<Conversion, 2> toShown;
    std::array<Conversion, 2> toStored;

    double shown(double stored, UnitSystem units) const {
        return toShown[static_cast<std::size_t>(units)](stored);
    }
    double stored(double shown, UnitSystem units) const {
        return toStored[static_cast<std::size_t>(units)](shown);
    }
};

namespace quantities {

extern const Quantity plain;                  ///< the same number in both systems
extern const Quantity temperature;            ///< deg F; deg C
extern const Quantity temperatureDifference;  ///< deg F; times 5/9
extern const Quantity load;                   ///< MBtu/hr; kW
extern const Quantity waterFlow;              ///< gpm (also gpm per ton); L/min
extern const Quantity airFlow;                ///< cfm; L/s
extern const Quantity length;                 ///< ft; m
extern const Quantity diameter;               ///< in; mm
extern const Quantity width;                  ///< in; cm
extern const Quantity area;                   ///< ft^2; m^2
extern const Quantity headLoss;               ///< ft of head; m of head
extern const Quantity density;                ///< lb/ft^3; kg/m^3
extern const Quantity specificHeat;           ///< Btu/(lb degF); kJ/(degK*kg)
extern const Quantity conductivity;           ///< Btu/(hr ft degF); W/(m*degK)
extern const Quantity resistance;             ///< hr ft degF/Btu; m*degK/W
extern const Quantity diffusivity;            ///< ft^2/day; m^2/day
extern const Quantity shaftPower;             ///< stored in kW; shown in hp, in metric in kW

}  // namespace quantities
}  // namespace varnholt
