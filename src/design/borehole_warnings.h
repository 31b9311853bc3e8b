// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "basis/mode.h"
#include "design/borehole_project.h"

namespace varnholt {

/// What an engineer would look at in a bore field. It is advice: nothing is refused for it.
struct BoreholeWarning {
    enum class Concern {
        /// The ground is hardly warmer or colder than the fluid that is to give heat to it or take
        /// heat from it, so that the length hangs on every tenth of a degree.
        groundNearFluid,
        boresTouch,   ///< bores are no further apart than they are wide
        boreTooDeep,  ///< deeper than what is usual for pipe and rig
    };

    Concern concern;
    Mode mode = cooling;
    double figure = 0;  ///< mean fluid, degF; diameter, in; depth of a bore, ft
    double limit = 0;   ///< difference, degF; separation, ft; depth, ft

    friend bool operator==(const BoreholeWarning&, const BoreholeWarning&) = default;
};

/// Difference between ground and mean fluid up to which the length is uncertain, degF.
constexpr double nearGround = 5;
/// Depth beyond which the pipe's own head comes near its rating, ft: 600 ft of water is 260 psi.
constexpr double deepestBore = 600;

/// The field's warnings. Those of the fluid and of the depth are about the last run's figures, and
/// about modes that have a load; before a run there are none of them.
std::vector<BoreholeWarning> warningsOf(const BoreholeProject& project);

}  // namespace varnholt
