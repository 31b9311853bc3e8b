// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/fake_platform.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"
#include "loads/links.h"
#include "loads/loads_window.h"

namespace varnholt {

/// A loads window with nothing but its zones: records what the link asks of it.
class PlainLoads : public LoadsWindow {
 public:
    PlainLoads(const std::string& formName, Varnmain& main) : LoadsWindow(formName, main) {
        for (const int element : {0, 8, 6})
            add("imgLinkLight(" + std::to_string(element) + ")", ControlKind::image)
                .setVisible(element == 6);
        add("MetricCheck", ControlKind::check);
        setCaption(plainTitle());
    }

    bool hasUnsavedChanges() const override { return unsaved; }
    bool CheckForSave() override { return true; }
    void LOSaveCommand_Click() override { unsaved = false; }
    bool LOOpenZoneFile(const std::string&) override { return true; }
    void InitializeHeatPumpLists() override { ++listsRead; }
    void SetFluidsTabbedPaneSwitchVariables() override { ++fluidsShown; }
    void LOUpdatePumpsCommand_Click() override { ++pumpsUpdated; }
    bool pumpsAreBeingSelected() const override { return selectingPump; }
    void replaceLoads(const DesignProject& project) override {
        document_.data.zones = project.loads.zones;
        document_.data.activeSeries = project.loads.activeSeries;
        document_.data.conditions.flowRate = project.conditions.flowRate;
        document_.data.conditions.inletTemp = project.conditions.inletTemp;
        document_.file = project.loads.file;
    }
    void showHoursAndDays(bool shown) override { hoursShown = shown; }
    std::string plainTitle() const override {
        return formName() == "frmAvgBlock" ? "Average Block Loads" : "Project Loads";
    }
    void setLight(bool on) override {
        element("imgLinkLight", 0).setVisible(on);
        element("imgLinkLight", 6).setVisible(!on);
    }
    void MetricCheck_Click() override { switchLinkedUnits(); }

    void setZones(const SharedZones& zones) { document_.data.zones = zones; }
    LoadsDocument& edit() { return document_; }
    LoadsData& data() { return document_.data; }

    bool unsaved = false, selectingPump = false, hoursShown = true;
    int listsRead = 0, fluidsShown = 0, pumpsUpdated = 0;
};

/// A design with nothing but its loads.
struct PlainProject {
    DesignProject held;
};
class PlainDesign : public PlainProject, public LinkedDesign {
 public:
    PlainDesign(Varnmain& main, std::int16_t slot)
        : LinkedDesign("frmBHDesign", DesignKind::borehole, main, slot, held) {
        add("CACalculateCommand", ControlKind::button);
        add("MetricCheck", ControlKind::check);
        addLinkLights();
        setCaption(baseCaption() + " #" + std::to_string(main.windowCounter));
    }
    std::string baseCaption() const override { return "Borehole Design Project"; }
    void loadsChanged() override { ++changes; }
    bool usesHoursAndDays() const override { return usesHours; }
    void MetricCheck_Click() override { switchLinkedUnits(); }

    int changes = 0;
    bool usesHours = true;
};

class LinkTest : public ::testing::Test {
 protected:
    LinkTest() {
        texts.known[1030] = "Average Block of";
        texts.known[1031] = "Zone Manager of";
        texts.known[2815] = "Zone";
        installLinks(main);
    }

    PlainDesign& newDesign() {
        auto made = std::make_unique<PlainDesign>(main, main.takeSlot(DesignKind::borehole));
        PlainDesign& design = *made;
        main.open(std::move(made));
        return design;
    }
    PlainLoads& newLoads(const std::string& formName = "frmZoneManage") {
        auto made = std::make_unique<PlainLoads>(formName, main);
        PlainLoads& loads = *made;
        main.open(std::move(made));
        return loads;
    }
    void link(ChildWindow& active) {
        main.activate(active);
        main.click("mnuLink");
    }
    static Zone zone(double gain) {
        Zone made;
        made.gains[1][cooling] = gain;
        return made;
    }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, "/nowhere"};
};

}  // namespace varnholt
