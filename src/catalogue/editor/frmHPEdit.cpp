// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/frmHPEdit.h"

#include <algorithm>
#include <utility>

#include "basis/file_system.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "catalogue/catalogue_values.h"
#include "catalogue/fitting/fit_quality.h"
#include "catalogue/pump_selection.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/editor_messages.h"
#include "forms/text_numbers/files.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

/// What undo brings back. Which pump was on show and which curves were to be fitted again come
/// along and make no difference.
struct EditorState {
    EditedSeries series;
    int shown;
    FitButtons red;
    bool recalculationNeeded;

    friend bool operator==(const EditorState& a, const EditorState& b) {
        return a.series == b.series;
    }
};

class EditorMoment : public StateOf<EditorState> {
 public:
    using StateOf::StateOf;
    std::size_t weightBeside(const DocumentState& earlier) const override {
        constexpr std::size_t pumpInList = sizeof(Shared<pump>), wholePump = sizeof(pump) + 100;
        const PumpsOfSeries& own = value.series.pumps;
        const PumpsOfSeries& others = static_cast<const EditorMoment&>(earlier).value.series.pumps;
        std::size_t bytes = own.size() * pumpInList;
        for (std::size_t i = 0; i < own.size(); ++i)
            if (i >= others.size() || !own[i].isSameAs(others[i])) bytes += wholePump;
        return bytes;
    }
};

void append(std::string& list, const std::string& entry) {
    if (!list.empty()) list += ", ";
    list += entry;
}

}  // namespace

frmHPEdit::frmHPEdit(Varnmain& main, std::function<void()> catalogueWritten)
    : ChildWindow("frmHPEdit", main), catalogueWritten_(std::move(catalogueWritten)) {
    main.HPEditWindowExists = true;
    setCaption(text(Text::pumpEditorTitle));
    registerValues();
    fields().setManner({.codeIsWriting = [this] { return loadingFields[0] || loadingFields[1]; },
                        .units = [this] { return units(); },
                        .changed = {}});
    addControls();
    hookCommands();
    hookFields();
}

void frmHPEdit::registerValues() {
    Values& values = publicValues();
    addIndexValues(values, [this]() -> const CatalogueIndex& { return index_; });
    addModelValues(values, 1, [this](const Values::Indices& i) -> const pump& {
        return *at(document_.pumps, i[0]);
    });
    values.add("pumpInfoFrameMode", &pumpInfoFrameMode);
    values.add("editingSeriesInfo", &editingSeriesInfo);
    values.add("recalculationNeeded", &recalculationNeeded);
    values.addArray("loadingFields", &loadingFields);
    values.addArray("testSourceTemperature", &document_.test.sourceTemperature);
    values.addArray("testSourceFlow", &document_.test.sourceFlow);
    values.addArray("testLoadTemperature", &document_.test.loadTemperature);
    values.addArray("testLoadFlow", &document_.test.loadFlow);
    values.addArray("testCapacity", &results_.capacity);
    values.addArray("testPower", &results_.power);
    values.addArray("testCOP", &results_.COP);
}

void frmHPEdit::load() {
    const RaisedFlag loading(loadingFields[0]);
    // The Units menu switches no window before one has been counted.
    if (main().windowCounter == 0) main().windowCounter = 1;
    control("MetricCheck").setChecked(main().units() == UnitSystem::metric);
    const std::string path = pumpIndexPath(joinPath(main().MainDirectory, "pumps"));
    IndexFile file = readIndexFile(platform(), path);
    index_ = std::move(file.index);
    indexKnown_ = file.known;
    damagedIndex_ = {fileNameOf(path), file.report, file.other};
    if (file.error != 0 && !file.missing) damagedIndex_.report.error = file.error;
    if (file.missing)
        show(MessageIcon::exclamation, text(Text::pumpDataMissing) + "\r\r" + path);
    else if (file.error == 53 || file.error == 62)
        show(MessageIcon::exclamation, RunTimeError(file.error).message());
    fillManufacturers();
    closeSeries();
    showSelection();
    relabel(0);
    fields().showAll("Test");
    refreshJudgements();
}

bool frmHPEdit::queryClose() { return mayLeave(); }

void frmHPEdit::unloaded() {
    main().HPEditWindowExists = false;
    // The window itself may be there until another one opens.
    lock_.release();
}

/// The buttons of curves that wait to be fitted keep their colour.
void frmHPEdit::MetricCheck_Click() {
    const RaisedFlag loading(loadingFields[0]);
    main().unitsSwitched(*this);
    const FitButtons red = redButtons();
    relabel(labelledType_);
    showPump();
    paintFitButtons(red);
}

StatePointer frmHPEdit::state() const {
    return std::make_shared<EditorMoment>(
        EditorState{document_, selectedPump(), redButtons(), recalculationNeeded});
}

void frmHPEdit::restore(const DocumentState& earlier) {
    const EditorState& wanted = static_cast<const EditorMoment&>(earlier).value;
    const RaisedFlag loading(loadingFields[0]);
    document_ = wanted.series;
    const int last = static_cast<int>(document_.pumps.size()) - 1;
    listPumps(std::min(std::max(wanted.shown, 0), last));
    // Showing a pump of another type has taken that type's temperatures.
    document_.test = wanted.series.test;
    fields().showAll("Test");
    refreshTest();
    paintFitButtons(wanted.red);
    recalculationNeeded = wanted.recalculationNeeded;
    if (panel() != Panel::information && place_) showPanel(Panel::data);
    enableCommands();
}

void frmHPEdit::actionEnds(const UserAction& action) {
    refreshTest();
    refreshJudgements();
    ChildWindow::actionEnds(action);
}

void frmHPEdit::setChanged(bool changed) {
    changed_ = changed;
    if (changed) savedStale_.clear();
    control("SaveCommand").setEnabled(changed);
}

void frmHPEdit::markChanged() { setChanged(true); }

std::vector<Notice> frmHPEdit::notices() {
    std::vector<Notice> holding;
    if (const auto refused = fields().refused()) holding.push_back(refusedNotice(*refused));
    if (const pump* shown = shownPump(); shown != nullptr && panel() == Panel::data) {
        const StaleCurves stale = staleCurves(*shown);
        std::string curves;
        if (stale.rating[cooling]) append(curves, text(Text::cooling));
        if (stale.rating[heating]) append(curves, text(Text::heating));
        if (stale.correction[byTemperature]) append(curves, text(Text::loadTemperaturePage));
        if (stale.correction[byFlow]) append(curves, text(Text::loadFlow));
        if (!curves.empty())
            holding.insert(holding.begin(),
                           {filledIn(text(Text::noticeStaleCurves), {curves}),
                            text(Text::noticeFitAction), [this] { fitStaleCurves(); }});
    }
    std::string saved;
    for (const std::string& name : savedStale_) append(saved, name);
    if (!saved.empty()) holding.push_back({filledIn(text(Text::noticeSavedStale), {saved})});
    if (document_.pumps.size() > selectableModels)
        holding.push_back(
            {filledIn(text(Text::noticeManyPumps),
                      {std::to_string(document_.pumps.size()), std::to_string(selectableModels)})});
    FileDamage series{place_ ? fileNameOf(seriesPath()) : std::string(), file_.report, file_.other};
    series.report.error = file_.error;
    if (readOnly_) holding.push_back({filledIn(text(Text::noticeOpenElsewhere), {series.name})});
    for (const FileDamage& damage : {series, damagedIndex_})
        if (damage.isTold()) holding.push_back({damageText(texts(), damage)});
    return holding;
}

}  // namespace varnholt
