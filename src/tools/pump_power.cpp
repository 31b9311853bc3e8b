// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pump_power.h"

namespace varnholt {

double pumpPowerOf(double flow, double head, double efficiency) {
    constexpr double gallonFeetPerHorsepower = 3960.0;  // gpm ft per hp
    return (flow * head) / ((efficiency / 100.0) * gallonFeetPerHorsepower);
}

}  // namespace varnholt
