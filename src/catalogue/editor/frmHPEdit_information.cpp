// SPDX-License-Identifier: GPL-3.0-or-later
// The panel in which manufacturer and series are chosen, entered and changed.
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "forms/text_numbers/editor_messages.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

constexpr int addressLines = 5;

bool isBlank(const std::string& text) {
    return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

}  // namespace

void frmHPEdit::lockManufacturer(bool locked) {
    for (int i = 0; i < addressLines; ++i)
        element("ManufacturerAddressText", i)
            .setLocked(locked)
            .setBackcolor(locked ? colours::buttonFace : colours::window)
            .setForecolor(locked ? colours::greyed : colours::black);
}

void frmHPEdit::showManufacturer(const PumpManufacturerInfo& manufacturer) {
    const std::string* lines[] = {&manufacturer.mfgName, &manufacturer.addressLine1,
                                  &manufacturer.addressLine2, &manufacturer.country,
                                  &manufacturer.phone};
    for (int i = 0; i < addressLines; ++i) element("ManufacturerAddressText", i).setText(*lines[i]);
}

PumpManufacturerInfo frmHPEdit::typedManufacturer() const {
    const auto line = [this](std::size_t i) {
        return control(elementName("ManufacturerAddressText", i)).text();
    };
    return {line(0), line(1), line(2), line(3), line(4)};
}

PumpSeriesInfo frmHPEdit::typedSeries() const {
    return {control("SeriesInfoText(0)").text(), control("SeriesInfoText(1)").text(),
            control("SeriesInfoDTPicker").date()};
}

/// Whether what has been typed into the panel may go, where anything has.
bool frmHPEdit::mayDropInformation() {
    const bool shown = panel() == Panel::information && control("InsidePumpInfoPicture").visible();
    if (!shown || (typedManufacturer() == givenManufacturer_ && typedSeries() == givenSeries_))
        return true;
    return platform().question(Buttons::yesNo, text(Text::pumpInformation),
                               text(Text::dropInformationQuestion)) == Answer::yes;
}

void frmHPEdit::revealInformation(const PumpManufacturerInfo& manufacturer,
                                  const PumpSeriesInfo& series) {
    showManufacturer(manufacturer);
    control("SeriesInfoText(0)").setText(series.seriesName);
    control("SeriesInfoText(1)").setText(series.FileName);
    control("SeriesInfoDTPicker").setDate(series.currentDate);
    givenManufacturer_ = typedManufacturer();
    givenSeries_ = typedSeries();
    control("InsidePumpInfoPicture").setVisible(true);
}

void frmHPEdit::SelectMfgCombo_Click() {
    if (!mayDropInformation()) {
        control("SelectMfgCombo").setIndex(shownTarget_);
        return;
    }
    const int chosen = shownTarget_ = control("SelectMfgCombo").index();
    control("InsidePumpInfoPicture").setVisible(chosen > 0);
    if (chosen <= 0) return;
    editingSeriesInfo = false;
    const std::string name = control("SelectMfgCombo").text();
    std::optional<std::size_t> manufacturer;
    for (std::size_t m = 0; chosen >= hintEntries && m < index_.size() && !manufacturer; ++m)
        if (index_[m].mfgInfo.mfgName + " " == name) manufacturer = m;
    pumpInfoFrameMode = manufacturer ? "newSeries" : "newMfg";
    lockManufacturer(manufacturer.has_value());
    revealInformation(manufacturer ? index_[*manufacturer].mfgInfo : PumpManufacturerInfo{},
                      {{}, {}, platform().today()});
    control("ProceedCommand").setCaption(text(Text::proceedWithInformation));
}

void frmHPEdit::EditSeriesCommand_Click() {
    if (!place_) return;
    editingSeriesInfo = true;
    pumpInfoFrameMode.clear();
    lockManufacturer(false);
    control("SelectMfgCombo")
        .setIndex(static_cast<int>(place_->manufacturer) + hintEntries)
        .setEnabled(false);
    SetPumpInfoFrameVariables();
    control("ProceedCommand").setCaption(text(Text::applyInformation));
    showPanel(Panel::information);
}

void frmHPEdit::SetPumpInfoFrameVariables() {
    revealInformation(selectedManufacturer(), selectedSeries());
}

void frmHPEdit::finishFileName() {
    Control& field = control("SeriesInfoText(1)");
    field.setText(withoutExtension(field.text()));
}

/// The first thing that is wrong with what has been entered; empty for nothing.
std::string frmHPEdit::faultOfInformation() const {
    const PumpManufacturerInfo maker = typedManufacturer();
    const PumpSeriesInfo series = typedSeries();
    if (isBlank(maker.mfgName) || isBlank(series.seriesName) || isBlank(series.FileName))
        return text(Text::informationMissing);
    const bool editing = editingSeriesInfo && place_;
    const auto own = editing ? std::optional(place_->manufacturer) : std::nullopt;
    if (pumpInfoFrameMode != "newSeries" && isManufacturerTaken(index_, maker.mfgName, own))
        return text(Text::manufacturerTaken);
    const auto under = editing ? own : findManufacturer(index_, maker.mfgName);
    if (under && isSeriesTaken(index_[*under], series.seriesName,
                               editing ? std::optional(place_->series) : std::nullopt))
        return text(Text::seriesTaken);
    if (isFileTaken(index_, series.FileName, editing ? place_ : std::nullopt))
        return text(Text::fileNameTaken);
    // A name that stands in the catalogue already has been found usable.
    const bool sameFile = editing && series.FileName == selectedSeries().FileName;
    if (!sameFile && !isUsableFileName(series.FileName))
        return filledIn(text(Text::fileNameUnusable), {series.FileName});
    // A file that no series of the catalogue has is not the copy's to replace.
    const std::string pumps = joinPath(main().MainDirectory, "pumps");
    if (copiesPumps_ && fileExists(pumpSeriesPath(pumps, series.FileName)))
        return text(Text::fileNameTaken);
    if (!editing && under && index_[*under].seriesInfo.size() >= seriesPerManufacturer)
        return text(Text::tooManySeries);
    return {};
}

void frmHPEdit::ProceedCommand_Click() {
    finishFileName();
    const std::string fault = faultOfInformation();
    if (!fault.empty()) return show(MessageIcon::exclamation, fault);
    if (editingSeriesInfo && place_)
        changeSeries();
    else
        enterSeries();
}

/// The pumps in memory become a series of their own, of a manufacturer that is proposed.
void frmHPEdit::enterCopy() {
    if (copiesPumps_) return;
    shownTarget_ = static_cast<int>(place_->manufacturer) + hintEntries;
    control("SelectMfgCombo").setIndex(shownTarget_).setEnabled(true);
    editingSeriesInfo = false;
    pumpInfoFrameMode = "newSeries";
    lockManufacturer(true);
    revealInformation(selectedManufacturer(), {{}, {}, platform().today()});
    control("ProceedCommand").setCaption(text(Text::proceedWithInformation));
    copiesPumps_ = true;
    showPanel(Panel::information);
}

/// A new series starts with an empty file, with the pumps of a file that is there already, or with
/// copies of those in memory.
void frmHPEdit::enterSeries() {
    CatalogueIndex index = index_;
    const PumpManufacturerInfo maker = typedManufacturer();
    const PumpSeriesInfo series = typedSeries();
    const auto known =
        pumpInfoFrameMode == "newSeries" ? findManufacturer(index, maker.mfgName) : std::nullopt;
    const SeriesPlace place =
        known ? insertSeries(index, *known, series) : insertManufacturer(index, maker, series);
    const std::string pumps = joinPath(main().MainDirectory, "pumps");
    const std::string path = pumpSeriesPath(pumps, series.FileName);
    std::optional<OpenFile> guarded = guardSeries(series);
    if (!guarded) return;
    const bool found = fileExists(path), copies = copiesPumps_;
    PumpSeries first{series, maker, {}};
    if (copies)
        for (const Shared<pump>& model : document_.pumps) first.models.push_back(*model);
    // The file first: an index must not list a series whose file could not be made.
    if (!found && !attemptToWrite(path, [&] { WritePumpSeries(pumps, first); })) return;
    if (!writeIndex(index)) {
        // Else the same copy could not be entered once more.
        if (copies) removeFile(path);
        return;
    }
    index_ = std::move(index);
    lock_ = std::move(guarded->lock);
    readOnly_ = guarded->readOnly || guarded->asksForName;
    SeriesFile file = readSeriesFile(platform(), path);
    const int error = file.error;
    const bool otherHead =
        found && (file.series.mfgInfo != maker || file.series.seriesInfo != series);
    takeSeries(place, std::move(file));
    pumpInfoFrameMode = found ? "Return" : "";
    fillManufacturers();
    showSelection();
    showPanel(Panel::data);
    // Its file still has the names that it was written under.
    if (otherHead && !document_.pumps.empty()) {
        setChanged(true);
        startHistory(false);
    }
    if (error == 53 || error == 62) show(MessageIcon::exclamation, RunTimeError(error).message());
    catalogueWritten_();
}

void frmHPEdit::changeSeries() {
    CatalogueIndex index = index_;
    PumpList& manufacturer = index[place_->manufacturer];
    PumpSeriesInfo& series = manufacturer.seriesInfo[place_->series];
    const bool otherFile = series.FileName != typedSeries().FileName;
    manufacturer.mfgInfo = typedManufacturer();
    series = typedSeries();
    const bool otherNames =
        manufacturer.mfgInfo != selectedManufacturer() || series != selectedSeries();
    std::optional<OpenFile> guarded = otherFile ? guardSeries(series) : std::nullopt;
    if ((otherFile && !guarded) || !writeIndex(index)) return;
    index_ = std::move(index);
    for (Shared<pump>& model : document_.pumps) {
        model.edit().mfgInfo = selectedManufacturer();
        model.edit().seriesInfo = selectedSeries();
    }
    if (guarded) {
        file_ = {};
        lock_ = std::move(guarded->lock);
        readOnly_ = guarded->readOnly || guarded->asksForName;
    }
    // Under the new name there is no file yet, not even for a series without pumps.
    if (otherFile || (otherNames && !document_.pumps.empty())) setChanged(true);
    editingSeriesInfo = false;
    fillManufacturers();
    showSelection();
    showPanel(Panel::data);
    startHistory(!changed_);
    catalogueWritten_();
}

void frmHPEdit::CancelCommand_Click() {
    editingSeriesInfo = false;
    if (pumpInfoFrameMode == "Return" || !place_) {
        closeSeries();
        fillManufacturers();
        return showSelection();
    }
    pumpInfoFrameMode.clear();
    showPanel(Panel::data);
    showSelection();
}

void frmHPEdit::DeleteSeriesCommand_Click() {
    if (!place_ || platform().question(Buttons::yesNo, text(Text::deleteSeriesTitle),
                                       text(Text::deleteSeriesQuestion)) != Answer::yes)
        return;
    CatalogueIndex index = index_;
    removeSeries(index, *place_);
    if (!writeIndex(index)) return;
    index_ = std::move(index);
    closeSeries();
    fillManufacturers();
    showSelection();
    catalogueWritten_();
}

}  // namespace varnholt
