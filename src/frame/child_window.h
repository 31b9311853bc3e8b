// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/units.h"
#include "forms/form.h"

namespace varnholt {

class Varnmain;

/// A window that the main window keeps account of.
class ChildWindow : public Form {
 public:
    ChildWindow(std::string formName, Varnmain& main);

    Varnmain& main() const { return main_; }

    /// Form_Load: fills the window before it is first shown.
    virtual void load() {}
    /// A design project: the frame's commands for designs work on it.
    virtual bool isDesign() const { return false; }
    /// One of the two loads windows.
    virtual bool isLoads() const { return false; }
    /// Any other window that the save command knows how to save.
    virtual bool canSave() const { return isDesign() || isLoads(); }

    /// Whether the window has a unit switch, the check box `MetricCheck`.
    bool hasUnitSwitch() const { return has("MetricCheck"); }
    /// The units in which the window shows its values.
    UnitSystem units() const;
    /// Puts `MetricCheck` to the value and runs MetricCheck_Click when that changes it.
    void switchUnits(UnitSystem units);
    virtual void MetricCheck_Click() {}

    /// Fields are being rewritten by code: text changes must not be treated as the user's.
    bool settingUnits = false;

 private:
    Varnmain& main_;
};

}  // namespace varnholt
