// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "basis/mode.h"
#include "design/design_tab.h"
#include "design/design_values.h"

namespace varnholt {

/// The undisturbed ground.
class SoilTab : public DesignTab {
 public:
    SoilTab(GroundDesign& design, SoilValues& soil);

 protected:
    using Changed = std::function<void()>;

    /// A tab that puts its fields together from the following.
    explicit SoilTab(GroundDesign& design) : DesignTab(design) {}

    /// @param changed  after a field's value has been stored
    void addGroundTemp(double& groundTemp, const Changed& changed = {});
    void addProperties(SoilValues& soil, const Changed& changed = {});
    /// The yearly swing of the temperature near the surface, and the days of its extremes.
    /// @param help  topic of the kind's own page
    void addSwing(double& airTempSwing, ByMode<std::int16_t>& extremeDay, const Changed& changed,
                  const std::string& help);

 private:
    void addExtremeDay(Mode mode, std::int16_t& day, const std::string& frame,
                       const Changed& changed, const std::string& help);
};

}  // namespace varnholt
