// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/linked_design.h"

#include <algorithm>
#include <utility>

#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"
#include "loads/link_light.h"
#include "loads/links.h"
#include "loads/loads_window.h"
#include "loads/zone_values.h"

namespace varnholt {
namespace {

/// The lamp of a link flashes while loads are being transferred.
void flash(Form& window) {
    window.element("imgLinkLight", window.formName() == "frmAvgBlock" ? 8 : 0).flash();
}

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

LinkedDesign::LinkedDesign(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot,
                           DesignProject& project)
    : DesignDocument(std::move(formName), kind, main, slot, project.information), common_(project) {
    registerLoadsValues();
    registerConditions();
}

LinkedDesign::~LinkedDesign() = default;

void LinkedDesign::registerLoadsValues() {
    Values& values = publicValues();
    const ProjectLoads& loads = common_.loads;
    values.add("linkType", &loads.linkType);
    values.add("zoneNumber", &loads.zoneNumber);
    values.add("zoneCount", &loads.zoneNumber);
    values.add("activeSeries", &loads.activeSeries);
    values.add("workingZoneFile", &loads.file.name);
    values.add("workingZoneDirectory", &loads.file.folder);
    values.add("workingFileCheck", &loads.file.exists);
    values.add("zoneSaveCancelled", &zoneSaveCancelled);
    values.add("LoadsHome", 0, [this](const Values::Indices&) {
        return LoadsHome() == nullptr ? std::string() : LoadsHome()->formName();
    });
    values.add("style", &style);
    addZoneValues(values, loads.zones);
    addZoneValues(values, "zoneTemp", zoneTemp);
}

void LinkedDesign::registerConditions() {
    Values& values = publicValues();
    const ProjectConditions& conditions = common_.conditions;
    values.addArray("inletTemp", &conditions.inletTemp);
    values.addArray("inletLoadAirTemp", &conditions.inletLoadAirTemp);
    values.addArray("inletLoadWaterTemp", &conditions.inletLoadWaterTemp);
    values.addArray("minflowRate", &conditions.minflowRate);
    values.add("flowRate", &conditions.flowRate);
}

LoadsWindow* LinkedDesign::LoadsHome() const { return link_ ? &link_->loads() : nullptr; }

void LinkedDesign::joinLoads(LoadsWindow& loads) {
    link_ = std::make_unique<Link>(*this, loads);
    common_.loads.linkType = loads.formName();
    missingZoneFile_.clear();
    loads.setCaption(linkedCaption(loads, *this));
    loads.setLight(true);
    showLinkLight();
    passProjectData();
}

void LinkedDesign::leaveLoads() {
    LoadsWindow* loads = LoadsHome();
    const bool named = link_ && link_->isNamed();
    common_.loads.linkType.clear();
    link_.reset();
    showLinkLight();
    if (loads == nullptr) return;
    if (const Link* next = loads->links().named(); next == nullptr) {
        loads->setCaption(loads->plainTitle());
        loads->setLight(false);
        loads->showHoursAndDays(true);
    } else if (named) {
        loads->setCaption(linkedCaption(*loads, next->design()));
        loads->showHoursAndDays(next->design().usesHoursAndDays());
    }
}

void LinkedDesign::addLinkLights() {
    for (const int element : {0, 8, 6})
        add("imgLinkLight(" + std::to_string(element) + ")", ControlKind::image);
    showLinkLight();
}

void LinkedDesign::showLinkLight() {
    const std::string& linkType = common_.loads.linkType;
    const bool average = linkType == "frmAvgBlock";
    element("imgLinkLight", 0)
        .setEnabled(linkType == "frmZoneManage")
        .setVisible(!linkType.empty());
    element("imgLinkLight", 8).setEnabled(average).setVisible(average);
    element("imgLinkLight", 6).setEnabled(linkType.empty()).setVisible(linkType.empty());
}

std::string LinkedDesign::descriptionOf(const std::string& image) const {
    const auto light = linkLightOf(image);
    if (!light) return DesignDocument::descriptionOf(image);
    return describeLinkLight(*light, control(image).enabled(), texts());
}

std::string LinkedDesign::projectCaption() const {
    const std::size_t dash = caption().find('-');
    return trimmed(dash == std::string::npos ? caption() : caption().substr(dash + 1));
}

void LinkedDesign::TransferLoadsVariablesIn() {
    if (!link_) return;
    link_->read();
    flashLights();
    if (transferZones()) {
        calculationNeeded();
        documentChanged();
        loadsChanged();
    }
    passProjectData();
}

void LinkedDesign::flashLights() {
    flash(*this);
    flash(*LoadsHome());
}

bool LinkedDesign::loadsDiffer() const {
    const ProjectLoads& own = common_.loads;
    return own.zoneNumber != LoadsHome()->zoneNumber() ||
           !sameLoads(own.zones, LoadsHome()->document().data.zones);
}

/// Takes the loads window's zones when they differ. True when they did.
bool LinkedDesign::transferZones() {
    if (!loadsDiffer()) return false;
    const LoadsDocument& from = LoadsHome()->document();
    ProjectLoads& own = common_.loads;
    own.zones = from.data.zones;
    for (std::size_t i = 0; i < own.zones.size(); ++i) {
        const std::string name = text(Text::zone) + " " + std::to_string(i + 1);
        if (own.zones[i].name != name) own.zones.edit(i).name = name;
    }
    own.zoneNumber = LoadsHome()->zoneNumber();
    own.activeSeries = from.data.activeSeries;
    own.file = from.file;
    common_.conditions.flowRate = from.data.conditions.flowRate;
    common_.conditions.inletTemp = from.data.conditions.inletTemp;
    return true;
}

/// The loads window shows what the design's method uses, and prints under the project's names.
void LinkedDesign::passProjectData() {
    LoadsHome()->showHoursAndDays(usesHoursAndDays());
    LoadsHome()->takeProject(common_.information);
}

void LinkedDesign::TransferLoadsVariablesOut() {
    if (!link_) return;
    LoadsWindow& loads = *LoadsHome();
    // The design that read from the window last must not lose changes that it has not seen yet.
    if (loads.hasUnsavedChanges() && loads.links().designLinkID() != myID) loads.TransferCall();
    link_->read();
    flashLights();
    loads.replaceLoads(common_);
    passProjectData();
}

void LinkedDesign::takeZonesOf(LoadsWindow& loads) {
    const ProjectConditions stored = common_.conditions;
    const std::string series = common_.loads.activeSeries;
    joinLoads(loads);
    if (series.empty())
        loads.InitializeHeatPumpLists();
    else
        loads.takeSeries(series);
    TransferLoadsVariablesIn();
    // Also a series that the catalogue at hand does not have.
    if (!series.empty()) common_.loads.activeSeries = series;
    if (loads.conditions().inletTemp == stored.inletTemp &&
        loads.conditions().flowRate == stored.flowRate)
        return;
    common_.conditions.inletTemp = stored.inletTemp;
    common_.conditions.flowRate = stored.flowRate;
    TransferLoadsVariablesOut();
}

void LinkedDesign::forgetZoneFile() {
    common_.loads.file = {};
    common_.loads.linkType.clear();
    showLinkLight();
}

void LinkedDesign::passTemperature(Mode mode) {
    const double temperature = common_.conditions.inletTemp[mode];
    if (!link_ || LoadsHome()->conditions().inletTemp[mode] == temperature) return;
    LoadsHome()->takeTemperature(mode, temperature);
    valuePassed_ = true;
}

void LinkedDesign::passFlow() {
    const double flow = common_.conditions.flowRate;
    if (!link_ || LoadsHome()->conditions().flowRate == flow) return;
    LoadsHome()->takeFlow(flow);
    valuePassed_ = true;
}

void LinkedDesign::refreshLoadsPumps() {
    // A field that was only visited leaves a selection made by hand alone.
    if (!std::exchange(valuePassed_, false) || !link_) return;
    if (LoadsHome()->pumpsAreBeingSelected()) return;
    LoadsHome()->touch();
    LoadsHome()->LOUpdatePumpsCommand_Click();
}

void LinkedDesign::switchLinkedUnits() {
    LoadsWindow* loads = LoadsHome();
    if (loads == nullptr || loads->units() == units()) return;
    if (link_->isNamed())
        linkedSetMetric(*this, *loads);
    else
        control("MetricCheck").setChecked(loads->units() == UnitSystem::metric);
}

const SharedZones& LinkedDesign::presentZones() const {
    return link_ ? LoadsHome()->ZoneList() : common_.loads.zones;
}

int LinkedDesign::linkedWindow() const { return link_ ? LoadsHome()->serial() : 0; }

void LinkedDesign::restoreLink(int windowNumber) {
    LoadsWindow* wanted = nullptr;
    for (ChildWindow* window : main().windows())
        if (windowNumber != 0 && window->serial() == windowNumber)
            wanted = dynamic_cast<LoadsWindow*>(window);
    if (LoadsHome() != wanted) {
        if (link_) leaveLoads();
        if (wanted != nullptr) {
            wanted->switchUnits(units());
            joinLoads(*wanted);
        }
    }
    common_.loads.linkType = wanted == nullptr ? std::string() : wanted->formName();
    showLinkLight();
    valuePassed_ = false;
}

void LinkedDesign::activated() {
    DesignDocument::activated();
    if (!link_ || !link_->isNamed()) return;
    // Loads may also have been saved, opened or cleared since the design last read them.
    if (!LoadsHome()->hasUnsavedChanges() && !loadsDiffer()) return;
    TransferLoadsVariablesIn();
    refreshNotice();
}

void LinkedDesign::unloaded() {
    cleanupLinks(*this);
    DesignDocument::unloaded();
}

}  // namespace varnholt
