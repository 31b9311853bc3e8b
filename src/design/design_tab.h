// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/numeric_field.h"
#include "forms/platform.h"

namespace varnholt {

class GroundDesign;

/// One page of a design window: its controls, their captions, its part in the unit switch.
///
/// A tab adds its controls when it is created and keeps references to the values it edits, which
/// belong to the design. The kinds of designs are put together from these pieces.
class DesignTab {
 public:
    explicit DesignTab(GroundDesign& design) : design_(design) {}
    DesignTab(const DesignTab&) = delete;
    DesignTab& operator=(const DesignTab&) = delete;
    virtual ~DesignTab() = default;

    /// Fills the captions from the language.
    virtual void setLabels();
    /// Writes the unit words and the stored values as text in the active units.
    virtual void setUnitLabels();

 protected:
    GroundDesign& design() const { return design_; }
    Control& control(const std::string& name) const;
    std::string text(int number) const;
    bool metric() const;
    void tell(MessageIcon icon, const std::string& message) const;

    Control& add(const std::string& name, ControlKind kind, const std::string& frame);
    /// With a caption that setLabels fetches again.
    Control& add(const std::string& name, ControlKind kind, const std::string& frame, int caption);
    Control& addFrame(const std::string& name, int caption, const std::string& frame = {});
    /// A label whose caption depends on the units.
    Control& addUnitLabel(const std::string& name, const std::string& frame, UnitTexts caption);
    /// A field with the labels before and behind it, as one row of the tab's table declares them.
    Control& addField(NumericFieldRow row);
    /// A combo of fixed entries: texts `first` to `last`.
    Control& addCombo(const std::string& name, const std::string& frame, const std::string& label,
                      int caption, int first, int last);

    using Handler = std::function<void()>;
    void onChange(const std::string& name, Handler handler);
    void onLeave(const std::string& name, Handler handler);
    void onClick(const std::string& name, Handler handler);
    void onSlide(const std::string& name, Handler handler);
    /// A button that runs a command of the main window's menu, and can be used when that can.
    void addMenuButton(const std::string& name, const std::string& frame, int caption,
                       const std::string& entry);

 private:
    struct Caption {
        std::string control;
        int text;
    };
    struct UnitCaption {
        std::string control;
        UnitTexts caption;
    };

    GroundDesign& design_;
    std::vector<Caption> captions_;
    std::vector<UnitCaption> unitCaptions_;
    std::vector<std::string> fields_;
};

/// A stored index as a whole number, -1 for one that is none of `count` entries. Files may hold
/// any number.
int entryOf(double index, int count);

}  // namespace varnholt
