// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/borehole_project.h"
#include "design/borehole_run.h"

namespace varnholt {

/// An office of one zone over 6 by 5 bores for 20 years, all else as built in.
inline BoreholeProject officeProject() {
    Zone zone;
    zone.gains = {{{96, 240}, {336, 112}, {304, 96}, {80, 152}}};
    zone.hours = {1150, 720};
    zone.days = 6;
    zone.pump.capacity = {352, 304};
    zone.pump.watts = {24.96, 22.72};
    BoreholeProject project;
    project.loads.zones = {zone};
    project.loads.zoneNumber = 1;
    project.arrangement.patternRows = {6, 5};
    project.arrangement.predictionTime = 20;
    return project;
}

inline BoreholeInputs officeInputs() { return inputsOf(officeProject(), false); }

}  // namespace varnholt
