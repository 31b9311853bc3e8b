// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "frame/child_window.h"
#include "loads/import/month_pictures.h"
#include "loads/import/monthly_loads.h"
#include "loads/modLoads/loads_pictures.h"

namespace varnholt {

class ZoneWindow;
class frmEqvHoursCalc;

/// What the importer leaves behind when its window goes.
struct KeptImport {
    ImportedLoads loads;
    /// The mode was on screen since its values changed last.
    ByMode<bool> lookedAt{true, true};
    /// The mode on screen.
    Mode mode = cooling;
};

/// The importer: twelve months of energy and peak loads of both modes, from a simulation file, a
/// table, the clipboard or the keyboard, and their way into zones or into the hours calculator.
///
/// What it holds outlives the window: it is there again when the window is opened later.
class frmImport1 : public ChildWindow {
 public:
    /// The table's two columns that can be typed into.
    enum class Column { total, peak };
    /// The cell in which the one field of the table stands.
    struct Cell {
        Column column = Column::total;
        std::size_t month = 0;
    };

    /// @param kept what the window shows and leaves behind
    frmImport1(Varnmain& main, std::shared_ptr<KeptImport> kept);

    void load() override;
    void unloaded() override;
    void activated() override { showTransfer(); }
    void windowsChanged() override { showTransfer(); }
    void MetricCheck_Click() override;
    StatePointer state() const override;

    /// Names the file that the values come from; without a name there is none.
    void Import1_Click(const std::string& fileName, std::int16_t fileType);
    /// Takes the years as another reader has found them, the year's figures included.
    void TransferValuesToImport1(const ByMode<MonthlyLoads>& years);

    const ImportedLoads& loads() const { return loads_; }
    /// Takes what an importer held whose program ended.
    void takeRecovered(const ImportedLoads& loads) {
        change([&](ImportedLoads& held) { held = loads; });
    }
    Mode mode() const { return mode_; }
    const Cell& cell() const { return cell_; }
    std::string descriptionOf(const std::string& image) const override;
    MonthsChart monthsChart() const;
    /// Both modes' design days as they would be written.
    LoadsChart dayChart() const;

 protected:
    void restore(const DocumentState& earlier) override;
    void actionEnds(const UserAction& action) override;

 private:
    void registerValues();
    void addControls();
    void addBar();
    void addTable();
    void addMonth(std::size_t month);
    void addCell(const std::string& name, int row, int column, const std::string& unit);
    void addTotals();
    void addTransfer();
    void hookCommands();
    void hookTable();

    // What the table shows.
    void showAll();
    void showCaptions();
    void showMode();
    void showMonths();
    void showFactors();
    void showTransfer();
    void showField();
    std::string shownTotal(double total) const;
    std::string shownPeak(double peak) const;
    const MonthlyLoads& shownYear() const { return loads_.years[mode_]; }

    /// Changes what is held, notes what was not looked at since, and shows it.
    void change(const std::function<void(ImportedLoads&)>& edit);
    void cmdCoolHeat_Click(Mode mode);

    // The one field of the table.
    void place(const Cell& cell);
    void txtImport1_Change();
    void txtImport1_KeyPress(const std::string& key);
    void goOn();
    void pasteColumn();

    void cmdClear_Click();
    void ReadImportFile();
    void pasteTable();
    void importTable();
    void cmdModify_Click();
    ChildWindow* opener() const;
    void preselectEvenDay();
    bool fromHours() const;
    DayLoads dayOf(Mode mode) const;
    double hoursOf(Mode mode) const;
    void TransferValuesFromImport1ToLoadsModule(ZoneWindow& window);
    void TransferValuesFromImport1ToCalc(frmEqvHoursCalc& calculator, Mode mode);

    std::shared_ptr<KeptImport> kept_;
    ImportedLoads& loads_ = kept_->loads;
    ByMode<bool>& lookedAt_ = kept_->lookedAt;
    Mode& mode_ = kept_->mode;
    Cell cell_;
    /// The field's text is the user's, and stays while its value is taken over.
    bool typing_ = false;
};

/// Registers the command that opens the importer.
void installImporter(Varnmain& main);

}  // namespace varnholt
