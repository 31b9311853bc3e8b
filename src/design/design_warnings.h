// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "basis/mode.h"
#include "design/borehole_project.h"
#include "design/horizontal_project.h"
#include "design/surface_water_project.h"

namespace varnholt {

class GroundDesign;

/// What an engineer would look at in a design. It is advice: nothing is refused for it.
struct DesignWarning {
    enum class Concern {
        /// The ground is hardly warmer or colder than the fluid that is to give heat to it or take
        /// heat from it, so that the length hangs on every tenth of a degree.
        groundNearFluid,
        waterNearFluid,  ///< the same for loops in water
        boresTouch,      ///< bores are no further apart than they are wide
        pipesTouch,      ///< pipes in a trench are no further apart than they are thick
        boreTooDeep,     ///< deeper than what is usual for pipe and rig
        rowsInParts,     ///< a row is counted with a part of a bore, which no field can have
    };

    Concern concern;
    Mode mode = cooling;
    /// Ground or water, degF; diameter, in; depth of a bore, ft; bores that are calculated with.
    double figure = 0;
    /// Difference, degF; separation of bores, ft, of pipes, in; depth, ft; bores in whole rows.
    double limit = 0;
    double meanFluid = 0;  ///< degF, where the fluid is concerned

    friend bool operator==(const DesignWarning&, const DesignWarning&) = default;
};

/// Difference between ground, or water, and mean fluid up to which the length is uncertain, degF.
constexpr double nearGround = 5;
/// Depth beyond which the pipe's own head comes near its rating, ft: 600 ft of water is 260 psi.
constexpr double deepestBore = 600;

// A design's warnings. Those of the fluid and of the depth are about the last run's figures, and
// about modes that have a load; before a run there are none of them.

/// The ground of a field of bores is the undisturbed one.
std::vector<DesignWarning> warningsOf(const BoreholeProject& project);
/// That of trenches is as warm or cold as the pipes find it on the mode's extreme day. Of coils,
/// which overlap, and of an arrangement that is none, no pipes are said to touch.
std::vector<DesignWarning> warningsOf(const HorizontalProject& project);
/// Loops in water have the water's temperature in place of the ground's.
std::vector<DesignWarning> warningsOf(const SurfaceWaterProject& project);

/// A warning in the words and units of its design.
std::string sentenceOf(const DesignWarning& warning, const GroundDesign& design);
/// All of them, and behind them those about the pumps of the linked zones, which the design's inlet
/// temperatures may lie beyond.
std::vector<std::string> sentencesOf(const std::vector<DesignWarning>& warnings,
                                     const GroundDesign& design);

}  // namespace varnholt
