// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "basis/pasted_block.h"
#include "frame/file_damage.h"
#include "frame/open_file.h"
#include "loads/ModLoadsIO.h"
#include "loads/loads_window.h"
#include "loads/modLoads/loads_pictures.h"

namespace varnholt {

struct FullLoadHours;
struct MonthlyLoads;

/// In what the two loads windows differ before any of their commands runs.
struct ZoneWindowKind {
    const char* formName;
    bool Varnmain::*windowExists;  ///< the frame's account of the window
    int titleText;
    int pumpNameText;        ///< caption of the pump's name
    int hoursText;           ///< caption of the equivalent full-load hours
    bool listsZones;         ///< a list of zones with the commands for it, or one block
    int linkLight;           ///< element of `imgLinkLight` that stands for a link
    const char* firstUnits;  ///< what `LONumberOfUnitsText(0)` starts with
};

/// What the two loads windows share: their fields, panels and commands. One file of this folder
/// for each of these.
///
/// The window is changed from the moment that a rule of its events says so until it is saved;
/// `LOSaveCommand` is enabled as long.
class ZoneWindow : public LoadsWindow {
 public:
    void load() override;
    bool queryClose() override;
    void unloaded() override;
    void MetricCheck_Click() override;

    /// A copy of the zone on display, as it was when it was chosen.
    Zone zoneTemp;
    /// Position of the first selected zone, -1 for none.
    int selectedZone() const;
    void replaceLoads(const DesignProject& project) override;

    bool hasUnsavedChanges() const override { return changed_; }
    StatePointer state() const override;
    bool CheckForSave() override;
    void LOSaveCommand_Click() override;
    void LOOpenCommand_Click();
    bool LOOpenZoneFile(const std::string& path) override;

    std::optional<KnownFile> knownFile() const override { return openFile_.known; }
    void takeRecovered(std::string_view bytes, const std::string& path,
                       const std::optional<KnownFile>& known) override;

    void InitializeHeatPumpLists() override;
    void refreshPumpLists() override;
    void SetFluidsTabbedPaneSwitchVariables() override;
    bool pumpsAreBeingSelected() const override;
    /// Puts the catalogue model into the zone, evaluated for it. Throws a RunTimeError, and the
    /// zone is then as it was.
    void SetPumpValues(const pump& model, std::int16_t units, std::size_t zoneIndex);

    std::string plainTitle() const override;
    void setLight(bool on) override;
    void showHoursAndDays(bool shown) override;

    /// A command of another window changes the document: the window shows it and counts as
    /// changed.
    void change(const std::function<void(LoadsDocument&)>& change);

    /// The same for the zones in the selected rows, each by itself; their display stays.
    void changeSelectedZones(const std::function<void(Zone&)>& change);
    /// Names of the first zones in the selected rows, one behind the other.
    std::string selectedZoneNames() const;
    /// Puts what the hours calculator has found into the selected zones, in one mode: design day,
    /// hours, days a week, part load factor.
    void TransferEqvHourCalcValues(const FullLoadHours& found, Mode m);

    struct PastedZones {
        int zones = 0;
        int refused = 0;  ///< cells whose zones hold another value than they say
    };
    /// Appends a zone for each line of the block: label, four gains, four losses, and where they
    /// are there hours of cooling and heating, or one for both, and days a week; in the units
    /// shown, by the ranges of the fields. Lines without any load are heads. The last zone is then
    /// on display.
    PastedZones pasteZones(const PastedBlock& block);
    /// What several zones are to have from now on; what is absent stays.
    struct ZoneEdits {
        ByMode<std::optional<std::string>> hours{};  ///< as typed
        std::optional<std::string> days{};
        std::optional<std::string> label{};
        bool numbered = false;  ///< the labels carry numbers from 1
    };
    /// Puts them into the zones in these rows, as one step. Returns how many zones are another now.
    int editZones(const std::vector<int>& rows, const ZoneEdits& edits);

    /// What an engineer would look at in a zone of the list, in sentences.
    std::vector<std::string> warningsOfZone(std::size_t position) const;
    LoadsChart loadsChart() const;
    PumpChart pumpChart() const;
    PumpPicture pumpPicture() const;
    std::string descriptionOf(const std::string& image) const override;

    // Load-side conditions that an evaluation carries along, and the flags that tell which count.
    ByMode<double> temporaryInletTemp{67, 70};  ///< degF
    ByMode<double> temporaryInletFlow{};        ///< cfm or gpm
    bool updating = false;
    bool selectingPump = false;
    bool returningFromDetails = false;
    bool samePumpUpdated = false;
    bool settingItems = false;  ///< lists are being refilled
    bool beenHere = false;      ///< a pump has been selected by hand before
    bool insideChange = false;

    // What the window's project has beside its information.
    ByMode<double> minflowRate{};
    std::int16_t style = 0;
    std::int16_t counter = 0;
    std::int16_t LOPrintOption = 0;
    std::string FileName, directoryName;
    bool currentFileCheck = false;

 protected:
    ZoneWindow(const ZoneWindowKind& kind, Varnmain& main);

    /// Evaluates a model for a zone by the window's own rule; throws a RunTimeError.
    virtual MiniPump evaluated(const pump& model, std::int16_t units, const Zone& zone) const = 0;
    virtual std::string zoneFrameCaption(const Zone& zone) const = 0;
    /// The totals are on show and may have changed.
    virtual void rebuildSummary() {}

    EvaluationConditions evaluationConditions() const;
    /// Runs a part of a command, whose run-time error ends in a message and not the command.
    void attempt(const std::function<void()>& command);
    void markChanged() { setChanged(true); }
    void setChanged(bool changed);

    void restore(const DocumentState& earlier) override;
    void savedStateReached(bool atSaved) override;
    std::vector<Notice> notices() override;
    void takeForeignChanges() override;
    std::string stepName(const UserAction& action) const override;

    /// The zone on display, null for none; and the same to write to.
    const Zone* shownZone() const;
    Zone* editShownZone();
    SharedZones& zones() { return document_.data.zones; }
    DesignConditions& designConditions() { return document_.data.conditions; }
    void selectZone(int position);
    void displayZone();
    void displayPump();
    /// Appends a zone, selects and displays it.
    void addZone(Zone zone);
    /// A zone without loads under the next number, with what the catalogue begins with.
    Zone newZone();
    /// The list, its commands and the zone on display, after `ZoneList` has changed as a whole.
    void showZones(int selected);
    void enableZoneCommands();
    void forgetZoneFile();
    /// The zones' file as the window names it, one that is not saved yet included.
    std::string fileOnShow() const;
    void showFile();
    std::string nameOfZone(std::size_t number) const;
    /// What stands for the zone in messages and lists: its name without the word before it.
    std::string numberOfZone(const Zone& zone) const;

    enum class ZoneSeries { loaded, unlisted, unreadable };
    /// Loads the series of a zone's pump into a slot unless it is there already. A file that
    /// cannot be read has been told of.
    ZoneSeries loadSeriesOf(const MiniPump& zonePump, SeriesSlot slot);
    bool loadSeries(const std::string& mfgName, const PumpSeriesInfo& series, SeriesSlot slot);
    bool holdsActiveSeries(SeriesSlot slot) const;
    void restoreActiveSeries(SeriesSlot slot);
    void tellSeriesMissing(const Zone& zone);
    /// Takes temperatures and flows of the zone's pump along into the next evaluation.
    void carryLoadSide(const MiniPump& zonePump);
    /// Position in a slot of the model of that name; none where it is not there.
    std::optional<std::size_t> modelNamed(const std::string& name, SeriesSlot slot) const;

 private:
    Zone zoneOf(Zone zone, const std::vector<std::string>& cells, int& refused) const;
    int putIntoZones(const std::vector<int>& rows, const ZoneEdits& edits);
    void registerValues();
    void registerConditions();
    void InitializeVariables();

    // Controls, in the reading order of the window.
    void addControls();
    void addCommandBar();
    void addZonePanel();
    void addLoadsFrame();
    void addSpecificationsFrame();
    void addSelectFrame();
    void addDetailsFrame();
    void addLoadSideFrame(const std::string& frame, int captionText, int first);
    void addHeatPumpTab();
    void addConditionsFrame();
    void addCatalogueFrame();

    // The tables of the fields, each in the file of its frame.
    void setFieldManner();
    void addGainsFields();
    void addHoursFields();
    void addUnitsField();
    void addFigureFields();
    void addLoadSideFields(const std::string& frame, std::size_t first);
    void addTemperatureFields();
    void addFlowField();
    void addLoadTempField(const std::string& frame, std::size_t index);
    void takeFreezingPoint(std::size_t mode);
    void hookTexts();
    void hookCommands();
    void hookPumpCommands();

    void LONewCommand_Click();
    void LOClearCommand_Click();
    void LOEqvHoursCommand_Click();
    void LOPrintCommand_Click();
    void LOImportCommand_Click();
    void importIntoSelected(const ByMode<MonthlyLoads>& years, const std::string& title);

    Answer askForSave();
    /// What came of reading a file.
    struct ReadZones {
        FileDamage damage;
        OpenFile file;
        OpenAs as = OpenAs::itself;
    };
    std::optional<ReadZones> readZonesFor(const std::string& path, LoadsData& data);
    SavedAs saveZonesTo(const std::string& path);
    void savedUnder(const std::string& path);
    void takeFile(const std::string& path);
    std::string proposedFile() const;
    std::string newFile() const;
    FileDialog zoneDialog(bool saving) const;
    void takeLoads(LoadsData data);
    void takeZones(const SharedZones& taken);
    void replaceDocument(const std::function<void(LoadsDocument&)>& replace, int shown);
    void keepFileInHistory();

    void LOSelectCommand_Click();
    void LOMfgCombo_Click();
    void LOSeriesCombo_Click();
    void LOSelectPumpCommand_Click();
    void selectPump(const Zone& zone);
    void LOCancelCommand_Click();
    /// A series as two combos show it: its manufacturer, and its place among the series of that
    /// name; -1 for none.
    struct SeriesPlace {
        std::string mfgName;
        int series = -1;
    };
    SeriesPlace placeOf(const std::string& joinedName) const;
    std::vector<std::string> manufacturerNames() const;
    std::vector<std::string> seriesNames(const std::string& mfgName) const;
    void showPlace(const char* makerCombo, const char* seriesCombo, const SeriesPlace& place);
    const PumpSeriesInfo* chosenSeries(const char* makerCombo, const char* seriesCombo) const;
    void SetUpLoadsSeriesList(int manufacturerIndex);
    void showLoadsPumps(std::size_t slot);
    void browseSeries();
    void HPManufacturerCombo_Click();
    void HPSeriesCombo_Click();
    void showActiveSeries();
    void showActiveModels();
    void refreshBrowsedSeries(const std::string& mfgName, const std::string& seriesName);

    void LODetailsCommand_Click();
    void LOReturnCommand_Click();
    void LOClearPumpsCommand_Click();
    void LOCustomPumpCheck_Click();
    void showDetails(const MiniPump& shown);
    void freeFields(const MiniPump& shown);
    void figureTyped();
    void showUnitsToSelect();
    std::int16_t typedUnits() const;

    const ZoneWindowKind& kind_;
    bool changed_ = false;
    /// What is wrong with the file that was opened last; empty for nothing.
    std::string damage_;
    OpenFile openFile_;
};

}  // namespace varnholt
