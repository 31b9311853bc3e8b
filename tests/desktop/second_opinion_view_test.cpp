// SPDX-License-Identifier: GPL-3.0-or-later
// The second opinion in the real windows: found while nobody types, shown in reading order, drawn.
#include <gtest/gtest.h>

#include "design/frmSecondOpinion.h"
#include "design/second_opinion_texts.h"
#include "desktop/drawings/opinion_pictures.h"
#include "desktop/widgets/qt_text.h"
#include "drawing_samples.h"
#include "late_window.h"

namespace varnholt {
namespace {

class SecondOpinionView : public LateWindow<frmSecondOpinion> {
 protected:
    SecondOpinionView() : LateWindow("CASecondOpinionCommand", "frmSecondOpinion") {}

    frmSecondOpinion& opinion() { return late(); }
    static void pressAcross(QWidget* target, double share) {
        press(target, {target->width() * share, target->height() / 2.0});
    }
};

TEST_F(SecondOpinionView, FindsItsFiguresWhenTheLoopIsIdle) {
    idle();
    EXPECT_FALSE(design().isBehind());
    EXPECT_FALSE(opinion().isBehind());
    const std::string before = design().control("CASecondLengthLabel(0)").caption();
    EXPECT_NE(before, "-");
    EXPECT_EQ(opinion().control("SELengthLabel(0)").caption(), before);
    // A key is done before the figures are: they follow.
    design().type("SOGroundTempText", "64");
    EXPECT_TRUE(design().isBehind());
    EXPECT_EQ(design().control("CASecondLengthLabel(0)").caption(), before);
    idle();
    const std::string after = design().control("CASecondLengthLabel(0)").caption();
    EXPECT_NE(after, before);
    EXPECT_EQ(opinion().control("SELengthLabel(0)").caption(), after);
    EXPECT_TRUE(desk.faults.empty());
}

TEST_F(SecondOpinionView, DropsTheWorkOnWhatIsNoLongerTyped) {
    idle();
    design().type("PASeparationText", "3");
    QCoreApplication::processEvents();
    design().type("PASeparationText", "30");
    idle();
    const std::string shown = design().control("CASecondLengthLabel(0)").caption();
    // What a reader gets who has never seen the other value.
    SecondOpinionMemory memory;
    const SecondOpinion whole = secondOpinionOf(design().presentCase(), memory);
    EXPECT_EQ(design().presentCase().design.arrangement.boreSeparation, 30);
    EXPECT_EQ(shown, lengthOrDash(whole.soLength, whole, cooling, UnitSystem::english));
}

TEST_F(SecondOpinionView, IsWalkedInTheOrderOfItsForm) {
    FormWindow window(opinion(), views.maker(), {});
    std::vector<std::string> walked, added;
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
        const std::string name = at->objectName().toStdString();
        if ((at->focusPolicy() & Qt::TabFocus) != 0 && opinion().has(name)) walked.push_back(name);
    }
    for (const auto& control : opinion().controls())
        if (std::find(walked.begin(), walked.end(), control->name()) != walked.end())
            added.push_back(control->name());
    EXPECT_EQ(walked, added);
    EXPECT_GT(walked.size(), 50U);
    EXPECT_EQ(window.binder().unshown(), std::vector<std::string>{});
}

TEST_F(SecondOpinionView, ShowsTheMonthsOfAYearThatIsPressed) {
    idle();
    QWidget* history = widget("imgHistory");
    ASSERT_TRUE(history->isVisible());
    history->repaint();
    // Twenty years from a little right of the left edge to the right one: the middle is year 10 or
    // 11.
    pressAcross(history, 0.5);
    const double year = opinion().control("SEYearUpDown").value();
    EXPECT_GE(year, 9);
    EXPECT_LE(year, 11);
    EXPECT_EQ(opinion().historyPicture().year, static_cast<std::size_t>(year) - 1);
    history->repaint();
    pressAcross(history, 0.5);
    EXPECT_EQ(opinion().control("SEYearUpDown").value(), 0);
}

TEST_F(SecondOpinionView, TellsAScreenReaderWhatAScriptReads) {
    idle();
    for (const char* image : {"imgHistory", "imgMonths", "imgGFunction"}) {
        const auto* drawing = dynamic_cast<Drawing*>(widget(image));
        ASSERT_NE(drawing, nullptr);
        EXPECT_EQ(plain(drawing->description()), opinion().descriptionOf(image));
        EXPECT_FALSE(opinion().descriptionOf(image).empty());
    }
}

TEST(SecondOpinionPictures, FindTheYearBelowThePointer) {
    HistoryPicture history;
    history.years.resize(20);
    const QRectF plot(40, 10, 200, 100);
    EXPECT_EQ(yearAt(history, plot, {40, 50}), 0U);
    EXPECT_EQ(yearAt(history, plot, {49.9, 50}), 0U);
    EXPECT_EQ(yearAt(history, plot, {50.1, 50}), 1U);
    EXPECT_EQ(yearAt(history, plot, {239, 50}), 19U);
    EXPECT_FALSE(yearAt(history, plot, {39, 50}));
    EXPECT_FALSE(yearAt(history, plot, {241, 50}));
    history.year = 3;
    EXPECT_FALSE(yearAt(history, plot, {100, 50}));
}

TEST(SecondOpinionPictures, HaveRoundScales) {
    // 39 to 87 with about five figures: steps of 10 from 30 to 90.
    const PlotScale scale = scaleAround(39, 87, 5);
    EXPECT_EQ(scale.least, 30);
    EXPECT_EQ(scale.most, 90);
    EXPECT_EQ(scale.step, 10);
    EXPECT_EQ(scaleAround(0, 7.3, 5).step, 2);
    EXPECT_GT(scaleAround(5, 5, 5).most, scaleAround(5, 5, 5).least);
}

}  // namespace
}  // namespace varnholt
