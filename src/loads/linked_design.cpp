// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/linked_design.h"

#include <algorithm>
#include <utility>

#include "frame/varnmain.h"
#include "loads/links.h"
#include "loads/loads_window.h"
#include "loads/zone_values.h"

namespace varnholt {
namespace {

constexpr int blinkMilliseconds = 250;

/// Equal in everything but the name, which is only the place in the list.
bool sameLoads(const Zone& a, const Zone& b) {
    return a.gains == b.gains && a.hours == b.hours && a.days == b.days && a.title == b.title &&
           a.pump == b.pump;
}

/// The lamp of a link burns brighter while loads are being transferred.
void shine(Form& window, bool bright) {
    Control& lamp = window.element("imgLinkLight", window.formName() == "frmAvgBlock" ? 8 : 0);
    if (bright) lamp.setVisible(true);
    lamp.setBold(bright);
}

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

LinkedDesign::LinkedDesign(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot)
    : DesignDocument(std::move(formName), kind, main, slot) {
    registerLoadsValues();
}

void LinkedDesign::registerLoadsValues() {
    Values& values = publicValues();
    values.add("linkType", &linkType);
    values.add("zoneNumber", &zoneNumber);
    values.add("zoneCount", &zoneNumber);
    values.add("activeSeries", &activeSeries);
    values.add("workingZoneFile", &workingZoneFile);
    values.add("workingZoneDirectory", &workingZoneDirectory);
    values.add("workingFileCheck", &workingFileCheck);
    values.add("zoneSaveCancelled", &zoneSaveCancelled);
    values.addArray("inletTemp", &inletTemp);
    values.addArray("inletLoadAirTemp", &inletLoadAirTemp);
    values.addArray("inletLoadWaterTemp", &inletLoadWaterTemp);
    values.addArray("minflowRate", &minflowRate);
    values.add("flowRate", &flowRate);
    values.add("LoadsHome", 0, [this](const Values::Indices&) {
        return LoadsHome == nullptr ? std::string() : LoadsHome->formName();
    });
    addZoneValues(values, ZoneList);
}

void LinkedDesign::addLinkLights() {
    for (const int element : {0, 8, 6})
        add("imgLinkLight(" + std::to_string(element) + ")", ControlKind::image);
    showLinkLight();
}

void LinkedDesign::showLinkLight() {
    const bool average = linkType == "frmAvgBlock";
    element("imgLinkLight", 0)
        .setEnabled(linkType == "frmZoneManage")
        .setVisible(!linkType.empty());
    element("imgLinkLight", 8).setEnabled(average).setVisible(average);
    element("imgLinkLight", 6).setEnabled(linkType.empty()).setVisible(linkType.empty());
}

std::string LinkedDesign::projectCaption() const {
    const std::size_t dash = caption().find('-');
    return trimmed(dash == std::string::npos ? caption() : caption().substr(dash + 1));
}

void LinkedDesign::TransferLoadsVariablesIn() {
    if (LoadsHome == nullptr || transferring_) return;
    LoadsHome->designLinkID = myID;
    if (!blinkLight()) return;
    if (transferZones()) {
        calculationNeeded();
        loadsChanged();
    }
    if (LoadsHome != nullptr) passProjectData();
}

/// Lets the lights of both windows shine for a moment. False when the user has ended the link in
/// that time, or this window altogether.
bool LinkedDesign::blinkLight() {
    Varnmain& frame = main();
    LoadsWindow* loads = LoadsHome;
    transferring_ = true;
    shine(*this, true);
    shine(*loads, true);
    platform().pause(blinkMilliseconds);
    if (frame.isOpen(loads)) shine(*loads, false);
    if (!frame.isOpen(this)) return false;
    transferring_ = false;
    shine(*this, false);
    return LoadsHome == loads;
}

/// Takes the loads window's zones when they differ. True when they did.
bool LinkedDesign::transferZones() {
    const LoadsWindow& loads = *LoadsHome;
    const auto count = static_cast<std::size_t>(loads.zoneNumber);
    if (ZoneList.size() == count && zoneCount() == loads.zoneNumber &&
        std::equal(ZoneList.begin(), ZoneList.end(), loads.ZoneList.begin(), sameLoads))
        return false;
    ZoneList.assign(loads.ZoneList.begin(),
                    loads.ZoneList.begin() + static_cast<std::ptrdiff_t>(count));
    for (std::size_t i = 0; i < count; ++i)
        ZoneList[i].name = text(2815) + " " + std::to_string(i + 1);
    zoneNumber = loads.zoneNumber;
    activeSeries = loads.activeSeries;
    workingZoneDirectory = loads.workingZoneDirectory;
    workingFileCheck = loads.workingFileCheck;
    workingZoneFile = loads.workingZoneFile;
    flowRate = loads.flowRate;
    inletTemp = loads.inletTemp;
    return true;
}

/// The loads window shows what the design's method uses, and prints under the project's names.
void LinkedDesign::passProjectData() {
    LoadsHome->showHoursAndDays(usesHoursAndDays());
    std::string comments = std::move(LoadsHome->information.comments);
    LoadsHome->information = information;
    LoadsHome->information.comments = std::move(comments);
}

void LinkedDesign::TransferLoadsVariablesOut() {
    if (LoadsHome == nullptr || transferring_) return;
    // The design that read from the window last must not lose changes that it has not seen yet.
    if (LoadsHome->hasUnsavedChanges() && LoadsHome->designLinkID != myID)
        LoadsHome->TransferCall();
    if (LoadsHome == nullptr || !blinkLight()) return;
    LoadsWindow& loads = *LoadsHome;
    loads.designLinkID = myID;
    loads.activeSeries = activeSeries;
    loads.workingZoneDirectory = workingZoneDirectory;
    loads.workingFileCheck = workingFileCheck;
    loads.workingZoneFile = workingZoneFile;
    loads.flowRate = flowRate;
    loads.inletTemp = inletTemp;
    loads.replaceLoads(ZoneList);
    passProjectData();
}

void LinkedDesign::passTemperature(Mode mode) {
    if (LoadsHome == nullptr || LoadsHome->inletTemp[mode] == inletTemp[mode]) return;
    LoadsHome->inletTemp[mode] = inletTemp[mode];
    LoadsHome->SetFluidsTabbedPaneSwitchVariables();
    valuePassed_ = true;
}

void LinkedDesign::passFlow() {
    if (LoadsHome == nullptr || LoadsHome->flowRate == flowRate) return;
    LoadsHome->flowRate = flowRate;
    LoadsHome->SetFluidsTabbedPaneSwitchVariables();
    valuePassed_ = true;
}

void LinkedDesign::refreshLoadsPumps() {
    // A field that was only visited leaves a selection made by hand alone.
    if (!std::exchange(valuePassed_, false) || LoadsHome == nullptr) return;
    if (!LoadsHome->pumpsAreBeingSelected()) LoadsHome->LOUpdatePumpsCommand_Click();
}

void LinkedDesign::switchLinkedUnits() {
    if (LoadsHome == nullptr || LoadsHome->units() == units()) return;
    if (namesDesign(*LoadsHome, *this))
        linkedSetMetric(*this, *LoadsHome);
    else
        control("MetricCheck").setChecked(LoadsHome->units() == UnitSystem::metric);
}

void LinkedDesign::activated() {
    DesignDocument::activated();
    if (LoadsHome != nullptr && LoadsHome->hasUnsavedChanges() && namesDesign(*LoadsHome, *this))
        TransferLoadsVariablesIn();
}

void LinkedDesign::unloaded() {
    cleanupLinks(*this);
    DesignDocument::unloaded();
}

}  // namespace varnholt
