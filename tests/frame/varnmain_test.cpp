// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/varnmain.h"

#include <gtest/gtest.h>

#include "basis/run_time_error.h"
#include "forms/fake_platform.h"
#include "frame/design_document.h"

namespace varnholt {
namespace {

struct TestProject {
    ProjectInformation held;
};

class TestDesign : public TestProject, public DesignDocument {
 public:
    TestDesign(Varnmain& main, std::int16_t slot)
        : DesignDocument("frmBHDesign", DesignKind::borehole, main, slot, held) {
        add("CACalculateCommand", ControlKind::button);
        add("MetricCheck", ControlKind::check).setChecked(main.units() == UnitSystem::metric);
        addInformationControls();
        showInformation();
        setCaption(baseCaption() + " #" + std::to_string(main.windowCounter));
    }
    std::string baseCaption() const override { return "Design"; }
    bool queryClose() override {
        askedByFrame = main().closing;
        return mayClose;
    }
    void unloaded() override { main().releaseSlot(DesignKind::borehole, counter); }
    void MetricCheck_Click() override { ++unitSwitches; }

    void activated() override {
        if (failsInFront) throw RunTimeError(11);
    }

    bool mayClose = true, askedByFrame = false, failsInFront = false;
    int unitSwitches = 0;
};

class VarnmainTest : public testing::Test {
 protected:
    VarnmainTest() {
        main.start();
        main.setCommand("NewBorehole", CommandNeeds::nothing, [this] { newDesign(); });
        main.setCommand("mnuFileSave", CommandNeeds::designOrLoads, [this] { ++saves; });
    }
    void newDesign() {
        if (const std::int16_t slot = main.takeSlot(DesignKind::borehole))
            main.open(std::make_unique<TestDesign>(main, slot));
    }
    TestDesign& design(std::size_t i) { return dynamic_cast<TestDesign&>(*main.windows().at(i)); }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, "/program"};
    int saves = 0;
};

TEST_F(VarnmainTest, StartsInEnglishUnitsWhenTheLanguageHasNoFont) {
    EXPECT_FALSE(main.control("Metric").checked());
    EXPECT_TRUE(main.control("English").checked());
    EXPECT_EQ(main.helpFile, "/program/OnlineHelp/vht.qch");
    EXPECT_EQ(main.caption(), "[1001]");
}

TEST_F(VarnmainTest, TellsTheLoadFactorsThatTransfersHandOver) {
    main.transferPLFm = {0.25, 0.5};
    main.import1TransferPLFm = {0.75, 1};
    EXPECT_EQ(std::get<double>(main.values().read("transferPLFm(0)")), 0.25);
    EXPECT_EQ(std::get<double>(main.values().read("transferPLFm(1)")), 0.5);
    EXPECT_EQ(std::get<double>(main.values().read("import1TransferPLFm(0)")), 0.75);
    EXPECT_EQ(std::get<double>(main.values().read("import1TransferPLFm(1)")), 1);
    EXPECT_THROW(main.values().read("transferPLFm(2)"), RunTimeError);
}

TEST_F(VarnmainTest, StartsInMetricWhenTheLanguageHasAFont) {
    texts.known[1101] = "Sans Serif";
    Varnmain other(platform, texts, "/program");
    other.start();
    EXPECT_TRUE(other.control("Metric").checked());
    EXPECT_EQ(other.FontFaceName, "Sans Serif");
}

TEST_F(VarnmainTest, TheUnitsMenuWithNoWindowOpenOnlyMovesTheCheckMarks) {
    main.click("Metric");
    EXPECT_TRUE(main.control("Metric").checked());
    EXPECT_FALSE(main.control("English").checked());
    main.click("NewBorehole");
    EXPECT_EQ(design(0).units(), UnitSystem::metric);
    EXPECT_EQ(design(0).unitSwitches, 0);
}

TEST_F(VarnmainTest, TheUnitsMenuSwitchesTheActiveWindowAlone) {
    main.click("NewBorehole");
    main.click("NewBorehole");
    main.click("Metric");
    EXPECT_EQ(design(1).unitSwitches, 1);
    EXPECT_EQ(design(0).unitSwitches, 0);
    main.click("Metric");
    EXPECT_EQ(design(1).unitSwitches, 1);
}

TEST_F(VarnmainTest, TheUnitMarksFollowTheWindowThatComesToTheFront) {
    main.click("NewBorehole");
    main.click("NewBorehole");
    main.click("Metric");
    main.activate(design(0));
    EXPECT_TRUE(main.control("English").checked());
    main.activate(design(1));
    EXPECT_TRUE(main.control("Metric").checked());
}

TEST_F(VarnmainTest, TheConversionButtonChangesToTheOtherSystem) {
    main.click("tbrMain(7)");
    EXPECT_TRUE(main.control("Metric").checked());
    main.click("tbrMain(7)");
    EXPECT_TRUE(main.control("English").checked());
}

TEST_F(VarnmainTest, CommandsForDesignsAreEnabledWhileADesignIsActive) {
    EXPECT_FALSE(main.control("mnuFileSave").enabled());
    main.click("NewBorehole");
    EXPECT_TRUE(main.control("mnuFileSave").enabled());
    main.close(design(0));
    EXPECT_FALSE(main.control("mnuFileSave").enabled());
}

TEST_F(VarnmainTest, AnEntryThatNothingIsRegisteredForStaysDisabled) {
    EXPECT_TRUE(main.control("NewBorehole").enabled());
    EXPECT_FALSE(main.control("NewHorizontal").enabled());
    EXPECT_TRUE(main.control("tbrMain(0)").enabled());
    EXPECT_FALSE(main.control("tbrMain(1)").enabled());
}

TEST_F(VarnmainTest, NumbersNewWindowsAndStartsAgainWhenNoDesignIsOpen) {
    main.click("NewBorehole");
    main.click("NewBorehole");
    EXPECT_EQ(design(1).caption(), "Design #2");
    main.close(design(0));
    main.click("NewBorehole");
    EXPECT_EQ(design(1).caption(), "Design #3");
    main.close(design(1));
    main.close(design(0));
    main.click("NewBorehole");
    EXPECT_EQ(design(0).caption(), "Design #1");
}

TEST_F(VarnmainTest, SlotsAreCompactedOnEachNewDesign) {
    for (int i = 0; i < 3; ++i) main.click("NewBorehole");
    main.openWindowFiles(DesignKind::borehole, 3) = "c.vht";
    main.close(design(0));
    EXPECT_FALSE(main.slots(DesignKind::borehole).exists[1]);
    main.click("NewBorehole");
    const DesignSlots& slots = main.slots(DesignKind::borehole);
    EXPECT_EQ(slots.marker, 3);
    EXPECT_TRUE(slots.exists[1] && slots.exists[2] && slots.exists[3]);
    EXPECT_FALSE(slots.exists[4]);
    EXPECT_EQ(slots.files[2], "c.vht");
    EXPECT_EQ(design(1).counter, 2);
}

TEST_F(VarnmainTest, TheFiftyFirstWindowOfAKindIsRefusedWithAMessage) {
    for (int i = 0; i < 51; ++i) main.click("NewBorehole");
    EXPECT_EQ(main.windows().size(), 50U);
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text, "[1208]");
    main.close(design(10));
    main.click("NewBorehole");
    EXPECT_EQ(main.windows().size(), 50U);
}

TEST_F(VarnmainTest, ACancelInOneChildStopsTheCloseOfTheFrame) {
    main.click("NewBorehole");
    main.click("NewBorehole");
    design(0).mayClose = false;
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, false);
    EXPECT_EQ(main.windows().size(), 1U);
    design(0).mayClose = true;
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, true);
    EXPECT_TRUE(main.windows().empty());
}

TEST_F(VarnmainTest, AWindowCanTellThatTheFrameIsClosing) {
    main.click("NewBorehole");
    design(0).mayClose = false;
    main.close(design(0));
    EXPECT_FALSE(design(0).askedByFrame);
    main.click("mnuFileExit");
    EXPECT_TRUE(design(0).askedByFrame);
    EXPECT_FALSE(main.closing);
}

TEST_F(VarnmainTest, KnowsWhichCommandsAreRegistered) {
    EXPECT_TRUE(main.hasCommand("NewBorehole"));
    EXPECT_FALSE(main.hasCommand("mnuEqvHours"));
}

TEST_F(VarnmainTest, ClosingAWindowBringsTheOneBeforeItToTheFront) {
    for (int i = 0; i < 3; ++i) main.click("NewBorehole");
    main.activate(design(0));
    main.activate(design(2));
    main.close(design(2));
    EXPECT_EQ(main.activeWindow(), &design(0));
    EXPECT_EQ(main.numberOf(design(1)), 2);
}

TEST_F(VarnmainTest, TheStartPictureGoesWithTheFirstCommandThatOpensAWindow) {
    EXPECT_NE(main.splash(), nullptr);
    EXPECT_EQ(platform.openedForms, std::vector<std::string>{"frmSplash"});
    main.click("Metric");
    EXPECT_NE(main.splash(), nullptr);
    main.click("NewBorehole");
    EXPECT_EQ(main.splash(), nullptr);
    EXPECT_EQ(platform.closedForms, std::vector<std::string>{"frmSplash"});
}

TEST_F(VarnmainTest, TheStartPictureStaysForACommandThatOpensNoWindow) {
    int calls = 0;
    for (const char* entry : {"mnuHelp", "mnuFilePrintSetup", "mnuShowToolbar", "English"}) {
        main.setCommand(entry, CommandNeeds::nothing, [&] { ++calls; });
        main.click(entry);
        EXPECT_NE(main.splash(), nullptr) << entry;
    }
    EXPECT_EQ(calls, 4);
}

TEST_F(VarnmainTest, TheStartPictureGoesBeforeTheDialogToOpenAFile) {
    main.setCommand("mnuFileOpen", CommandNeeds::nothing,
                    [this] { EXPECT_EQ(main.splash(), nullptr); });
    main.click("mnuFileOpen");
    EXPECT_EQ(main.splash(), nullptr);
}

TEST_F(VarnmainTest, AWindowThatFailsAsItComesToTheFrontIsToldAndTheFrameGoesOn) {
    main.click("NewBorehole");
    main.click("NewBorehole");
    design(0).failsInFront = true;
    main.activate(design(0));
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(platform.messages[0].text, "11 - Division by zero");
    EXPECT_EQ(main.activeWindow(), &design(0));
}

TEST_F(VarnmainTest, AboutIsModalAndClosesWithItsButton) {
    platform.onModal = [this](Form& about) {
        EXPECT_EQ(about.formName(), "frmAbout");
        EXPECT_EQ(main.modalForms().size(), 1U);
        about.click("cmdOK");
        EXPECT_TRUE(about.modalEnded());
    };
    main.click("mnuAbout");
    EXPECT_TRUE(main.modalForms().empty());
}

TEST_F(VarnmainTest, SystemInformationThatIsNotRegisteredIsToldInAPlainBox) {
    platform.onModal = [](Form& about) { about.click("cmdSysInfo"); };
    main.click("mnuAbout");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::plain);
    EXPECT_EQ(platform.messages[0].text, "[8541]");
}

TEST_F(VarnmainTest, SystemInformationStartsTheRegisteredTool) {
    platform.registry["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"] = "msinfo";
    platform.onModal = [](Form& about) { about.click("cmdSysInfo"); };
    main.click("mnuAbout");
    EXPECT_EQ(platform.outside, std::vector<std::string>{"msinfo"});
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(VarnmainTest, ARunTimeErrorOfACommandIsShownAndTheFrameGoesOn) {
    main.setCommand("mnuLink", CommandNeeds::nothing, [] { throw RunTimeError(9); });
    main.click("mnuLink");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(platform.messages[0].text, "9 - Subscript out of range");
}

TEST_F(VarnmainTest, TheToolbarCanBeHidden) {
    main.click("mnuShowToolbar");
    EXPECT_FALSE(main.control("tbrMain").visible());
    EXPECT_FALSE(main.isShown(main.control("tbrMain(0)")));
    main.click("mnuShowToolbar");
    EXPECT_TRUE(main.isShown(main.control("tbrMain(0)")));
}

TEST_F(VarnmainTest, ProjectInformationIsStoredAsTyped) {
    main.click("NewBorehole");
    TestDesign& project = design(0);
    project.type("INProjectNameText", "  Riverside School ");
    project.type("INCommentsRichTextBox", "one\ntwo");
    project.pickDate("INStartDateDTPicker", Date{2026, 3, 1});
    EXPECT_EQ(project.information().projectName, "  Riverside School ");
    EXPECT_EQ(project.information().comments, "one\r\ntwo");
    EXPECT_EQ(project.information().projectStartDate, (Date{2026, 3, 1}));
    EXPECT_EQ(project.information().currentDate, (Date{2026, 1, 15}));
}

TEST_F(VarnmainTest, TheStaleMarkIsTheColourOfTheButton) {
    main.click("NewBorehole");
    design(0).calculationNeeded();
    EXPECT_EQ(design(0).control("CACalculateCommand").backcolor(), 14281207);
    EXPECT_TRUE(design(0).isStale());
    design(0).calculationDone();
    EXPECT_EQ(design(0).control("CACalculateCommand").backcolor(), colours::buttonFace);
}

TEST_F(VarnmainTest, AProjectsFilePutsItsNameIntoTheCaption) {
    main.click("NewBorehole");
    design(0).setFile("/program/work files/school.vht");
    EXPECT_EQ(design(0).caption(), "Design - school.vht");
    EXPECT_EQ(design(0).directoryName, "/program/work files");
    EXPECT_EQ(design(0).filePath(), "/program/work files/school.vht");
    EXPECT_TRUE(design(0).currentFileCheck);
}

}  // namespace
}  // namespace varnholt
