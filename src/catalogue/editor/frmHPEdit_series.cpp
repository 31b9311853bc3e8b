// SPDX-License-Identifier: GPL-3.0-or-later
// The lists of manufacturers and series, and the series in memory.
#include <utility>

#include "basis/file_system.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "catalogue/fitting/fit_quality.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/editor_messages.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

/// An entry of a list: its text with a blank behind it.
std::string entry(const std::string& name) { return name + " "; }

}  // namespace

frmHPEdit::Panel frmHPEdit::panel() const {
    if (control("PumpInfoPicture").visible()) return Panel::information;
    return control("PumpDataPicture").visible() ? Panel::data : Panel::nothing;
}

void frmHPEdit::showPanel(Panel panel) {
    if (panel != Panel::information) copiesPumps_ = false;
    control("NoInfoPicture").setVisible(panel == Panel::nothing);
    control("PumpInfoPicture").setVisible(panel == Panel::information);
    control("PumpDataPicture").setVisible(panel == Panel::data);
    enableCommands();
}

/// The commands for pumps rest while manufacturer and series are being entered.
void frmHPEdit::enableCommands() {
    const bool any = !document_.pumps.empty();
    const bool free = place_ && panel() != Panel::information;
    for (const char* command :
         {"CopyCommand", "RemoveCommand", "ReorderCommand", "ClearCommand", "SummaryCommand"})
        control(command).setEnabled(free && any);
    for (const char* command : {"NewCommand", "EditSeriesCommand", "DeleteSeriesCommand"})
        control(command).setEnabled(free);
    control("PumpDataTabs").setEnabled(any);
    for (const char* frame : pageFrames) control(frame).setEnabled(any);
}

void frmHPEdit::fillManufacturers() {
    std::vector<std::string> choices{entry(text(Text::chooseManufacturer)),
                                     entry(text(Text::addToCatalogue))};
    std::vector<std::string> targets{entry(text(Text::chooseWhatToAddTo)),
                                     entry(text(Text::newManufacturer))};
    for (const PumpList& manufacturer : index_) {
        choices.push_back(entry(manufacturer.mfgInfo.mfgName));
        targets.push_back(entry(manufacturer.mfgInfo.mfgName));
    }
    control("MfgCombo").setItems(std::move(choices)).setIndex(0);
    control("SelectMfgCombo").setItems(std::move(targets)).setIndex(0);
    fillSeries({});
}

void frmHPEdit::fillSeries(std::optional<std::size_t> manufacturer) {
    std::vector<std::string> choices;
    if (!manufacturer) {
        choices.push_back(entry(text(Text::noSeriesYet)));
    } else {
        choices.push_back(entry(text(Text::chooseSeries)));
        for (const PumpSeriesInfo& series : index_[*manufacturer].seriesInfo)
            choices.push_back(entry(series.seriesName));
    }
    control("SeriesCombo").setItems(std::move(choices)).setIndex(0);
}

/// The lists tell which series is in memory.
void frmHPEdit::showSelection() {
    if (place_) {
        control("MfgCombo").setIndex(static_cast<int>(place_->manufacturer) + hintEntries);
        fillSeries(place_->manufacturer);
        control("SeriesCombo").setIndex(static_cast<int>(place_->series + 1));
    } else {
        control("MfgCombo").setIndex(0);
        fillSeries({});
    }
    rememberSelection();
}

void frmHPEdit::rememberSelection() {
    shownManufacturer_ = control("MfgCombo").index();
    shownSeries_ = control("SeriesCombo").index();
}

/// Asks for what would be lost with the panel on show and with the series in memory.
bool frmHPEdit::mayLeave() { return mayDropInformation() && askForSave(); }

void frmHPEdit::MfgCombo_Click() {
    if (!mayLeave()) {
        control("MfgCombo").setIndex(shownManufacturer_);
        return;
    }
    const std::string chosen = control("MfgCombo").text();
    std::optional<std::size_t> manufacturer;
    for (std::size_t m = 0; m < index_.size() && !manufacturer; ++m)
        if (entry(index_[m].mfgInfo.mfgName) == chosen) manufacturer = m;
    fillSeries(manufacturer);
    if (manufacturer && index_[*manufacturer].seriesInfo.size() == 1) {
        control("SeriesCombo").setIndex(1);
        openSeries({*manufacturer, 0});
    } else if (!manufacturer && chosen == entry(text(Text::addToCatalogue))) {
        // What has been dropped does not come back with the panel behind this one.
        if (std::exchange(droppedChanges_, false) && place_)
            takeSeries(*place_, readSelectedSeries());
        editingSeriesInfo = copiesPumps_ = false;
        control("SelectMfgCombo").setIndex(0).setEnabled(true);
        shownTarget_ = 0;
        control("InsidePumpInfoPicture").setVisible(false);
        showPanel(Panel::information);
    } else {
        closeSeries();
    }
    droppedChanges_ = false;
    rememberSelection();
}

void frmHPEdit::SeriesCombo_Click() {
    if (!mayLeave()) {
        control("SeriesCombo").setIndex(shownSeries_);
        return;
    }
    droppedChanges_ = false;
    const std::string chosen = control("SeriesCombo").text();
    const std::string maker = control("MfgCombo").text();
    for (std::size_t m = 0; m < index_.size(); ++m) {
        if (entry(index_[m].mfgInfo.mfgName) != maker) continue;
        for (std::size_t s = 0; s < index_[m].seriesInfo.size(); ++s)
            if (entry(index_[m].seriesInfo[s].seriesName) == chosen) {
                openSeries({m, s});
                return rememberSelection();
            }
        break;
    }
    closeSeries();
    rememberSelection();
}

/// Yes saves, No drops the changes. False when the command at hand must stop.
bool frmHPEdit::askForSave() {
    if (!changed_) return true;
    switch (platform().question(Buttons::yesNoCancel, text(Text::saveChangesTitle),
                                text(Text::savePumpsQuestion))) {
        case Answer::yes:
            SaveCommand_Click();
            return !changed_;
        case Answer::no:
            droppedChanges_ = true;
            setChanged(false);
            return true;
        default:
            return false;
    }
}

const PumpManufacturerInfo& frmHPEdit::selectedManufacturer() const {
    return index_[place_->manufacturer].mfgInfo;
}

const PumpSeriesInfo& frmHPEdit::selectedSeries() const {
    return index_[place_->manufacturer].seriesInfo[place_->series];
}

std::string frmHPEdit::seriesPath() const {
    return pumpSeriesPath(joinPath(main().MainDirectory, "pumps"), selectedSeries().FileName);
}

/// No name in the index leads out of the folder.
SeriesFile frmHPEdit::readSelectedSeries() const {
    return staysInFolder(selectedSeries().FileName) ? readSeriesFile(platform(), seriesPath())
                                                    : SeriesFile{};
}

/// Before the file of a series becomes that of this window: nothing where it is not to be opened.
/// A copy stays without a file until its own series has been entered.
std::optional<OpenFile> frmHPEdit::guardSeries(const PumpSeriesInfo& series) {
    OpenFile file;
    if (!staysInFolder(series.FileName)) return file;
    const std::string pumps = joinPath(main().MainDirectory, "pumps");
    try {
        const OpenAs as = guardFile(main(), pumpSeriesPath(pumps, series.FileName), file);
        if (as == OpenAs::notAtAll) return std::nullopt;
        file.asksForName = as == OpenAs::copy;
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, error.message());
        return std::nullopt;
    }
    return file;
}

/// Opens a series, unless another program has it open and the user cancels.
void frmHPEdit::openSeries(const SeriesPlace& place) {
    // The series may be the one in memory: this program's own mark is none of another.
    lock_.release();
    std::optional<OpenFile> guarded =
        guardSeries(index_[place.manufacturer].seriesInfo[place.series]);
    if (!guarded) {
        closeSeries();
        control("SeriesCombo").setIndex(0);
        return;
    }
    lock_ = std::move(guarded->lock);
    readOnly_ = guarded->readOnly || guarded->asksForName;
    showSeries(place);
    if (guarded->asksForName && !document_.pumps.empty()) enterCopy();
}

/// Reads the file of a series; what there is of it comes into memory.
void frmHPEdit::showSeries(const SeriesPlace& place) {
    place_ = place;
    pumpInfoFrameMode.clear();
    editingSeriesInfo = false;
    SeriesFile file = readSelectedSeries();
    const int error = file.error;
    const bool missing = !file.known && error == 0;
    takeSeries(place, std::move(file));
    showPanel(document_.pumps.empty() ? Panel::nothing : Panel::data);
    if (missing)
        show(MessageIcon::exclamation, text(Text::pumpDataMissing) + "\r\r" + seriesPath());
    else if (error == 53 || error == 62)
        show(MessageIcon::exclamation, RunTimeError(error).message());
}

void frmHPEdit::takeSeries(const SeriesPlace& place, SeriesFile file) {
    place_ = place;
    document_.pumps.assign(file.series.models.begin(), file.series.models.end());
    file.series = {};
    file_ = std::move(file);
    recalculationNeeded = false;
    setChanged(false);
    savedStale_.clear();
    listPumps(document_.pumps.empty() ? -1 : 0);
    startHistory();
}

bool frmHPEdit::takeRecovered(std::string_view bytes, const std::string& path,
                              const std::optional<KnownFile>& known) {
    PumpSeries series;
    try {
        readPumpSeries(bytes, series);
    } catch (const RunTimeError&) {
        // What could be read of them is all that there is.
    }
    const std::string pumps = joinPath(main().MainDirectory, "pumps");
    for (std::size_t m = 0; m < index_.size(); ++m)
        for (std::size_t s = 0; s < index_[m].seriesInfo.size(); ++s) {
            if (pumpSeriesPath(pumps, index_[m].seriesInfo[s].FileName) != path) continue;
            LockAttempt attempt = lockFile(path);
            lock_ = std::move(attempt.lock);
            readOnly_ = attempt.holder.has_value();
            showSeries({m, s});
            SeriesFile file = std::move(file_);
            file.series = std::move(series);
            if (known) file.known = known;
            takeSeries({m, s}, std::move(file));
            showSelection();
            showPanel(document_.pumps.empty() ? Panel::nothing : Panel::data);
            startHistory(false);
            setChanged(true);
            refreshNotice();
            return true;
        }
    return false;
}

void frmHPEdit::closeSeries() {
    place_.reset();
    editingSeriesInfo = false;
    document_.pumps.clear();
    file_ = {};
    lock_.release();
    readOnly_ = false;
    pumpInfoFrameMode.clear();
    setChanged(false);
    savedStale_.clear();
    listPumps(-1);
    showPanel(Panel::nothing);
    startHistory();
}

std::function<std::string()> frmHPEdit::seriesText() const {
    PumpSeries series{selectedSeries(), selectedManufacturer(), {}};
    return [series = std::move(series), pumps = document_.pumps]() mutable {
        series.models.clear();
        for (const Shared<pump>& model : pumps) series.models.push_back(*model);
        return pumpSeriesText(series);
    };
}

namespace {

bool isDamaged(const SeriesFile& file) {
    return file.error != 0 || !file.report.isWhole() || file.other != FileKind::unknown;
}

}  // namespace

/// A file that is not as it was read, or not all of which was read, goes only when the user says
/// so.
bool frmHPEdit::mayReplaceFile() {
    if (isDamaged(file_))
        return mayReplace(filledIn(text(Text::damagedFileReplaced), {seriesPath()}));
    return mayReplaceOther(Text::seriesFileChanged, seriesPath(), file_.known);
}

bool frmHPEdit::mayReplaceOther(int question, const std::string& path,
                                const std::optional<KnownFile>& known) {
    const std::optional<FileStamp> now = stampOfOther(platform(), path, known);
    if (!now) return true;
    const std::string before =
        known ? platform().timeText(known->stamp.modified) : text(Text::fileWasNotThere);
    return mayReplace(filledIn(text(question), {path, before, platform().timeText(now->modified)}));
}

bool frmHPEdit::mayReplace(const std::string& question) {
    return platform().question(Buttons::yesNo, text(Text::replaceFileTitle), question) ==
           Answer::yes;
}

bool frmHPEdit::attemptToWrite(const std::string& path, const std::function<void()>& write) {
    try {
        write();
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, text(Text::pumpsNotWritten) + "\n\n" + path + "\n\n" +
                                           RunTimeError(error.number()).message());
        return false;
    }
    return true;
}

void frmHPEdit::SaveCommand_Click() {
    if (!place_) return;
    if (readOnly_) return enterCopy();
    const std::string& FileName = selectedSeries().FileName;
    if (!staysInFolder(FileName))
        return show(MessageIcon::exclamation, filledIn(text(Text::fileNameUnusable), {FileName}));
    if (!mayReplaceFile()) return;
    const std::string bytes = seriesText()();
    FileStamp written;
    if (!attemptToWrite(seriesPath(), [&] { written = replaceWholeFile(seriesPath(), bytes); }))
        return;
    file_ = {};
    file_.known = varnholt::knownFile(written, bytes);
    setChanged(false);
    markSaved();
    for (const Shared<pump>& model : document_.pumps)
        if (staleCurves(*model).any()) savedStale_.push_back(model->name);
    platform().tell(filledIn(text(Text::savedAs), {seriesPath()}));
    catalogueWritten_();
}

bool frmHPEdit::writeIndex(const CatalogueIndex& index) {
    const std::string path = pumpIndexPath(joinPath(main().MainDirectory, "pumps"));
    const bool may = damagedIndex_.isNone()
                         ? mayReplaceOther(Text::indexFileChanged, path, indexKnown_)
                         : mayReplace(filledIn(text(Text::damagedFileReplaced), {path}));
    if (!may) return false;
    const std::string bytes = pumpIndexText(index);
    FileStamp written;
    if (!attemptToWrite(path, [&] { written = replaceWholeFile(path, bytes); })) return false;
    damagedIndex_ = {};
    indexKnown_ = varnholt::knownFile(written, bytes);
    return true;
}

}  // namespace varnholt
