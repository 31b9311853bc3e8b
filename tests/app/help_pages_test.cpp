// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the help and the reference pages as the build makes them: what they lead to, and
// what leads to them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "app/application.h"
#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/folders.h"
#include "forms/fake_platform.h"
#include "frame/menu_table.h"
#include "loads/frmLinkOptions.h"
#include "loads/import/frmImportTable.h"
#include "reports/frmPROptions.h"
#include "reports/frmZNOptions.h"
#include "tools/frmTransferOptions.h"
#include "tools/help_topics.h"
#include "tools/program_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;
const fs::path helpFolder = VARNHOLT_RESOURCE_DIR "/help";
const fs::path tablesFolder = VARNHOLT_RESOURCE_DIR "/tables/english";

std::vector<fs::path> pagesIn(const fs::path& folder) {
    std::vector<fs::path> pages;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().extension() == ".html") pages.push_back(entry.path());
    std::sort(pages.begin(), pages.end());
    return pages;
}

std::vector<std::string> matches(const std::string& text, const std::string& pattern) {
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (auto i = std::sregex_iterator(text.begin(), text.end(), expression);
         i != std::sregex_iterator(); ++i)
        found.push_back((*i)[1]);
    return found;
}

/// The places that links into a page can lead to.
const std::set<std::string>& placesOf(const fs::path& page) {
    static std::map<fs::path, std::set<std::string>> known;
    const auto [found, isNew] = known.try_emplace(page);
    if (isNew)
        for (std::string& place : matches(readWholeFile(page.string()), "\\bid=\"([^\"]+)\""))
            found->second.insert(std::move(place));
    return found->second;
}

/// Whether "page.html#place" leads somewhere, seen from a folder.
bool leadsSomewhere(const fs::path& folder, const fs::path& from, const std::string& target) {
    const std::size_t hash = target.find('#');
    const std::string file = target.substr(0, hash);
    const fs::path page = file.empty() ? from : folder / file;
    if (!fs::is_regular_file(page)) return false;
    if (hash == std::string::npos) return true;
    return placesOf(page).count(target.substr(hash + 1)) > 0;
}

TEST(HelpPages, EveryLinkOfHelpAndTablesLeadsSomewhere) {
    std::size_t links = 0;
    for (const fs::path& folder : {helpFolder, tablesFolder})
        for (const fs::path& page : pagesIn(folder))
            for (const std::string& target :
                 matches(readWholeFile(page.string()), "(?:href|src)=\"([^\"]+)\"")) {
                ++links;
                if (target.starts_with("example:")) {
                    EXPECT_TRUE(fs::exists(VARNHOLT_SOURCE_DIR "/examples/" + target.substr(8)))
                        << page << " offers " << target;
                    continue;
                }
                EXPECT_EQ(target.find("://"), std::string::npos) << page << " needs a network";
                EXPECT_TRUE(leadsSomewhere(folder, page, target)) << page << " leads to " << target;
            }
    EXPECT_GT(links, 300u);
}

TEST(HelpPages, AreEachOneFileWithoutANetwork) {
    for (const fs::path& page : pagesIn(tablesFolder)) {
        const std::string text = readWholeFile(page.string());
        for (const char* mark : {"http:", "https:", "src=", "@import", "<link", "url("})
            EXPECT_EQ(text.find(mark), std::string::npos) << page << " has " << mark;
    }
}

TEST(HelpPages, HaveEachPlaceOnce) {
    for (const fs::path& folder : {helpFolder, tablesFolder})
        for (const fs::path& page : pagesIn(folder)) {
            std::set<std::string> seen;
            for (const std::string& place :
                 matches(readWholeFile(page.string()), "\\bid=\"([^\"]+)\""))
                EXPECT_TRUE(seen.insert(place).second) << page << " has " << place << " twice";
        }
}

TEST(HelpPages, TheReferencePagesNameTheSourceUnderEveryTable) {
    for (const fs::path& page : pagesIn(tablesFolder)) {
        const std::string text = readWholeFile(page.string());
        const std::vector<std::string> tables = matches(text, "(<table )");
        EXPECT_EQ(matches(text, "(</table>\\s*<p class=\"source\">)").size(), tables.size())
            << page;
        EXPECT_FALSE(tables.empty()) << page;
        EXPECT_NE(text.find("class=\"contents\""), std::string::npos) << page;
        EXPECT_NE(text.find("prefers-color-scheme: dark"), std::string::npos) << page;
    }
    EXPECT_EQ(pagesIn(tablesFolder).size(), 7u);
}

/// Words of the index with the places that they lead to.
std::multimap<std::string, std::string> indexOfHelp() {
    const std::string page = readWholeFile((helpFolder / "search.html").string());
    const std::regex entry("<li><a href=\"([^\"]+)\">([^<]*)</a></li>");
    std::multimap<std::string, std::string> index;
    for (auto i = std::sregex_iterator(page.begin(), page.end(), entry);
         i != std::sregex_iterator(); ++i)
        index.emplace(plainTextOf((*i)[2]), (*i)[1]);
    return index;
}

/// A platform that notes every window of the program.
class Windows : public FakePlatform {
 public:
    void opened(Form& form) override { forms.push_back(&form); }
    void closed(Form& form) override { std::erase(forms, &form); }
    void runModal(Form& form) override {
        forms.push_back(&form);
        if (onWindow) onWindow(form);
        forms.pop_back();
    }
    std::vector<Form*> forms;
    std::function<void(Form&)> onWindow;
};

class EveryWindow : public testing::Test {
 protected:
    EveryWindow() {
        std::string name = (fs::temp_directory_path() / "varnholt-help-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        folder = name;
        fillProgramFolder(folder + "/program", installedFiles());
        program = std::make_unique<Application>(
            platform, Application::Setup{folder + "/program", installedFiles().resources, 0x409});
        program->start();
    }
    ~EveryWindow() override {
        program.reset();
        fs::remove_all(folder);
    }
    /// Opens every window that a command opens, and hands each over.
    void visit(const std::function<void(Form&)>& each) {
        platform.onWindow = each;
        for (const MenuRow& row : menuTable())
            if (row.opensWindow && row.control != std::string("mnuFileOpen") &&
                row.control != std::string("OpenProject"))
                program->main().click(row.control);
        for (ChildWindow* window : program->main().windows())
            for (const char* command : {"CASecondOpinionCommand", "CAWhatIfCommand"})
                if (window->has(command)) window->click(command);
        visitDialogs(each);
        each(program->main());
        for (Form* form : std::vector<Form*>(platform.forms)) each(*form);
    }

    /// Dialogs that need data before a command raises them.
    void visitDialogs(const std::function<void(Form&)>& each) {
        Varnmain& main = program->main();
        frmPROptions projectReports(main);
        frmZNOptions zoneReports(main);
        frmLinkOptions link(main);
        frmTransferOptions transfer(main);
        frmImportTable table(main, {}, UnitSystem::english);
        for (Form* form :
             std::initializer_list<Form*>{&projectReports, &zoneReports, &link, &transfer, &table})
            each(*form);
    }

    Windows platform;
    std::string folder;
    std::unique_ptr<Application> program;
};

TEST_F(EveryWindow, LeadsWithF1FromEveryControlToAPlaceThatIsThere) {
    int controls = 0;
    visit([&](Form& form) {
        for (const auto& control : form.controls()) {
            ++controls;
            const std::string target = helpPageOf(form, control->name());
            EXPECT_TRUE(leadsSomewhere(helpFolder, {}, target))
                << form.formName() << "." << control->name() << " leads to " << target;
        }
        EXPECT_TRUE(leadsSomewhere(helpFolder, {}, helpPageOf(form, {}))) << form.formName();
    });
    EXPECT_GT(controls, 300);
}

TEST_F(EveryWindow, HasEachFieldAndButtonOnItsOwnPage) {
    std::map<std::string, Form*> windows;
    const auto placeOf = [&](const char* form, const std::string& control) {
        return helpPageOf(*windows.at(form), control);
    };
    visit([&](Form& form) { windows[form.formName()] = &form; });
    // Tabs that the three designs share are told on the page of each.
    EXPECT_EQ(placeOf("frmBHDesign", "FLFlowRateText"), "borehole.html#fluid");
    EXPECT_EQ(placeOf("frmHZDesign", "FLFlowRateText"), "horizontal.html#fluid");
    EXPECT_EQ(placeOf("frmSWDesign", "FLFlowRateText"), "surface_water.html#fluid");
    EXPECT_EQ(placeOf("frmHZDesign", "SOGroundTempText"), "horizontal.html#soil");
    EXPECT_EQ(placeOf("frmSWDesign", "EKWPumpPowerText(2)"), "surface_water.html#power");
    EXPECT_EQ(placeOf("frmHZDesign", "INProjectNameText"), "horizontal.html#information");
    // A subject with a page of its own keeps it in every window.
    EXPECT_EQ(placeOf("frmBHDesign", "CAHybridSlider"), "tower.html");
    EXPECT_EQ(placeOf("frmHZDesign", "CAHybridSlider"), "tower.html");
    EXPECT_EQ(placeOf("frmBHDesign", "CACoolingRangeUpDown"), "tower.html");
    EXPECT_EQ(placeOf("frmSWDesign", "PIHeaderLengthText(0)"), "surface_water.html#headers");
    EXPECT_EQ(placeOf("frmImport1", "cmdImport(5)"), "importing.html#tables");
    EXPECT_EQ(placeOf("frmBrowser", "tbToolBar(5)"), "browser.html#stop");
    // Commands lead to what they open, from the menu and from the tool bar.
    EXPECT_EQ(placeOf("Varnmain", "mnuLink"), "linking.html");
    EXPECT_EQ(placeOf("Varnmain", "mnuFilePrintSetup"), "reports.html#preview");
    EXPECT_EQ(placeOf("Varnmain", "tbrMain(1)"), "horizontal.html");
    EXPECT_EQ(placeOf("Varnmain", "tbrMain(11)"), "linking.html");
}

TEST_F(EveryWindow, IsInTheIndexWithTheCaptionsOfItsFieldsAndButtons) {
    const std::multimap<std::string, std::string> index = indexOfHelp();
    int captions = 0;
    const auto expectFound = [&](const Form& form, const std::string& caption) {
        std::string words = captionWords(caption);
        std::erase(words, '&');
        const bool wordy = std::count_if(words.begin(), words.end(),
                                         [](unsigned char c) { return std::isalpha(c) != 0; }) > 1;
        if (!wordy || words[0] == '(' || words.size() >= 60 ||
            words.find('\n') != std::string::npos)
            return;
        ++captions;
        EXPECT_GT(index.count(plainTextOf(words)), 0u) << form.formName() << ": " << words;
    };
    visit([&](Form& form) {
        for (const auto& control : form.controls()) {
            if (control->kind() == ControlKind::button || control->kind() == ControlKind::check ||
                control->kind() == ControlKind::option || control->kind() == ControlKind::menu)
                expectFound(form, control->caption());
            if (!control->label().empty())
                expectFound(form, form.control(control->label()).caption());
        }
    });
    EXPECT_GT(captions, 100);
}

TEST(HelpIndex, HasEveryMessageOfTheProgram) {
    const std::multimap<std::string, std::string> index = indexOfHelp();
    std::multiset<std::string> places;
    for (const auto& [words, place] : index) places.insert(place);
    // Messages of boxes, by the numbers of their texts.
    for (const int number :
         {1201, 1206, 1208, 8539, 8540, 8541, 8543, 2875, 2940, 1521, 4513, 5033})
        EXPECT_GT(places.count("messages.html#m" + std::to_string(number)), 0u) << number;
    // Errors of commands are told by number and description.
    for (const int number : {5, 6, 9, 11, 13, 53, 57, 61, 62, 70, 75, 76}) {
        const std::string words = RunTimeError(number).message();
        EXPECT_GT(index.count(words), 0u) << words;
    }
}

TEST_F(EveryWindow, ExplainsItsControlsInAFewWords) {
    program->main().click("NewBorehole");
    const ChildWindow& design = *program->main().activeWindow();
    EXPECT_EQ(design.whatsThis("SOGroundTempText").find("Soil: undisturbed ground temperature"),
              0u);
    EXPECT_NE(design.whatsThis("CACalculateCommand"), "");
    EXPECT_NE(design.whatsThis(""), "");
    // Asking changes nothing.
    EXPECT_FALSE(design.history().canUndo());
}

TEST_F(EveryWindow, TellsThePageThatF1AskedFor) {
    Varnmain& main = program->main();
    main.click("NewBorehole");
    main.activeWindow()->key("SOGroundTempText", "F1");
    EXPECT_EQ(main.values().read("HHTopicURL"), PublicValue(std::string("borehole.html#soil")));
    main.activeWindow()->help("");
    EXPECT_EQ(main.HHTopicURL, "borehole.html");
    main.click("mnuHelp");
    EXPECT_EQ(main.HHTopicURL, "index.html");
    EXPECT_TRUE(platform.messages.empty());
    fs::remove(main.helpFile);
    main.click("mnuHelp");
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].title, "HTML Help Class");
    EXPECT_EQ(platform.messages[0].text,
              main.helpFile +
                  " does not exist.\n"
                  "Please make sure the correct path and file name have been specified.");
    EXPECT_TRUE(main.control("mnuHelp").enabled());
}

}  // namespace
}  // namespace varnholt
