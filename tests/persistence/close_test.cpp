// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

using Closing = ProjectTest;

TEST_F(Closing, LeavesTheMarkerAtTheSlotOfTheClosedWindow) {
    frmBHDesign& first = newDesign();
    newDesign();
    ASSERT_EQ(main.slots(DesignKind::borehole).marker, 2);
    answer(Answer::no);
    main.close(first);
    EXPECT_EQ(main.slots(DesignKind::borehole).marker, 1);
}

TEST_F(Closing, AsksWithTheFilesNameOrTheCaption) {
    frmBHDesign& d = newDesign();
    answer(Answer::cancel);
    EXPECT_FALSE(main.close(d));
    EXPECT_EQ(platform.questions[0].title, "[1205]");
    EXPECT_EQ(platform.questions[0].text, "[1202]\n\nBorehole Design Project #1\n\n[1203]");
    saveAs(d, "work files/school.vht");
    answer(Answer::cancel);
    main.close(d);
    EXPECT_EQ(platform.questions[1].text, "[1202]\n\nschool.vht\n\n[1203]");
}

TEST_F(Closing, CancelledKeepsTheWindowAndItsCommands) {
    frmBHDesign& d = newDesign();
    answer(Answer::cancel);
    EXPECT_FALSE(main.close(d));
    EXPECT_TRUE(main.isOpen(&d));
    EXPECT_TRUE(main.slots(DesignKind::borehole).exists[1]);
    EXPECT_TRUE(main.control("mnuFileSave").enabled());
}

TEST_F(Closing, WithoutSavingFreesTheSlot) {
    frmBHDesign& d = newDesign();
    answer(Answer::no);
    EXPECT_TRUE(main.close(d));
    EXPECT_FALSE(main.slots(DesignKind::borehole).exists[1]);
    EXPECT_FALSE(main.control("mnuFileSave").enabled());
    EXPECT_FALSE(fileExists(folder / "vhtbh.ini"));
}

TEST_F(Closing, WithSavingSavesThatWindowThoughAnotherIsActive) {
    frmBHDesign& first = newDesign();
    saveAs(first, "work files/first.vht");
    change(first, [&](BoreholeProject& of) { of.information.city = "Stillwater"; });
    newDesign();
    answer(Answer::yes);
    EXPECT_TRUE(main.close(first));
    EXPECT_NE(bytesOf(folder / "work files/first.vht").find("Stillwater"), std::string::npos);
}

TEST_F(Closing, StopsWhenTheSaveIsCancelled) {
    frmBHDesign& d = newDesign();
    answer(Answer::yes);
    pick(std::nullopt);
    EXPECT_FALSE(main.close(d));
    EXPECT_TRUE(main.isOpen(&d));
}

TEST_F(Closing, StopsWhenTheSaveFails) {
    frmBHDesign& d = newDesign();
    answer(Answer::yes);
    pick("no such folder/school.vht");
    EXPECT_FALSE(main.close(d));
    EXPECT_EQ(messages(), 1u);
    EXPECT_TRUE(main.isOpen(&d));
}

TEST_F(Closing, StopsWhenTheZoneQuestionIsCancelled) {
    saveLinkedProject();
    loads().unsaved = true;
    answer(Answer::yes);
    answer(Answer::cancel);
    EXPECT_FALSE(main.close(design()));
    EXPECT_TRUE(main.isOpen(&design()));
    EXPECT_EQ(design().LoadsHome(), &loads());
}

TEST_F(Closing, ALinkedDesignTurnsTheLightOff) {
    saveLinkedProject();
    answer(Answer::no);
    ASSERT_TRUE(main.close(design()));
    EXPECT_FALSE(loads().control("imgLinkLight(0)").visible());
    EXPECT_EQ(loads().links().designLinkID(), 0);
    EXPECT_EQ(loads().caption(), "Project Loads");
}

TEST_F(Closing, OfTheFrameAsksEveryWindow) {
    newDesign();
    newDesign();
    newDesign();
    for (int i = 0; i < 3; ++i) answer(Answer::no);
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, true);
    EXPECT_EQ(platform.questions.size(), 3u);
    EXPECT_TRUE(main.windows().empty());
}

TEST_F(Closing, OfTheFrameStopsAtTheFirstCancel) {
    frmBHDesign& first = newDesign();
    frmBHDesign& second = newDesign();
    newDesign();
    answer(Answer::no);
    answer(Answer::cancel);
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, false);
    EXPECT_EQ(main.windows(), (std::vector<ChildWindow*>{&first, &second}));
}

TEST_F(Closing, OfTheFrameStopsWhenASaveIsCancelled) {
    newDesign();
    answer(Answer::yes);
    pick(std::nullopt);
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, false);
    EXPECT_EQ(main.windows().size(), 1u);
    // Nothing of the cancel is left for the next attempt.
    answer(Answer::no);
    main.click("mnuFileExit");
    EXPECT_EQ(platform.quitResult, true);
}

}  // namespace
}  // namespace varnholt
