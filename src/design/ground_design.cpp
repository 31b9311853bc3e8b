// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/ground_design.h"

#include <algorithm>

#include "basis/run_time_error.h"
#include "design/design_tab.h"
#include "design/shared_values.h"

namespace varnholt {

GroundDesign::GroundDesign(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot)
    : LinkedDesign(std::move(formName), kind, main, slot) {
    fields().setManner({[this] { return settingUnits; }, [this] { return units(); },
                        [this] { calculationNeeded(); }});
    registerSharedValues();
}

GroundDesign::~GroundDesign() = default;

modCalculations::Hybrid GroundDesign::shownHybrid() const {
    return {towerIsOn(), tower.hybridPercent, 0};
}

void GroundDesign::registerSharedValues() {
    addSharedValues(publicValues(), *this);
    publicValues().add("hybridOn", &hybridOn);
    publicValues().addArray("temporaryInletTemp", &temporaryInletTemp);
}

void GroundDesign::registerRollUp(const LoadsRollUp& rollUp) {
    addRollUpValues(publicValues(), rollUp);
}

void GroundDesign::addWindowControls() {
    add("MetricCheck", ControlKind::check, 2011);
    onClick("MetricCheck", [this] { MetricCheck_Click(); });
    addLinkLights();
    std::vector<std::string> pages;
    for (const int number : pageCaptions()) pages.push_back(text(number));
    add(pagesName(), ControlKind::tabs).setItems(std::move(pages)).setIndex(0);
}

modCalculations::Zones GroundDesign::zones() const {
    // A project whose zone file is missing counts more zones than it has.
    const auto counted = static_cast<std::size_t>(std::max<std::int16_t>(zoneNumber, 0));
    return {ZoneList.data(), std::min(ZoneList.size(), counted)};
}

void GroundDesign::load() {
    settingUnits = true;
    if (main().openCall) {
        if (files.readProject) files.readProject();
    } else {
        setCaption(baseCaption() + " #" + std::to_string(main().windowCounter));
        fillDefaults();
        if (files.readINIFile) files.readINIFile();
    }
    settingUnits = false;
    control("MetricCheck").setChecked(main().units() == UnitSystem::metric);
    setLabels();
    setUnitLabels();
    if (main().openCall)
        calculationDone();
    else
        calculationNeeded();
    enableMenuButtons();
}

void GroundDesign::setLabels() {
    for (DesignTab* tab : tabs()) tab->setLabels();
    showInformation();
}

void GroundDesign::setUnitLabels() {
    for (DesignTab* tab : tabs()) tab->setUnitLabels();
}

void GroundDesign::MetricCheck_Click() {
    const bool wasSetting = settingUnits;
    settingUnits = true;
    switchLinkedUnits();
    control("CACalculateCommand").setEnabled(false);
    setUnitLabels();
    control("CACalculateCommand").setEnabled(true);
    settingUnits = wasSetting;
    main().unitsSwitched(*this);
}

void GroundDesign::CACalculateCommand_Click() {
    // The link's light shines for a moment, and in that time the window may be closed.
    const Varnmain& frame = main();
    try {
        calculate();
    } catch (const RunTimeError& error) {
        constexpr int divisionByZero = 11;
        if (error.number() == divisionByZero) show(MessageIcon::exclamation, error.message());
    }
    if (frame.isOpen(this)) calculationDone();
}

void GroundDesign::enableMenuButtons() {
    for (const auto& [button, entry] : menuButtons_)
        control(button).setEnabled(main().control(entry).enabled());
}

void GroundDesign::activated() {
    // Fresh loads make the link's light shine, and in that time the window may be closed.
    const Varnmain& frame = main();
    LinkedDesign::activated();
    if (!frame.isOpen(this)) return;
    beenHere = true;
    enableMenuButtons();
}

bool GroundDesign::queryClose() { return !files.queryClose || files.queryClose(); }

void GroundDesign::unloaded() {
    main().releaseSlot(kind(), counter);
    LinkedDesign::unloaded();
}

}  // namespace varnholt
