// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "basis/file_system.h"
#include "design/change_project.h"
#include "design/frmBHDesign.h"
#include "forms/fake_platform.h"
#include "frame/varnmain.h"
#include "loads/ModLoadsIO.h"
#include "loads/link_fixture.h"
#include "loads/links.h"
#include "persistence/design_files.h"
#include "persistence/project_commands.h"
#include "persistence/temporary_folder.h"

namespace varnholt {

/// A loads window that has the zone files and nothing else of its kind.
class FileLoads : public PlainLoads {
 public:
    using PlainLoads::PlainLoads;

    bool LOOpenZoneFile(const std::string& path) override {
        ++filesRead;
        zoneOpenCancelled = cancelsOpening;
        if (cancelsOpening) return false;
        LoadsData data;
        bool whole = true;
        try {
            readZoneFile(path, {"Zone", "First"}, data);
        } catch (const RunTimeError&) {
            whole = false;
        }
        document_.data = data;
        takeFile(path);
        return whole;
    }
    void LOSaveCommand_Click() override {
        if (refuseSave) return;
        saveZoneFile(savePath, document_.data);
        takeFile(savePath);
    }
    void takeRecovered(std::string_view, const std::string&,
                       const std::optional<KnownFile>&) override {
        unsaved = true;
    }
    bool CheckForSave() override { return checkForSave; }
    bool queryClose() override { return mayClose; }

    bool refuseSave = false, checkForSave = true, mayClose = true, cancelsOpening = false;
    std::string savePath;
    int filesRead = 0;

 private:
    void takeFile(const std::string& path) {
        document_.file = {fileNameOf(path), folderOf(path), true};
        unsaved = false;
    }
};

/// The program with its file commands in a folder of its own.
class ProjectTest : public testing::Test {
 protected:
    ProjectTest() {
        for (const char* name : {"work files", "zones", "pumps"})
            std::filesystem::create_directory(folder / name);
        texts.known[1001] = "Varnholt";
        texts.known[1031] = "Zone Manager of";
        texts.known[2001] = "Borehole Design Project";
        texts.known[2815] = "Zone";
        installLinks(main);
        installPersistence(main);
        main.setCommand("mnuZoneManage", CommandNeeds::nothing,
                        [this] { openLoads("frmZoneManage"); });
        main.setCommand("mnuAvgBlock", CommandNeeds::nothing, [this] { openLoads("frmAvgBlock"); });
        main.start();
    }

    void openLoads(const std::string& formName) {
        if (ChildWindow* open = main.find(formName))
            main.activate(*open);
        else
            main.open(std::make_unique<FileLoads>(formName, main));
    }
    FileLoads& loads(const std::string& formName = "frmZoneManage") {
        return dynamic_cast<FileLoads&>(*main.find(formName));
    }

    /// The design opened last.
    frmBHDesign& design() {
        return dynamic_cast<frmBHDesign&>(*main.windowsNamed("frmBHDesign").back());
    }
    frmBHDesign& newDesign() {
        main.click("NewBorehole");
        return design();
    }
    frmBHDesign& open(const std::string& path) {
        pick(path);
        main.click("mnuFileOpen");
        return design();
    }
    void saveAs(GroundDesign& which, const std::string& path) {
        main.activate(which);
        pick(path);
        main.click("mnuFileSaveAs");
    }
    /// A zone file with so many zones, each with its own load.
    void writeZones(const std::string& path, int count) {
        LoadsData data;
        for (int i = 0; i < count; ++i) data.zones.push_back(loadedZone(10.0 + i));
        data.activeSeries = "AcmeA";
        saveZoneFile(path, data);
    }
    static Zone loadedZone(double gain) {
        Zone zone;
        zone.gains[1][cooling] = gain;
        zone.gains[3][heating] = gain / 2;
        zone.pump.capacity = {gain, gain};
        zone.pump.watts = {1, 1};
        return zone;
    }
    /// A project that is linked with a zone file of three zones, saved as "work files/school.vht".
    void saveLinkedProject() {
        writeZones(folder / "zones/school.zon", 3);
        main.click("mnuZoneManage");
        loads().LOOpenZoneFile(folder / "zones/school.zon");
        frmBHDesign& made = newDesign();
        main.click("mnuLink");
        made.CACalculateCommand_Click();
        saveAs(made, "work files/school.vht");
    }
    /// All windows gone, nothing saved.
    void closeAll() {
        while (!main.windows().empty()) {
            ChildWindow& last = *main.windows().back();
            if (last.isDesign()) answer(Answer::no);
            ASSERT_TRUE(main.close(last));
        }
    }
    void pick(std::optional<std::string> path) { platform.picks.push_back(std::move(path)); }
    void answer(Answer which) { platform.answers.push_back(which); }
    std::size_t messages() const { return platform.messages.size(); }
    std::string lastMessage() const {
        return platform.messages.empty() ? "" : platform.messages.back().text;
    }

    TemporaryFolder folder;
    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, folder.path()};
};

/// One of the files that stand among the tests.
inline std::string sampleProject(const std::string& name) {
    return std::string(VARNHOLT_SOURCE_DIR) + "/tests/files/projects/" + name;
}

}  // namespace varnholt
