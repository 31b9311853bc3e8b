// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/ground_design.h"

#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "design/design_tab.h"
#include "design/shared_values.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/files.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {
namespace {

constexpr int overflow = 6;

}  // namespace

GroundDesign::GroundDesign(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot,
                           DesignProject& project, const GroundParts& parts)
    : LinkedDesign(std::move(formName), kind, main, slot, project), parts_(parts) {
    fields().setManner({[this] { return settingUnits; }, [this] { return units(); },
                        [this] { calculationNeeded(); }});
    addFluidValues(publicValues(), parts.fluid);
    addExtraPowerValues(publicValues(), parts.extraPower);
    if (parts.tower != nullptr) addTowerValues(publicValues(), *parts.tower);
    publicValues().add("hybridOn", &hybridOn);
    publicValues().addArray("temporaryInletTemp", &temporaryInletTemp);
}

GroundDesign::~GroundDesign() = default;

bool GroundDesign::towerIsOn() const {
    return hybridOn || (parts_.tower != nullptr && parts_.tower->hybridPercent != 0);
}

void GroundDesign::addWindowControls() {
    add("MetricCheck", ControlKind::check, Text::designMetricSwitch);
    onClick("MetricCheck", [this] { MetricCheck_Click(); });
    addLinkLights();
    addNotice();
    std::vector<std::string> pages;
    for (const int number : pageCaptions()) pages.push_back(text(number));
    add(pagesName(), ControlKind::tabs).setItems(std::move(pages)).setIndex(0);
}

void GroundDesign::load() {
    {
        const RaisedFlag setting(settingUnits);
        if (main().openCall) {
            if (files.readProject) files.readProject();
            projectRead();
        } else {
            setCaption(baseCaption() + " #" + std::to_string(main().windowCounter));
            fillDefaults();
            if (files.readINIFile) files.readINIFile();
            defaultsRead();
        }
    }
    control("MetricCheck").setChecked(main().units() == UnitSystem::metric);
    setLabels();
    setUnitLabels();
    setStale(!main().openCall);
    enableMenuButtons();
}

void GroundDesign::loadsFound(bool stale) {
    projectRead();
    setStale(stale);
}

void GroundDesign::setLabels() {
    for (DesignTab* tab : tabs()) tab->setLabels();
    showInformation();
}

void GroundDesign::setUnitLabels() {
    fields().showCaptions();
    for (DesignTab* tab : tabs()) tab->setUnitLabels();
}

void GroundDesign::MetricCheck_Click() {
    {
        const RaisedFlag setting(settingUnits);
        switchLinkedUnits();
        control("CACalculateCommand").setEnabled(false);
        setUnitLabels();
        control("CACalculateCommand").setEnabled(true);
    }
    main().unitsSwitched(*this);
}

void GroundDesign::CACalculateCommand_Click() {
    droppedError_ = 0;
    try {
        run();
    } catch (const RunTimeError& error) {
        if (tellsError(error.number()))
            show(MessageIcon::exclamation, error.message());
        else
            dropRun(error.number());
    }
    calculationDone();
}

/// No box tells the error: the notice does, and the inputs that led to it count as calculated.
void GroundDesign::dropRun(int errorNumber) {
    droppedError_ = errorNumber;
    runDropped();
}

void GroundDesign::run() {
    TransferLoadsVariablesIn();
    if (!hybridOn) dropTower();
    if (loads().zoneNumber == 0) return tellNoLoads();
    calculate();
}

void GroundDesign::tellNothingToCalculate() { show(MessageIcon::information, text(Text::noLoads)); }

void GroundDesign::tellNoLoads() {
    tellNothingToCalculate();
    if (parts_.tower == nullptr) return;
    // Without a load there is nothing for a tower to take: no heat, no flow, no hours.
    modCalculations::CoolingTower& tower = parts_.tower->tower;
    tower.capacity = tower.flow = tower.hours = 0;
    dropTower();
    showTower();
}

Mode GroundDesign::governingMode() const {
    const ByMode<double> length = lengths();
    return length[cooling] > length[heating] ? cooling : heating;
}

LengthSummary::State GroundDesign::resultsState() const {
    if (!hasResults()) return LengthSummary::State::none;
    return showsOlderResults() ? LengthSummary::State::stale : LengthSummary::State::fresh;
}

void GroundDesign::showGoverningMode() {
    showGoverningMode(governingMode() == cooling ? heating : cooling);
}

void GroundDesign::loadsChanged() {
    try {
        rollUp();
    } catch (const RunTimeError&) {
        // A file may hold a fluid with which no loads add up. They are taken over all the same;
        // the next run says what is wrong.
    }
    fields().showAll("FL");
}

void GroundDesign::showRestored(bool stale) {
    const RaisedFlag setting(settingUnits);
    setLabels();
    setUnitLabels();
    if (!hasResults())
        showNoGoverningMode();
    else
        showGoverningMode();
    if (towerIsOn()) wakeTower();
    setStale(stale);
}

std::vector<Notice> GroundDesign::notices() {
    std::vector<Notice> holding;
    if (damage_.isTold())
        holding.push_back({damageText(texts(), damage_) + " " + text(Text::noticeDoubtedResults)});
    if (!damage_.isNone()) holding.back().text += " " + text(Text::noticeSaveAsksForName);
    if (openFile.asksForName) holding.push_back({text(Text::noticeSaveAsksForName)});
    if (openFile.readOnly)
        holding.push_back({filledIn(text(Text::noticeOpenElsewhere), {FileName})});
    if (!missingZoneFile().empty())
        holding.push_back({filledIn(text(Text::noticeZoneFileMissing), {missingZoneFile()}),
                           text(Text::noticeFindZoneFile), files.findZoneFile});
    if (droppedError_ == overflow) holding.push_back({text(Text::noticeOverflow)});
    if (droppedError_ != 0 && droppedError_ != overflow)
        holding.push_back(
            {filledIn(text(Text::noticeRunTimeError), {RunTimeError(droppedError_).message()})});
    if (const auto refused = fields().refused()) holding.push_back(refusedNotice(*refused));
    if (resultsAreOlder())
        holding.push_back({text(Text::noticeOutOfDate), text(Text::noticeCalculate),
                           [this] { CACalculateCommand_Click(); }});
    return holding;
}

void GroundDesign::enableMenuButtons() {
    for (const auto& [button, entry] : menuButtons_)
        control(button).setEnabled(main().control(entry).enabled());
}

void GroundDesign::activated() {
    LinkedDesign::activated();
    beenHere = true;
    enableMenuButtons();
}

bool GroundDesign::queryClose() { return !files.queryClose || files.queryClose(); }

void GroundDesign::unloaded() {
    main().releaseSlot(kind(), counter);
    // The window itself may be there until another one opens.
    openFile.lock.release();
    LinkedDesign::unloaded();
}

}  // namespace varnholt
