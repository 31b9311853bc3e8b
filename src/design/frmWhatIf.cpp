// SPDX-License-Identifier: GPL-3.0-or-later
// The window of What If: its life, and what its figures start from.
#include "design/frmWhatIf.h"

#include <algorithm>
#include <utility>

#include "design/frmBHDesign.h"
#include "design/frmHZDesign.h"
#include "design/frmSWDesign.h"
#include "design/whatIf/what_if_values.h"
#include "forms/text_numbers/what_if_window.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

/// A project is called by its name, else by its file, else as its window is.
template <class Design>
std::string shortNameOf(const Design& design) {
    const std::string& project = design.information().projectName;
    if (!project.empty()) return project;
    const std::string& file = design.FileName;
    if (file.empty()) return design.caption();
    return file.substr(file.find_last_of("/\\") + 1);
}

}  // namespace

frmWhatIf::frmWhatIf(frmBHDesign& design) : BesideDesign("frmWhatIf", Text::whatIfTitle, design) {
    addControls();
    registerValues();
}

void frmWhatIf::lookAgain() {
    listAlternatives();
    fallBehind();
}

void frmWhatIf::unloaded() { design().forgetWhatIfWindow(); }

WhatIfInputs& frmWhatIf::inputs() const { return design().whatIfInputs(); }

std::string frmWhatIf::nameOfDesign() const { return shortNameOf(design()); }

std::vector<Notice> frmWhatIf::notices() {
    if (const auto refused = fields().refused()) return {refusedNotice(*refused)};
    return {};
}

frmWhatIf::Page frmWhatIf::page() const {
    return static_cast<Page>(std::max(0, control("WITabs").index()));
}

std::optional<frmWhatIf::Page> frmWhatIf::pageOf(const Control& control) const {
    const auto here = [&](const auto& each) { return each.get() == &control; };
    const auto place = static_cast<std::size_t>(
        std::find_if(controls().begin(), controls().end(), here) - controls().begin());
    if (place < pageEnds_.front() || place >= pageEnds_.back()) return std::nullopt;
    const auto end = std::upper_bound(pageEnds_.begin(), pageEnds_.end(), place);
    return static_cast<Page>(end - pageEnds_.begin() - 1);
}

void frmWhatIf::isRead(const Control& control) { read_ = pageOf(control); }

std::vector<Alternative> frmWhatIf::otherDesigns() const {
    std::vector<Alternative> others;
    for (ChildWindow* window : main().windows()) {
        if (window == &design()) continue;
        if (const auto* bores = dynamic_cast<frmBHDesign*>(window))
            others.push_back(
                {shortNameOf(*bores), AlternativeKind::borehole, bores->presentCase().design, {}});
        else if (const auto* trenches = dynamic_cast<frmHZDesign*>(window))
            others.push_back({shortNameOf(*trenches), AlternativeKind::horizontal, std::nullopt,
                              loopOf(trenches->results())});
        else if (const auto* water = dynamic_cast<frmSWDesign*>(window))
            others.push_back({shortNameOf(*water), AlternativeKind::surfaceWater, std::nullopt,
                              loopOf(water->results())});
    }
    return others;
}

void frmWhatIf::listAlternatives() {
    std::vector<std::string> names{nameOfDesign()};
    for (const KeptAlternative& each : inputs().alternatives) names.push_back(each.name);
    for (const ChildWindow* window : main().windows())
        if (const auto* other = dynamic_cast<const GroundDesign*>(window);
            other != nullptr && other != &design())
            names.push_back(shortNameOf(*other));
    showLines("WVList", std::move(names));
    showAlternativeCommands();
}

void frmWhatIf::showLines(const char* name, std::vector<std::string> lines) {
    Control& shown = control(name);
    if (lines == shown.items()) return;
    const int chosen = shown.index();
    shown.setItems(std::move(lines));
    if (chosen >= 0 && static_cast<std::size_t>(chosen) < shown.items().size())
        shown.setIndex(chosen);
}

WhatIfCase frmWhatIf::presentCase() const {
    SecondOpinionCase now = design().presentCase();
    WhatIfCase what{nameOfDesign(),        std::move(now.design),   inputs(),
                    std::move(now.window), std::move(now.imported), {}};
    what.others = otherDesigns();
    return what;
}

const WhatIf& frmWhatIf::figures(bool WhatIfWanted::*part) {
    WhatIfWanted wanted;
    if (part != nullptr) wanted.*part = true;
    late_.advance(presentCase(), wanted, true);
    return known();
}

/// A page needs what it shows and no more. The search goes on behind the figures that stand on
/// every page.
bool frmWhatIf::workLate(bool whole) {
    const int revision = late_.revision(), list = finder_.revision();
    const std::optional<Page> read = std::exchange(read_, std::nullopt);
    const auto asked = [&](Page of) { return page() == of || read == of; };
    WhatIfWanted wanted;
    wanted.decides = asked(decidesPage);
    wanted.sure = asked(surePage);
    wanted.cost = asked(costPage);
    wanted.alternatives = asked(alternativesPage);
    wanted.tower = asked(towerPage);
    const bool found = late_.advance(presentCase(), wanted, whole);
    const bool searched = found || whole ? finder_.advance(whole) : !finder_.isRunning();
    const bool done = found && searched;
    const bool more = revision != late_.revision() || list != finder_.revision();
    if (done || more) showFigures();
    if (more && !done) tellOfMore();
    return done;
}

WhatIfTeller frmWhatIf::teller() const { return {texts(), units(), inputs().currency}; }

WhatIfTeller frmWhatIf::tellerOf(bool WhatIfWanted::*part) const {
    return {texts(), units(), inputs().currency, !late_.knows(part)};
}

TornadoPicture frmWhatIf::tornadoPicture() const {
    return varnholt::tornadoPicture(tellerOf(&WhatIfWanted::decides), known());
}
SurePicture frmWhatIf::surePicture() const {
    return varnholt::surePicture(tellerOf(&WhatIfWanted::sure), known(), inputs());
}
LandPicture frmWhatIf::landPicture() const {
    const std::optional<std::size_t> chosen = chosenField();
    return varnholt::landPicture(teller(), withinLimits(inputs()).land,
                                 chosen ? &finder_.result().fields[*chosen] : nullptr,
                                 finder_.land());
}
FieldsPicture frmWhatIf::fieldsPicture() const {
    return varnholt::fieldsPicture(teller(), finder_.result(), chosenField());
}
CostPicture frmWhatIf::costPicture() const {
    return varnholt::costPicture(tellerOf(&WhatIfWanted::cost), known());
}
TowerPicture frmWhatIf::towerPicture() const {
    return varnholt::towerPicture(tellerOf(&WhatIfWanted::tower), known(),
                                  control("WTJudgeOption(1)").checked());
}

std::string frmWhatIf::descriptionOf(const std::string& image) const {
    if (image == "imgTornado") return describe(tornadoPicture(), texts());
    if (image == "imgSure") return describe(surePicture(), texts());
    if (image == "imgLand") return describe(landPicture(), texts());
    if (image == "imgFields") return describe(fieldsPicture(), texts());
    if (image == "imgCost") return describe(costPicture(), texts());
    return describe(towerPicture(), texts());
}

}  // namespace varnholt
