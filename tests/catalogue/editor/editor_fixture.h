// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/temporary_folder.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/editor/frmHPEdit.h"
#include "catalogue/editor/install.h"
#include "catalogue/fitting/measured_pump.h"
#include "forms/fake_platform.h"
#include "frame/varnmain.h"

namespace varnholt {

/// The editor over a catalogue of two manufacturers: Brook with the series Air (three pumps) and
/// Water (one, water-to-water), and Dale with the series One (one pump).
class EditorTest : public testing::Test {
 protected:
    EditorTest() {
        std::filesystem::create_directories(pumps());
        addSeries("Brook", "Air", "f_air", {"A1", "A2", "A3"}, 0);
        addSeries("Brook", "Water", "f_water", {"W1"}, 1);
        addSeries("Dale", "One", "f_one", {"D1"}, 0);
        main.start();
        installPumpEditor(main, [this] { ++written; });
    }

    void addSeries(const std::string& maker, const std::string& name, const std::string& file,
                   const std::vector<std::string>& names, std::int16_t type) {
        PumpSeries series{
            {name, file, {2025, 3, 4}}, {maker, "1 Street", "Town", "USA", "555"}, {}};
        for (const std::string& model : names) {
            series.models.push_back(fittedPump());
            series.models.back().name = model;
            series.models.back().pumpType = type;
        }
        WritePumpSeries(pumps(), series);
        if (index.empty() || index.back().mfgInfo != series.mfgInfo)
            index.push_back({series.mfgInfo, {}});
        index.back().seriesInfo.push_back(series.seriesInfo);
        WritePumpList(pumps(), index);
    }

    std::string pumps() const { return folder.path() + "/pumps"; }
    std::string seriesFile(const std::string& name) const { return pumpSeriesPath(pumps(), name); }
    static void overwrite(const std::string& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }

    frmHPEdit& editor() {
        main.click("EditAdd");
        return dynamic_cast<frmHPEdit&>(*main.find("frmHPEdit"));
    }
    /// The editor with a series open; a list's text has a blank at its end.
    frmHPEdit& opened(const std::string& maker = "Brook", const std::string& series = "Air") {
        frmHPEdit& window = editor();
        choose(window, "MfgCombo", maker + " ");
        if (control(window, "SeriesCombo").text() != series + " ")
            choose(window, "SeriesCombo", series + " ");
        return window;
    }
    static void choose(frmHPEdit& window, const std::string& combo, const std::string& entry) {
        const auto& items = control(window, combo).items();
        for (std::size_t i = 0; i < items.size(); ++i)
            if (items[i] == entry) return window.choose(combo, static_cast<int>(i));
        FAIL() << combo << " has no " << entry;
    }
    static Control& control(frmHPEdit& window, const std::string& name) {
        return window.control(name);
    }
    static std::string shown(frmHPEdit& window, const std::string& name) {
        const Control& of = window.control(name);
        return of.kind() == ControlKind::label ? of.caption() : of.text();
    }
    static bool enabled(frmHPEdit& window, const std::string& name) {
        return window.control(name).enabled();
    }
    static bool visible(frmHPEdit& window, const std::string& name) {
        return window.control(name).visible();
    }
    static bool isRed(frmHPEdit& window, const std::string& name) {
        return window.control(name).backcolor() == 255;
    }
    static void typeAndLeave(frmHPEdit& window, const std::string& field, const std::string& text) {
        window.type(field, text);
        window.leave(field);
    }
    static double number(frmHPEdit& window, const std::string& path) {
        return std::get<double>(window.values().read(path));
    }
    static std::string word(frmHPEdit& window, const std::string& path) {
        return std::get<std::string>(window.values().read(path));
    }
    static std::vector<std::string> names(frmHPEdit& window) {
        return window.control("PumpNamesList").items();
    }
    /// Text of the last message, empty for none.
    std::string lastMessage() const {
        return platform.messages.empty() ? std::string() : platform.messages.back().text;
    }
    PumpSeries onDisk(const std::string& file) const {
        PumpSeries series;
        readPumpSeries(readWholeFile(seriesFile(file)), series);
        return series;
    }
    std::vector<PumpList> indexOnDisk() const {
        std::vector<PumpList> read;
        readPumpIndex(readWholeFile(pumpIndexPath(pumps())), read);
        return read;
    }

    TemporaryFolder folder;
    FakePlatform platform;
    FakeTexts texts;
    std::vector<PumpList> index;
    int written = 0;
    Varnmain main{platform, texts, folder.path()};
};

using Names = std::vector<std::string>;

}  // namespace varnholt
