// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "design/design_tab.h"
#include "design/horizontal_values.h"

namespace varnholt {

/// The field of trenches, how the pipes lie in them, and the time for which they are designed.
///
/// What a designer enters for the pipes makes the trench deeper or wider where it has to, with a
/// message: on leaving a field and after a step of an up-down. Choosing an arrangement does not.
class TrenchTab : public DesignTab {
 public:
    /// @param deepened  after the trench's depth has been stored
    TrenchTab(GroundDesign& design, TrenchValues& trench, HorizontalArrangementValues& arrangement,
              std::function<void()> deepened);

    void setLabels() override;
    void setUnitLabels() override;

 private:
    void addTrenches();
    void addTrenchCount();
    /// @param index  of the trench's dimensions: separation, depth, width
    void addTrenchField(std::size_t index);
    void addArrangements();
    void addPipes();
    void addPipeCount();
    /// @param index  of the fields: pitch; vertical step or diameter; horizontal step
    void addPipeField(std::size_t index, StoredNumber stored, double fallback,
                      std::function<void()> left);
    void addTime();
    void addPictures();

    void PAConfigurationOption_Click(std::int16_t index);
    void PAConfigurationUpDown_Change(std::size_t index);
    void PAOffsetCheck_Click();
    void PASeparationText_Leave(std::size_t index);
    void leaveVerticalStep();
    void leaveHorizontalStep();

    /// The trench holds the pipes afterwards; a message says what had to be changed.
    void applyLimits();
    void applyWidthLimit();
    void holdPitch();

    bool isKnown() const;
    bool coilIsChosen() const;
    /// The arrangement on show: which fields it has, which of them count.
    void showArrangement();
    void showCaptions();
    void showFields();
    void showCounts();
    void showPictures();
    /// A dimension that does not count is grey.
    void enableDimension(std::size_t index, bool enabled);
    void showDimension(std::size_t index, bool shown);

    TrenchValues& trench_;
    HorizontalArrangementValues& arrangement_;
    std::function<void()> deepened_;
};

}  // namespace varnholt
