// SPDX-License-Identifier: GPL-3.0-or-later
// The line at the top of a window for what a person must know.
#include "frame/note_window.h"

namespace varnholt {
namespace {

class NoticeTest : public NoteTest {
 protected:
    void hold(std::vector<Notice> notices) {
        window.holding = std::move(notices);
        window.refreshNotice();
    }
    const Control& line() const { return window.control("NoticeLabel"); }
    const Control& command() const { return window.control("NoticeCommand"); }

    NoteWindow& window = newNote();
};

TEST_F(NoticeTest, IsEmptyAndHiddenWhenThereIsNothingToTell) {
    EXPECT_EQ(line().caption(), "");
    EXPECT_FALSE(line().visible());
    EXPECT_EQ(command().caption(), "");
    EXPECT_FALSE(command().visible());
    window.click("NoticeCommand");
    EXPECT_FALSE(canUndo());
}

TEST_F(NoticeTest, ShowsWhatHoldsAndGoesWithItsCause) {
    hold({{"The file was not read."}});
    EXPECT_EQ(line().caption(), "The file was not read.");
    EXPECT_TRUE(line().visible());
    EXPECT_FALSE(command().visible());
    hold({});
    EXPECT_EQ(line().caption(), "");
    EXPECT_FALSE(line().visible());
}

TEST_F(NoticeTest, JoinsSeveralByABlankInTheirOrder) {
    hold({{"First."}, {"Second."}, {"Third"}});
    EXPECT_EQ(line().caption(), "First. Second. Third");
}

TEST_F(NoticeTest, OffersTheActionOfTheFirstOne) {
    int found = 0, calculated = 0;
    const Notice missing{"The zones are missing.", "Find", [&] { ++found; }};
    const Notice stale{"Out of date", "Calculate", [&] { ++calculated; }};
    hold({missing, stale});
    EXPECT_EQ(command().caption(), "Find");
    EXPECT_TRUE(command().visible());
    window.click("NoticeCommand");
    EXPECT_EQ(found, 1);
    EXPECT_EQ(calculated, 0);
    hold({stale});
    EXPECT_EQ(command().caption(), "Calculate");
    window.click("NoticeCommand");
    EXPECT_EQ(found, 1);
    EXPECT_EQ(calculated, 1);
}

TEST_F(NoticeTest, OffersNoActionWhereTheFirstOneHasNone) {
    int calculated = 0;
    hold({{"Not all was read."}, {"Out of date", "Calculate", [&] { ++calculated; }}});
    EXPECT_EQ(line().caption(), "Not all was read. Out of date");
    EXPECT_FALSE(command().visible());
    EXPECT_EQ(command().caption(), "");
    window.click("NoticeCommand");
    EXPECT_EQ(calculated, 0);
}

TEST_F(NoticeTest, MayReplaceItselfByItsOwnAction) {
    hold({{"Once", "Again", [this] { hold({{"Twice", "Enough", [this] { hold({}); }}}); }}});
    window.click("NoticeCommand");
    EXPECT_EQ(line().caption(), "Twice");
    EXPECT_EQ(command().caption(), "Enough");
    window.click("NoticeCommand");
    EXPECT_FALSE(line().visible());
}

TEST_F(NoticeTest, NamesTheStepOfItsActionAsTheButtonWasCalled) {
    hold({{"Lines are missing", "Add Them", [this] {
               window.note.lines = 3;
               hold({});
           }}});
    window.click("NoticeCommand");
    EXPECT_EQ(undoCaption(), "Undo Add Them");
}

TEST_F(NoticeTest, ExplainsARefusedValueUntilTheFieldIsLeft) {
    window.type("SizeText", "101");
    EXPECT_TRUE(window.control("SizeText").refused());
    // 101 is beyond the 100 that the field takes; 5 stands in its place.
    EXPECT_EQ(line().caption(), "Size: 101 is refused, 0.0 to 100.0, now 5.0.");
    window.type("SizeText", "99");
    EXPECT_EQ(line().caption(), "");
    window.type("SizeText", "-1");
    EXPECT_EQ(line().caption(), "Size: -1 is refused, 0.0 to 100.0, now 5.0.");
    window.leave("SizeText");
    EXPECT_EQ(line().caption(), "");
}

TEST_F(NoticeTest, ExplainsARefusedValueInTheUnitsShown) {
    window.click("MetricCheck");
    window.type("SizeText", "31");  // 100 ft are 30.48 m, 5 ft 1.524
    EXPECT_EQ(line().caption(), "Size: 31 is refused, 0.0 to 30.5, now 1.5.");
}

TEST_F(NoticeTest, OfARefusedValueGoesWhenItIsUndone) {
    window.type("SizeText", "20");
    window.leave("SizeText");
    window.type("SizeText", "101");
    ASSERT_TRUE(line().visible());
    undo();
    EXPECT_FALSE(window.control("SizeText").refused());
    EXPECT_FALSE(line().visible());
    EXPECT_EQ(window.control("SizeText").text(), "20.0");
}

TEST_F(NoticeTest, StandsAtOnceInAWindowThatIsOpened) {
    auto made = std::make_unique<NoteWindow>(main);
    made->holding = {{"Not all was read."}};
    main.open(std::move(made));
    EXPECT_EQ(main.activeWindow()->control("NoticeLabel").caption(), "Not all was read.");
}

TEST_F(NoticeTest, FollowsAnotherWindowsActionThatChangesTheDocument) {
    NoteWindow& other = newNote("frmOther");
    other.whenLineAdded = [&] {
        window.takeLines(1);
        window.holding = {{"Lines have come from elsewhere."}};
    };
    other.click("AddCommand");
    EXPECT_EQ(line().caption(), "Lines have come from elsewhere.");
}

}  // namespace
}  // namespace varnholt
