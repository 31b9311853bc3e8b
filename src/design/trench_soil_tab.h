// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "design/horizontal_values.h"
#include "design/soil_tab.h"

namespace varnholt {

/// The soil around trenches, and how its temperature goes through the year.
class TrenchSoilTab : public SoilTab {
 public:
    /// @param changed  after any of the values has been stored
    TrenchSoilTab(GroundDesign& design, SoilValues& soil, GroundTemperatureValues& year,
                  const std::function<void()>& changed);
};

}  // namespace varnholt
