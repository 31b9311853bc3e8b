// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/trench_soil_tab.h"

#include "design/ground_design.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {

TrenchSoilTab::TrenchSoilTab(GroundDesign& design, SoilValues& soil, GroundTemperatureValues& year,
                             const std::function<void()>& changed)
    : SoilTab(design) {
    addFrame("SOSoilFrame", Text::soilTemperaturesAndProperties);
    addGroundTemp(soil.groundTemp, changed);
    addProperties(soil, changed);
    addSwing(year.airTempSwing, year.extremeDay, changed, "horizontal#swing");
    add("imgGroundTemp", ControlKind::image, "SOSoilFrame");
}

}  // namespace varnholt
