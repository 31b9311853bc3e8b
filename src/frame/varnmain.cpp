// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/varnmain.h"

#include <algorithm>
#include <utility>

#include "basis/file_system.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/language.h"
#include "forms/text_numbers/main.h"
#include "frame/design_document.h"
#include "frame/frmAbout.h"
#include "frame/frmSplash.h"
#include "frame/menu_table.h"

namespace varnholt {
namespace {

// The character set of the language's font. Texts are UTF-8 in every language, and so none needs a
// set of its own: 1 is a font's default set, whatever the locale's.
constexpr double defaultCharSet = 1;

bool opensWindow(const std::string& entry) {
    const auto rows = menuTable();
    return std::any_of(rows.begin(), rows.end(),
                       [&](const MenuRow& row) { return row.opensWindow && entry == row.control; });
}

constexpr std::pair<const char*, EditCommand> editCommands[] = {
    {"mnuCut", EditCommand::cut},
    {"mnuCopy", EditCommand::copy},
    {"mnuPaste", EditCommand::paste},
    {"mnuSelectAll", EditCommand::selectAll},
};

}  // namespace

Varnmain::Varnmain(Platform& platform, const Texts& texts, std::string programFolder)
    : Form("Varnmain", platform, texts), MainDirectory(std::move(programFolder)) {
    addMenus();
    addToolbar();
    add("NoticeLabel", ControlKind::label).helpedBy("files#a-damaged-file").setVisible(false);
    registerValues();
    setCommand("Metric", CommandNeeds::nothing, [this] { Metric_Click(); });
    setCommand("English", CommandNeeds::nothing, [this] { English_Click(); });
    setCommand("mnuAbout", CommandNeeds::nothing, [this] { mnuAbout_Click(); });
    setCommand("mnuShowToolbar", CommandNeeds::nothing, [this] { mnuShowToolbar_Click(); });
    setCommand("mnuUndo", CommandNeeds::undo, [this] { mnuUndo_Click(); });
    setCommand("mnuRedo", CommandNeeds::redo, [this] { mnuRedo_Click(); });
    for (const auto& [entry, command] : editCommands)
        setCommand(entry, CommandNeeds::anyWindow,
                   [this, todo = command] { this->platform().edit(todo); });
    setCommand("mnuFileExit", CommandNeeds::nothing, [this] { mnuFileExit_Click(); });
}

Varnmain::~Varnmain() = default;

void Varnmain::start() {
    helpFile = joinPath(MainDirectory, "OnlineHelp/vht.qch");
    setCaption(text(Text::programTitle));
    FontFaceName = text(Text::languageFont);
    control("Metric").setChecked(!FontFaceName.empty());
    control("English").setChecked(FontFaceName.empty());
    openCall = false;
    saveCancelled = false;
    slots_ = {};
    PrintOption = 0;
    refreshCommands();
    splash_ = std::make_unique<frmSplash>(platform(), texts());
    platform().opened(*splash_);
}

void Varnmain::addMenus() {
    for (const MenuRow& row : menuTable()) {
        Control& entry = add(row.control, ControlKind::menu);
        if (row.menu != nullptr) entry.in(row.menu);
        if (row.captionText != 0) entry.setCaption(text(row.captionText));
        if (row.hintText != 0) entry.setTooltip(text(row.hintText));
        if (row.menu != nullptr && row.captionText != 0)
            onClick(row.control, [this, name = std::string(row.control)] { run(name); });
    }
    control("mnuShowToolbar").setChecked(true);
}

void Varnmain::setNotice(const std::string& text) {
    control("NoticeLabel").setCaption(text).setVisible(!text.empty());
}

void Varnmain::addToolbar() {
    add("tbrMain", ControlKind::frame);
    int index = 0;
    for (const ToolRow& row : toolTable()) {
        const std::string name = "tbrMain(" + std::to_string(index++) + ")";
        add(name, ControlKind::button).setTooltip(text(row.tipText)).in("tbrMain");
        onClick(name, [this, command = std::string(row.command)] {
            // The one button for both units changes to the other system.
            const bool toEnglish = command == "Metric" && control("Metric").checked();
            run(toEnglish ? "English" : command);
        });
    }
}

void Varnmain::registerValues() {
    Values& values = publicValues();
    values.add("MainDirectory", &MainDirectory);
    values.add("TempDirectory", &TempDirectory);
    values.add("FontFaceName", &FontFaceName);
    values.add("LocalCharSet", 0, [](const Values::Indices&) { return defaultCharSet; });
    values.add("HHTopicURL", &HHTopicURL);
    values.add("openCall", &openCall);
    values.add("saveCancelled", &saveCancelled);
    values.add("windowCounter", &windowCounter);
    values.add("browserCount", &browserCount);
    values.add("PrintOption", &PrintOption);
    values.add("LinkOption", &LinkOption);
    values.add("TransferOption", &TransferOption);
    values.addArray("transferPLFm", &transferPLFm);
    values.addArray("import1TransferPLFm", &import1TransferPLFm);
    values.add("frmZoneManageWindowExists", &frmZoneManageWindowExists);
    values.add("frmAvgBlockWindowExists", &frmAvgBlockWindowExists);
    values.add("HPEditWindowExists", &HPEditWindowExists);
    values.add("frmDiffusivityCalcExists", &frmDiffusivityCalcExists);
    values.add("frmPumpPowerCalcExists", &frmPumpPowerCalcExists);
    values.add("frmEqvHoursCalcExists", &frmEqvHoursCalcExists);
    values.add("frmImport1Exists", &frmImport1Exists);
    constexpr std::array<const char*, 3> prefix{"bH", "hZ", "sW"};
    for (std::size_t kind = 0; kind < prefix.size(); ++kind) {
        const std::string name = prefix[kind];
        values.addArray(name + "Exists", &slots_[kind].exists);
        values.add(name + "Marker", &slots_[kind].marker);
    }
    values.add("openWindowFiles", 2, [this](const Values::Indices& i) {
        return slots_.at(static_cast<std::size_t>(i[0])).files.at(static_cast<std::size_t>(i[1]));
    });
}

void Varnmain::setCommand(const std::string& entry, CommandNeeds needs, std::function<void()> run) {
    commands_[entry] = {needs, std::move(run)};
    refreshCommands();
}

void Varnmain::explainBy(HelpDesk& desk) {
    helpDesk_ = &desk;
    setHelpDesk(&desk);
}

void Varnmain::run(const std::string& entry) {
    const auto found = commands_.find(entry);
    if (found == commands_.end() || !usable(found->second)) return;
    if (opensWindow(entry)) hideSplash();
    setNotice({});
    try {
        found->second.run();
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, error.message());
    }
    refreshCommands();
}

void Varnmain::open(std::unique_ptr<ChildWindow> window) {
    // One that was closed in the midst of its own handler is still on its way out of it.
    const auto done = [](const auto& gone) { return !gone->isHandling(); };
    closed_.erase(std::remove_if(closed_.begin(), closed_.end(), done), closed_.end());
    hideSplash();
    ChildWindow& opened = *window;
    opened.setHelpDesk(helpDesk_);
    windows_.push_back(std::move(window));
    try {
        opened.load();
    } catch (...) {
        opened.unloaded();
        takeAway(opened);
        refreshCommands();
        throw;
    }
    opened.startHistory();
    opened.refreshNotice();
    platform().opened(opened);
    activate(opened);
}

void Varnmain::activate(ChildWindow& window) {
    if (active_ == &window) return;
    setActive(&window);
    platform().activated(window);
    try {
        window.activated();
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, error.message());
    }
    refreshCommands();
    tellWindows();
}

void Varnmain::tellWindows() {
    ++actionsSoFar_;
    for (ChildWindow* window : windows()) window->windowsChanged();
}

void Varnmain::setActive(ChildWindow* window) {
    active_ = window;
    if (window == nullptr) return;
    activationOrder_.erase(std::remove(activationOrder_.begin(), activationOrder_.end(), window),
                           activationOrder_.end());
    activationOrder_.push_back(window);
    if (window->owner().hasUnitSwitch()) unitsSwitched(window->owner());
}

bool Varnmain::close(ChildWindow& window) {
    if (!isOpen(&window) || !window.queryClose()) return false;
    // The question may have closed it already.
    if (!isOpen(&window)) return true;
    window.unloaded();
    platform().closed(window);
    takeAway(window);
    if (active_ == &window) {
        active_ = nullptr;
        if (!activationOrder_.empty()) activate(*activationOrder_.back());
    }
    refreshCommands();
    tellWindows();
    return true;
}

/// Ends the account of the window; what handler of it may still be running can go to its end.
void Varnmain::takeAway(ChildWindow& window) {
    const auto drop = [&](auto& list) {
        list.erase(std::remove(list.begin(), list.end(), &window), list.end());
    };
    drop(activationOrder_);
    drop(touched_);
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& open) { return open.get() == &window; });
    closed_.push_back(std::move(*at));
    windows_.erase(at);
}

void Varnmain::touch(ChildWindow& window) {
    if (actions_ == 0 || std::count(touched_.begin(), touched_.end(), &window) > 0) return;
    window.beginStep();
    touched_.push_back(&window);
}

int Varnmain::actionNumber(const std::string& visit) {
    if (visit.empty() || visit != lastVisit_) ++actionNumber_;
    lastVisit_ = visit;
    return actionNumber_;
}

void Varnmain::endAction(const std::string& name, const std::string& visit, bool visitEnds,
                         int number) {
    if (visitEnds) lastVisit_.clear();
    ++actionsSoFar_;
    if (--actions_ > 0) return;
    for (ChildWindow* window : std::exchange(touched_, {}))
        window->changedByAnother(name, visit, visitEnds, number);
    for (const auto& window : windows_) window->actionDone();
    refreshUndo();
}

/// What a command of the menu changes is no step of its own unless the command says so.
void Varnmain::actionEnds(const UserAction&) { endAction({}, {}, false, 0); }

std::vector<ChildWindow*> Varnmain::windows() const {
    std::vector<ChildWindow*> open;
    for (const auto& window : windows_) open.push_back(window.get());
    return open;
}

std::vector<ChildWindow*> Varnmain::windowsNamed(const std::string& formName) const {
    std::vector<ChildWindow*> found;
    for (const auto& window : windows_)
        if (window->formName() == formName) found.push_back(window.get());
    return found;
}

ChildWindow* Varnmain::find(const std::string& formName) const {
    if (active_ != nullptr && active_->formName() == formName) return active_;
    const std::vector<ChildWindow*> named = windowsNamed(formName);
    return named.empty() ? nullptr : named.back();
}

ChildWindow* Varnmain::lastActive(const std::function<bool(const ChildWindow&)>& condition) const {
    for (auto window = activationOrder_.rbegin(); window != activationOrder_.rend(); ++window)
        if (condition(**window)) return *window;
    return nullptr;
}

int Varnmain::numberOf(const Form& window) const {
    int number = 0;
    for (const auto& open : windows_) {
        if (open->formName() == window.formName()) ++number;
        if (open.get() == &window) return number;
    }
    return 1;
}

bool Varnmain::isOpen(const Form* window) const {
    return std::any_of(windows_.begin(), windows_.end(),
                       [&](const auto& open) { return open.get() == window; });
}

std::vector<DesignDocument*> Varnmain::designs() const {
    std::vector<DesignDocument*> designs;
    for (const auto& window : windows_)
        if (auto* design = dynamic_cast<DesignDocument*>(window.get())) designs.push_back(design);
    return designs;
}

bool Varnmain::anyDesignOpen() const {
    return std::any_of(slots_.begin(), slots_.end(),
                       [](const DesignSlots& kind) { return kind.count() > 0; });
}

std::int16_t Varnmain::takeSlot(DesignKind kind) {
    if (!anyDesignOpen()) windowCounter = 0;
    for (const DesignKind each : designKinds) compact(each);
    DesignSlots& places = slots(kind);
    const std::size_t next = places.highestUsed() + 1;
    if (next > slotsPerKind) {
        show(MessageIcon::exclamation, text(Text::tooManyDesigns));
        return 0;
    }
    places.marker = static_cast<std::int16_t>(next);
    places.exists[next] = true;
    places.files[next].clear();
    ++windowCounter;
    return places.marker;
}

void Varnmain::releaseSlot(DesignKind kind, std::int16_t slot) {
    DesignSlots& places = slots(kind);
    at(places.exists, slot) = false;
    at(places.files, slot).clear();
    places.marker = slot;
}

std::string& Varnmain::openWindowFiles(DesignKind kind, std::int16_t slot) {
    return at(slots(kind).files, slot);
}

/// Moves used slots down over free ones, so that no used slot lies after a free one.
void Varnmain::compact(DesignKind kind) {
    DesignSlots& places = slots(kind);
    std::size_t next = 1;
    for (std::size_t slot = 1; slot <= slotsPerKind; ++slot) {
        if (!places.exists[slot]) continue;
        if (slot != next) {
            std::swap(places.exists[slot], places.exists[next]);
            std::swap(places.files[slot], places.files[next]);
            reassignSlot(kind, slot, next);
        }
        ++next;
    }
}

void Varnmain::reassignSlot(DesignKind kind, std::size_t from, std::size_t to) {
    for (DesignDocument* design : designs())
        if (design->kind() == kind && design->counter == static_cast<std::int16_t>(from))
            design->counter = static_cast<std::int16_t>(to);
}

void Varnmain::runModal(Form& form) {
    form.setHelpDesk(helpDesk_);
    modal_.push_back(&form);
    platform().runModal(form);
    modal_.pop_back();
}

/// Newest first, as the windows lie on one another; but the designs before all others, so that a
/// project that is saved on the way out still has its link to the loads.
ChildWindow& Varnmain::nextToClose() const {
    const std::vector<DesignDocument*> open = designs();
    return open.empty() ? *windows_.back() : *open.back();
}

bool Varnmain::queryClose() {
    saveCancelled = false;
    const RaisedFlag asking(closing);
    while (!windows_.empty() && close(nextToClose())) continue;
    return windows_.empty();
}

bool Varnmain::usable(const Command& command) const {
    const ChildWindow* owner = ownerInFront();
    switch (command.needs) {
        case CommandNeeds::nothing:
            return true;
        case CommandNeeds::anyWindow:
            return active_ != nullptr;
        case CommandNeeds::design:
            return owner != nullptr && owner->isDesign();
        case CommandNeeds::designOrLoads:
            return owner != nullptr && owner->canSave();
        case CommandNeeds::printable:
            return active_ != nullptr && active_->canPrint();
        case CommandNeeds::undo:
            return owner != nullptr && owner->history().canUndo();
        case CommandNeeds::redo:
            return owner != nullptr && owner->history().canRedo();
    }
    return false;
}

void Varnmain::refreshCommands() {
    const auto enabled = [this](const std::string& entry) {
        const auto found = commands_.find(entry);
        return found != commands_.end() && usable(found->second);
    };
    for (const MenuRow& row : menuTable())
        if (row.menu != nullptr && row.captionText != 0)
            control(row.control).setEnabled(enabled(row.control));
    int index = 0;
    for (const ToolRow& row : toolTable())
        element("tbrMain", index++).setEnabled(enabled(row.command));
    refreshUndo();
}

/// The entries for undo and redo tell what they would do.
void Varnmain::refreshUndo() {
    const auto show = [this](const char* entry, int captionText, bool can,
                             const std::string& step) {
        control(entry)
            .setCaption(text(captionText) + (step.empty() ? "" : " " + step))
            .setEnabled(can);
    };
    const DocumentHistory none;
    const DocumentHistory& history = active_ == nullptr ? none : ownerInFront()->history();
    show("mnuUndo", Text::undo, history.canUndo(), history.undoName());
    show("mnuRedo", Text::redo, history.canRedo(), history.redoName());
}

void Varnmain::unitsSwitched(ChildWindow& window) {
    if (&window != ownerInFront()) return;
    control("Metric").setChecked(window.units() == UnitSystem::metric);
    control("English").setChecked(window.units() == UnitSystem::english);
}

UnitSystem Varnmain::units() const {
    return control("Metric").checked() ? UnitSystem::metric : UnitSystem::english;
}

void Varnmain::Metric_Click() {
    if (control("Metric").checked()) return;
    control("Metric").setChecked(true);
    control("English").setChecked(false);
    if (windowCounter != 0 && active_ != nullptr) ownerInFront()->switchUnits(UnitSystem::metric);
}

void Varnmain::English_Click() {
    if (control("English").checked()) return;
    control("English").setChecked(true);
    control("Metric").setChecked(false);
    if (windowCounter != 0 && active_ != nullptr) ownerInFront()->switchUnits(UnitSystem::english);
}

void Varnmain::mnuAbout_Click() {
    frmAbout about(platform(), texts());
    runModal(about);
}

void Varnmain::mnuShowToolbar_Click() {
    Control& entry = control("mnuShowToolbar");
    entry.setChecked(!entry.checked());
    control("tbrMain").setVisible(entry.checked());
}

void Varnmain::mnuUndo_Click() { ownerInFront()->undo(); }
void Varnmain::mnuRedo_Click() { ownerInFront()->redo(); }

void Varnmain::mnuFileExit_Click() { platform().quit(*this); }

void Varnmain::hideSplash() {
    if (!splash_) return;
    platform().closed(*splash_);
    splash_.reset();
}

}  // namespace varnholt
