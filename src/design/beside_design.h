// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "forms/quantity.h"
#include "frame/child_window.h"

namespace varnholt {

class frmBHDesign;

/// A window beside a borehole design, whose inputs belong to the design, and so do its units, its
/// steps and its file: the window edits and shows them. It closes with its design. Its figures are
/// found late.
class BesideDesign : public ChildWindow {
 public:
    /// @param formName  the class of the form
    /// @param title     number of the text that stands in the caption before the design's name
    /// @param design    outlives the window
    BesideDesign(const std::string& formName, int title, frmBHDesign& design);

    void load() override;
    ChildWindow& owner() override;
    UnitSystem units() const override;
    void actionBegins() override;
    void actionDone() override;
    void windowsChanged() override { lookAgain(); }

    /// The design has switched its units.
    void showInUnits();
    /// Another state of the design has been put back.
    void showDocument();

 protected:
    frmBHDesign& design() const { return design_; }
    virtual void showInputs() = 0;
    virtual void showFigures() = 0;
    /// Whatever the figures come from may have changed.
    virtual void lookAgain() { fallBehind(); }

    /// A caption that follows the units.
    void addUnitLabel(const std::string& name, const std::string& frame, UnitTexts caption);
    void followUnits(const std::string& name, UnitTexts caption);
    /// A figure that is found late.
    Control& addOutput(const std::string& name, const std::string& frame = {});

    /// Why the last paste has changed nothing; empty where it has, and at the next action.
    std::string pasteFault_;

 private:
    struct UnitCaption {
        std::string control;
        UnitTexts caption;
    };

    std::string titleNow() const;
    void showCaptions();

    int title_;
    frmBHDesign& design_;
    std::vector<UnitCaption> unitCaptions_;
};

}  // namespace varnholt
