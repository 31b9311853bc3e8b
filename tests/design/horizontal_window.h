// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "change_project.h"
#include "design/frmHZDesign.h"
#include "design/install.h"
#include "forms/fake_platform.h"
#include "frame/varnmain.h"
#include "sample_trenches.h"

namespace varnholt {

/// A new horizontal design in the main window, worked by its verbs.
class HorizontalWindow : public testing::Test {
 public:
    HorizontalWindow() {
        main.start();
        installDesign(main);
        main.click("NewHorizontal");
        design = dynamic_cast<frmHZDesign*>(main.activeWindow());
    }

    void type(const std::string& field, const std::string& text) { design->type(field, text); }
    void typeAndLeave(const std::string& field, const std::string& text) {
        design->type(field, text);
        design->leave(field);
    }
    void choose(int arrangement) {
        design->click(elementName("PAConfigurationOption", static_cast<std::size_t>(arrangement)));
    }
    void setPipes(double count) { design->slide("PAConfigurationUpDown(1)", count); }
    void setTrenches(double count) { design->slide("PAConfigurationUpDown(0)", count); }
    const Control& control(const std::string& name) const { return design->control(name); }
    std::string textOf(const std::string& field) const { return control(field).text(); }
    std::string captionOf(const std::string& label) const { return control(label).caption(); }
    int colourOf(const std::string& label) const { return control(label).forecolor(); }
    bool isEnabled(const std::string& name) const { return control(name).enabled(); }
    bool isVisible(const std::string& name) const { return control(name).visible(); }
    double value(const std::string& name) const {
        return std::get<double>(design->values().read(name));
    }
    void inMetric() { design->switchUnits(UnitSystem::metric); }
    void calculate() { design->click("CACalculateCommand"); }
    /// The boxes so far, by their texts.
    std::vector<std::string> messages() const {
        std::vector<std::string> told;
        for (const auto& message : platform.messages) told.push_back(message.text);
        return told;
    }

    /// The sample building and ground, put into the window; the trenches stay as they are.
    void takeSample() {
        const HorizontalInputs sample = sampleTrenches();
        const std::vector<Zone> zones = sampleBuilding();
        change(*design, [&](HorizontalProject& project) {
            project.loads.zones = zones;
            project.loads.zoneNumber = static_cast<std::int16_t>(zones.size());
            project.extraPower.extraPower = sample.loads.extraPower;
            project.groundTemperature = sample.groundTemperature;
        });
        design->setUnitLabels();
    }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, "/program"};
    frmHZDesign* design = nullptr;
};

}  // namespace varnholt
