// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "basis/number_text.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/sample_models.h"
#include "forms/fake_platform.h"
#include "frame/varnmain.h"
#include "loads/frmAvgBlock.h"
#include "loads/frmZoneManage.h"
#include "loads/install.h"

namespace varnholt {

/// The two loads windows over a small catalogue in a program folder of their own. The models'
/// power is 2.5 kW in cooling and 2 kW in heating whatever their size.
class LoadsTest : public testing::Test {
 protected:
    LoadsTest() {
        texts.known[1204] = "Zone Loads";
        texts.known[2815] = "Zone";
        texts.known[2837] = "No Pump";
        std::filesystem::create_directories(folder.path() + "/pumps");
        std::filesystem::create_directories(folder.path() + "/zones");
        writeSeries("First", "Air", 0, {10, 20, 40});
        writeSeries("First", "Water", 1, {15, 30});
        writeSeries("Second", "Other", 0, {50});
        main.start();
        installLoads(main);
    }

    /// Models "Air-10", "Air-20", ... of the cooling capacities; heating has nine tenths of them.
    void writeSeries(const std::string& maker, const std::string& name, std::int16_t type,
                     const std::vector<int>& capacities) {
        PumpSeries series{{name, "f_" + name, {2025, 1, 2}}, {maker, "", "", "", ""}, {}};
        for (const int capacity : capacities) {
            series.models.push_back(
                plainModel(name + "-" + std::to_string(capacity), capacity, capacity * 0.9));
            series.models.back().pumpType = type;
        }
        write(series);
    }
    void write(const PumpSeries& series) {
        writeFile(pumpSeriesPath(pumps(), series.seriesInfo.FileName), pumpSeriesText(series));
        if (index.empty() || index.back().mfgInfo != series.mfgInfo)
            index.push_back({series.mfgInfo, {}});
        index.back().seriesInfo.push_back(series.seriesInfo);
        writeFile(pumpIndexPath(pumps()), pumpIndexText(index));
    }
    static void writeFile(const std::string& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    std::string pumps() const { return folder.path() + "/pumps"; }
    std::string zoneFile(const std::string& name) const { return folder.path() + "/zones/" + name; }

    frmZoneManage& manager() {
        main.click("mnuZoneManage");
        return dynamic_cast<frmZoneManage&>(*main.find("frmZoneManage"));
    }
    frmAvgBlock& block() {
        main.click("mnuAvgBlock");
        return dynamic_cast<frmAvgBlock&>(*main.find("frmAvgBlock"));
    }
    /// Adds a zone with these peaks, cooling in block 1, heating in block 3, MBtu/hr.
    static void addZone(ZoneWindow& window, double coolingPeak, double heatingPeak) {
        window.click("LONewCommand");
        window.type("LOGainsText(1)", shortestText(coolingPeak));
        window.type("LOGainsText(7)", shortestText(heatingPeak));
    }
    static std::string shown(const ZoneWindow& window, const std::string& name) {
        const Control& control = window.control(name);
        return control.kind() == ControlKind::label ? control.caption() : control.text();
    }
    static bool enabled(const ZoneWindow& window, const std::string& name) {
        return window.control(name).enabled();
    }
    void setSaved(ZoneWindow& window, const std::string& name) {
        platform.picks.emplace_back(zoneFile(name));
        window.click("LOSaveCommand");
    }
    /// Text of the last message, empty for none.
    std::string lastMessage() const {
        return platform.messages.empty() ? std::string() : platform.messages.back().text;
    }

    TemporaryFolder folder;
    FakePlatform platform;
    FakeTexts texts;
    std::vector<PumpList> index;
    Varnmain main{platform, texts, folder.path()};
};

}  // namespace varnholt
