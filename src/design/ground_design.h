// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "design/borehole_results.h"
#include "design/design_values.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"

namespace varnholt {

class DesignTab;

/// What project and defaults files do for a design window. A design without them starts from the
/// built-in values and closes without a question.
struct DesignFiles {
    /// Reads the kind's defaults file over the built-in values, when there is one.
    std::function<void()> readINIFile;
    /// Reads the project named in the main window's common dialog, and finds its loads again.
    std::function<void()> readProject;
    /// The question whether to save. False stops the close.
    std::function<bool()> queryClose;
};

/// What the designs of all ground loops share beyond their loads: fluid, soil, pipe and extra
/// power, the pages that edit them, the set-up of the window, the unit switch, and the frame around
/// a run.
class GroundDesign : public LinkedDesign {
 public:
    GroundDesign(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot);
    ~GroundDesign() override;

    FluidValues fluid;
    SoilValues soil;
    PipeValues pipe;
    ExtraPowerValues extraPower;
    TowerValues tower;
    /// A run caused by the slider is under way.
    bool hybridOn = false;
    ByMode<double> temporaryInletTemp{67, 70};

    DesignFiles files;

    /// A tower takes a share of the cooling load: in the run at hand, or in the results on show.
    bool towerIsOn() const { return hybridOn || tower.hybridPercent != 0; }
    /// The tower as the figures on show count it.
    modCalculations::Hybrid shownHybrid() const;

    // Form_Load, in the order in which a window is set up.
    void load() override;
    /// Fills the captions of all tabs.
    void setLabels();
    /// Writes the unit words and values of all tabs.
    void setUnitLabels();
    void MetricCheck_Click() override;
    /// The run, and what every run ends with: a division by zero is shown, other errors are
    /// dropped, and the stale mark is taken away whatever happened.
    void CACalculateCommand_Click();

    void activated() override;
    bool queryClose() override;
    void unloaded() override;

 protected:
    friend class DesignTab;

    /// The steps of the Calculate command.
    virtual void calculate() = 0;
    /// Tabs in the order in which the unit switch rewrites them.
    virtual std::vector<DesignTab*> tabs() = 0;
    /// Texts of the pages' captions.
    virtual std::vector<int> pageCaptions() const = 0;
    /// Name of the tabbed pane.
    virtual std::string pagesName() const = 0;
    /// Built-in values that depend on others.
    virtual void fillDefaults() {}

    /// Controls that stand above the pages: the pane, the unit switch, the light of the link.
    void addWindowControls();
    /// The loads as the calculations take them.
    modCalculations::Zones zones() const;
    void registerSharedValues();
    void registerRollUp(const LoadsRollUp& rollUp);

 private:
    void enableMenuButtons();

    /// Buttons on the pages and the menu entries they stand for.
    std::vector<std::pair<std::string, std::string>> menuButtons_;
};

}  // namespace varnholt
