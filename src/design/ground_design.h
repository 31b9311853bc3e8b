// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "design/design_values.h"
#include "design/length_summary.h"
#include "design/loads_roll_up.h"
#include "frame/file_damage.h"
#include "frame/open_file.h"
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
    /// Asks where the project's zone file is, and links the design with it.
    std::function<void()> findZoneFile;
};

/// The parts of a project that the pages of several kinds edit. A kind without a cooling tower has
/// no tower.
struct GroundParts {
    FluidValues& fluid;
    ExtraPowerValues& extraPower;
    TowerValues* tower = nullptr;
};

/// What the designs of all ground loops share beyond their loads: fluid and extra power, the
/// set-up of the window, the unit switch, the roll-up of the loads, which mode governs, and the
/// frame around a run.
class GroundDesign : public LinkedDesign {
 public:
    /// @param project  held by the kind's own window, as are the parts of it
    GroundDesign(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot,
                 DesignProject& project, const GroundParts& parts);
    ~GroundDesign() override;

    const FluidValues& fluid() const { return parts_.fluid; }
    /// A run caused by the slider is under way.
    bool hybridOn = false;
    ByMode<double> temporaryInletTemp{67, 70};

    DesignFiles files;

    /// A tower takes a share of the cooling load: in the run at hand, or in the results on show.
    bool towerIsOn() const;
    /// The results on show come from other inputs or loads than the present ones, or the last run
    /// has ended without any.
    bool showsOlderResults() const { return droppedError_ != 0 || resultsAreOlder(); }
    /// What the results on show come to.
    virtual LengthSummary lengthSummary() const = 0;

    // Form_Load, in the order in which a window is set up.
    void load() override;
    /// Fills the captions of all tabs.
    void setLabels();
    /// Writes the unit words and values of all tabs.
    void setUnitLabels();
    void MetricCheck_Click() override;
    /// The run, and what every run ends with: an error that the kind tells is shown, others are
    /// told by the notice alone, and the stale mark is taken away whatever happened.
    void CACalculateCommand_Click();

    /// Greys the figures of one mode, emphasises the other's, and wakes or rests the tower.
    virtual void showGoverningMode(Mode greyed) = 0;
    /// The mode that does not govern.
    void showGoverningMode();

    void loadsChanged() override;
    /// The project's own zone file has been found after all: its results came from these loads.
    void loadsFound(bool stale);
    /// What is wrong with the project's file, of which not everything could be read.
    void setDamage(const FileDamage& damage) { damage_ = damage; }
    /// What is known of the project's file.
    OpenFile openFile;
    /// A save by a click must not take the place of the file.
    bool savesUnderNewName() const {
        return !damage_.isNone() || openFile.readOnly || openFile.asksForName;
    }

    void activated() override;
    bool queryClose() override;
    void unloaded() override;

 protected:
    friend class DesignTab;

    /// The steps of the Calculate command behind the transfer of the loads.
    virtual void calculate() = 0;
    /// The design's own copy of the loads has changed as a whole: its roll-up is found anew.
    virtual void rollUp() = 0;
    /// Total lengths on show, ft.
    virtual ByMode<double> lengths() const = 0;
    /// Whether there are results, and whether they answer the present inputs.
    LengthSummary::State resultsState() const;
    /// By the lengths at hand: the longer one governs.
    virtual Mode governingMode() const;
    /// Whether a box tells a run's error of that number.
    virtual bool tellsError(int number) const = 0;
    /// The results on show come from other inputs or loads than the present ones.
    virtual bool resultsAreOlder() const = 0;
    /// Tabs in the order in which the unit switch rewrites them.
    virtual std::vector<DesignTab*> tabs() = 0;
    /// Texts of the pages' captions.
    virtual std::vector<int> pageCaptions() const = 0;
    /// Name of the tabbed pane.
    virtual std::string pagesName() const = 0;
    /// Built-in values that depend on others.
    virtual void fillDefaults() {}
    /// The designer's usual values have taken the place of built-in ones, as far as their file
    /// goes.
    virtual void defaultsRead() {}
    /// A project has been read from its file, and its loads found again.
    virtual void projectRead() {}
    /// Takes the tower out of the design, as a plain Calculate does before it runs.
    virtual void dropTower() {}
    virtual void showTower() {}
    virtual void wakeTower() {}

    /// Controls that stand above the pages: the unit switch, the light of the link, the notice,
    /// the pane.
    void addWindowControls();
    /// Shows the document after another state of it has been put back.
    void showRestored(bool stale);
    /// The run has ended in an error that no box tells.
    virtual void runDropped() = 0;
    /// The results come from a run, and not from the beginning of the design.
    virtual bool hasResults() const = 0;
    /// Before a first run no mode governs.
    virtual void showNoGoverningMode() = 0;
    std::vector<Notice> notices() override;
    /// No mode has a load: there is nothing to calculate with.
    void tellNothingToCalculate();
    /// Number of the error that ended the last run without a box; 0 for none.
    int droppedError_ = 0;

 private:
    void enableMenuButtons();
    void run();
    void dropRun(int errorNumber);
    void tellNoLoads();

    GroundParts parts_;
    FileDamage damage_;
    /// Buttons on the pages and the menu entries they stand for.
    std::vector<std::pair<std::string, std::string>> menuButtons_;
};

}  // namespace varnholt
