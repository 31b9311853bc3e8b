// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include "design/design_tab.h"
#include "design/design_values.h"

namespace varnholt {

/// Electric power besides the heat pumps': circulation pump, additional power, cooling tower.
class ExtraPowerTab : public DesignTab {
 public:
    /// Which motors the kind of design has.
    enum class Motors { circulation, withTower };

    ExtraPowerTab(GroundDesign& design, ExtraPowerValues& power, Motors which = Motors::withTower);

    void setUnitLabels() override;

 private:
    /// A motor: the shaft power that is typed, its efficiency, the input power that follows.
    struct Motor {
        std::size_t input, shaft, efficiency;  ///< elements of the two arrays
        const char* frame;
        int powerCaption, efficiencyCaption;
        int distinction;  ///< what tells its fields from those of the others, 0 for nothing
    };
    static const Motor motors[3];

    void addMotor(const Motor& motor);
    void addAdditional();
    void updateInput(const Motor& motor);
    void showInput(const Motor& motor);

    std::size_t motorCount() const { return which_ == Motors::withTower ? 3 : 1; }

    ExtraPowerValues& power_;
    Motors which_;
};

}  // namespace varnholt
