// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/editor/catalogue_index.h"
#include "catalogue/editor/edited_series.h"
#include "catalogue/editor/editor_pictures.h"
#include "catalogue/editor/series_file.h"
#include "frame/child_window.h"
#include "frame/file_damage.h"
#include "frame/open_file.h"

namespace varnholt {

/// The heat pump editor: manufacturers, series and pumps of the catalogue.
///
/// It holds one series in memory. `SaveCommand` is enabled as long as the pumps differ from their
/// file; the index is written at once with every manufacturer and series that comes, goes or
/// changes. A series that is open in another program is opened to be read, or as a copy: its pumps
/// are saved as a series of their own.
class frmHPEdit : public ChildWindow {
 public:
    /// @param catalogueWritten  called after the catalogue's files have been written
    frmHPEdit(Varnmain& main, std::function<void()> catalogueWritten);

    void load() override;
    bool queryClose() override;
    void unloaded() override;
    void MetricCheck_Click() override;
    bool canSave() const override { return true; }
    void save() override {
        if (changed_) SaveCommand_Click();
    }
    StatePointer state() const override;
    /// The pumps differ from their file.
    bool hasUnsavedPumps() const { return changed_ && place_.has_value(); }
    /// The file of the series in memory.
    std::string seriesFile() const { return seriesPath(); }
    /// Makes what the file would hold now, wherever and whenever it is called.
    std::function<std::string()> seriesText() const;
    /// The file as this window knows it; nothing where there was none.
    const std::optional<KnownFile>& knownFile() const { return file_.known; }
    /// Takes pumps that were never saved, as a series file holds them; they count as changed. False
    /// where the catalogue does not list the file.
    /// @param known  the file as it was known to the window that they were typed in
    bool takeRecovered(std::string_view bytes, const std::string& path,
                       const std::optional<KnownFile>& known);
    void actionEnds(const UserAction& action) override;

    /// What an image of the window shows, in the units shown: `PumpChart`, `CoolingRatingChart`,
    /// `HeatingRatingChart`, `CorrectionsChart(0)`, `CorrectionsChart(1)` or `TestChart`.
    FitCurvesPicture chart(const std::string& image) const;
    std::string descriptionOf(const std::string& image) const override;

    /// What `ProceedCommand` and `CancelCommand` are to do: "newMfg", "newSeries", "Return" or
    /// empty.
    std::string pumpInfoFrameMode;
    /// The information panel was opened by `EditSeriesCommand`.
    bool editingSeriesInfo = false;
    /// While either is set the edit events of the fields do nothing.
    std::array<bool, 2> loadingFields{};
    bool recalculationNeeded = false;

 protected:
    void restore(const DocumentState& earlier) override;
    void savedStateReached(bool atSaved) override { setChanged(!atSaved); }
    bool staysSaved() const override { return !changed_; }
    std::vector<Notice> notices() override;

 private:
    enum class Panel { nothing, information, data };

    // Controls, in the reading order of the window; the fields stand with their pages.
    void addControls();
    void addCommands();
    void addInformationPanel();
    void addDetailsPage();
    void addRatingPage(Mode mode);
    void addRatingFields(Mode mode);
    void addFlowField(Mode mode, std::size_t flow);
    void addWaterField(Mode mode, std::size_t point);
    void addPointFields(Mode mode, std::size_t flow, std::size_t point);
    void addPointField(Mode mode, std::size_t flow, FittedQuantity quantity, std::size_t point);
    void addRatingCurves(Mode mode);
    void addCorrectionPage(CorrectionKind kind);
    void addCorrectionHeads(CorrectionKind kind);
    void addCorrectionFields(CorrectionKind kind);
    void addCorrectionPlace(CorrectionKind kind, Mode mode, std::size_t row);
    void addCorrectionCurves(CorrectionKind kind);
    void addNominalFlow();
    void addTestPage();
    void addTestFields();
    void addCoefficientRow(const std::string& frame, const std::string& stem,
                           const std::string& array, std::size_t first, std::size_t terms,
                           int captionText);
    void addTableCommands(std::size_t page, const std::string& frame);
    void hookCommands();
    void hookFields();
    void registerValues();

    // Panels and lists.
    Panel panel() const;
    void showPanel(Panel panel);
    void enableCommands();
    void fillManufacturers();
    void fillSeries(std::optional<std::size_t> manufacturer);
    void showSelection();
    void rememberSelection();
    void MfgCombo_Click();
    void SeriesCombo_Click();
    bool askForSave();
    bool mayLeave();

    // The series in memory.
    const PumpSeriesInfo& selectedSeries() const;
    const PumpManufacturerInfo& selectedManufacturer() const;
    std::string seriesPath() const;
    SeriesFile readSelectedSeries() const;
    std::optional<OpenFile> guardSeries(const PumpSeriesInfo& series);
    void openSeries(const SeriesPlace& place);
    void showSeries(const SeriesPlace& place);
    void takeSeries(const SeriesPlace& place, SeriesFile file);
    void closeSeries();
    void setChanged(bool changed);
    void markChanged();
    void SaveCommand_Click();
    bool mayReplaceFile();
    /// Whether a file that another program has written since it was read here may go.
    bool mayReplaceOther(int question, const std::string& path,
                         const std::optional<KnownFile>& known);
    bool mayReplace(const std::string& question);
    bool attemptToWrite(const std::string& path, const std::function<void()>& write);
    bool writeIndex(const CatalogueIndex& index);

    // Entering manufacturer and series.
    void SelectMfgCombo_Click();
    void EditSeriesCommand_Click();
    void SetPumpInfoFrameVariables();
    void ProceedCommand_Click();
    void CancelCommand_Click();
    void DeleteSeriesCommand_Click();
    bool mayDropInformation();
    void revealInformation(const PumpManufacturerInfo& manufacturer, const PumpSeriesInfo& series);
    void lockManufacturer(bool locked);
    void showManufacturer(const PumpManufacturerInfo& manufacturer);
    PumpManufacturerInfo typedManufacturer() const;
    PumpSeriesInfo typedSeries() const;
    std::string faultOfInformation() const;
    void enterSeries();
    void enterCopy();
    void changeSeries();
    void finishFileName();

    // The pumps.
    int selectedPump() const;
    const pump* shownPump() const;
    pump* editShownPump();
    /// A number of the pump on show by then; 0 while there is none.
    StoredNumber ofShownPump(const std::function<double&(pump&)>& number);
    void listPumps(int selected);
    void showPump();
    void showTexts(const pump& shown);
    void blankFields();
    void addPump(pump added);
    void NewCommand_Click();
    void CopyCommand_Click();
    void RemoveCommand_Click();
    void ReorderCommand_Click();
    void ClearCommand_Click();
    void PumpModelText_Change();
    void PumpTypeOption_Click(std::int16_t type);
    void relabel(std::int16_t type);

    // What an edit makes stale.
    void ratingEdited(Mode mode);
    void correctionEdited(CorrectionKind kind);
    void flowEdited(std::size_t flow, Mode typedIn);
    void cmdZeroZap_Click(std::size_t index);
    void paintFitButtons(const FitButtons& red);
    FitButtons redButtons() const;

    // The curves.
    void CalculateCoefficientsCommand_Click(Mode mode);
    void CoefficientsCalculateCommand_Click(CorrectionKind kind);
    void fitted(pump model);
    void tellFault(FitFault fault);
    void ShowCoefficients();
    void showFlowFactors();
    void TestCommand_Click();
    void blankTest();
    void showTest();
    void refreshTest();
    void refreshJudgements();
    void showMeasuredCOP(Mode mode);
    void showFit(const std::string& stem, const std::string& index, const Polynomial& curve,
                 Mode mode, const FitPoints& points, bool temperatures);
    void fitStaleCurves();

    // Tables and the clipboard.
    void CopyTableCommand_Click(std::size_t page);
    void pasteInto(const std::string& field, const std::vector<std::vector<std::string>>& cells);
    void keyInField(const std::string& field, const std::string& key);

    std::function<void()> catalogueWritten_;
    CatalogueIndex index_;
    FileDamage damagedIndex_;
    std::optional<KnownFile> indexKnown_;  ///< of its file, as read or written last
    std::optional<SeriesPlace> place_;
    EditedSeries document_;
    TestResults results_;
    /// What `results_` were found for; nothing where that model could not be tried.
    std::optional<Shared<pump>> triedPump_;
    /// What is known of the file of the series.
    SeriesFile file_;
    FileLock lock_;             ///< tells other programs that it is open here
    bool readOnly_ = false;     ///< it is open elsewhere: saving asks for a series of its own
    bool copiesPumps_ = false;  ///< the series that is being entered gets the pumps in memory
    bool changed_ = false;
    bool droppedChanges_ = false;
    std::int16_t labelledType_ = 0;
    int shownManufacturer_ = 0, shownSeries_ = 0, shownTarget_ = 0;
    /// What the information panel has shown first: all else in it has been typed.
    PumpManufacturerInfo givenManufacturer_;
    PumpSeriesInfo givenSeries_;
    std::vector<std::string> savedStale_;
};

}  // namespace varnholt
