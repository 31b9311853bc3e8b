// SPDX-License-Identifier: GPL-3.0-or-later
// The line that tells what a person must know of a window: seen, heard and worked.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <map>

#include "basis/file_system.h"
#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/notice_bar.h"
#include "desktop/widgets/qt_text.h"
#include "frame/design_document.h"

namespace varnholt {
namespace {

class NoticeLine : public testing::Test {
 protected:
    NoticeLine() {
        desk.platform.picks = {VARNHOLT_SOURCE_DIR "/examples/office.vht"};
        desk.main().click("mnuFileOpen");
        design = desk.main().find("frmBHDesign");
        desk.main().activate(*design);
        design->choose("BHTabs", 2);
        desk.window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(desk.window.get()));
        Desk::settle();
    }
    ~NoticeLine() override { EXPECT_TRUE(desk.faults.empty()); }

    QWidget& widget(const char* name) {
        return *desk.shelf.windowOf(*design)->binder().widget(name);
    }
    NoticeBar& bar() { return *static_cast<NoticeBar*>(widget("NoticeLabel").parentWidget()); }
    QAbstractButton& action() { return static_cast<QAbstractButton&>(widget("NoticeCommand")); }
    QLineEdit& temperature() { return static_cast<QLineEdit&>(widget("SOGroundTempText")); }
    void type(const char* text) {
        QLineEdit& edit = temperature();
        edit.setFocus();
        // A person types once the field has the focus; a busy machine gives it later.
        EXPECT_TRUE(QTest::qWaitFor([&edit] { return edit.hasFocus(); }));
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromLatin1(text));
        Desk::settle();
    }
    /// Of the field that is typed into, in the window.
    QPoint place() { return temperature().mapTo(desk.window.get(), QPoint()); }
    void calculate() {
        design->click("CACalculateCommand");
        Desk::settle();
    }
    void tell(const std::string& text, const std::string& what) {
        design->control("NoticeLabel").setCaption(text).setVisible(!text.empty());
        design->control("NoticeCommand").setCaption(what).setVisible(!what.empty());
        Desk::settle();
    }

    Desk desk;
    ChildWindow* design = nullptr;
    const std::string stale = "Results are out of date";
};

TEST_F(NoticeLine, TellsNothingOfALinkedProjectThatHasJustBeenOpened) {
    EXPECT_FALSE(bar().isVisible());
    EXPECT_TRUE(desk.main().find("frmZoneManage") != nullptr);
    EXPECT_FALSE(dynamic_cast<DesignDocument*>(design)->isChanged());
}

TEST_F(NoticeLine, ComesAtTheKeystrokeThatMakesTheResultsOldAndGoesWithItsAction) {
    calculate();
    EXPECT_FALSE(bar().isVisible());
    type("58");
    ASSERT_TRUE(bar().isVisible());
    EXPECT_EQ(bar().sign(), QStringLiteral("stale"));
    EXPECT_TRUE(design->control("NoticeLabel").caption().starts_with(stale));
    QTest::mouseClick(&action(), Qt::LeftButton);
    Desk::settle();
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(plain(temperature().text()), "58.0");  // the click has ended the visit
}

TEST_F(NoticeLine, IsWorkedByKey) {
    calculate();
    type("58");
    ASSERT_TRUE(bar().isVisible());
    action().setFocus();
    QTest::keyClick(&action(), Qt::Key_Space);
    Desk::settle();
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(NoticeLine, LeavesTheKeyToTheButtonThatItsOwnOneStandsInFor) {
    calculate();
    type("58");
    ASSERT_TRUE(bar().isVisible());
    const auto& calculation = static_cast<QAbstractButton&>(widget("CACalculateCommand"));
    EXPECT_EQ(plain(calculation.text()), "&Calculate");
    EXPECT_EQ(plain(action().text()), "Calculate");
    EXPECT_TRUE(action().shortcut().isEmpty());
    design->choose("BHTabs", 5);
    Desk::settle();
    EXPECT_EQ(plain(calculation.text()), "&Calculate") << "beside the Pump Power Calculator";
    EXPECT_NE(static_cast<QAbstractButton&>(widget("EKWPumpPowerCommand")).shortcut(),
              calculation.shortcut());
}

TEST_F(NoticeLine, ShowsTheSignOfOlderResultsForThoseAlone) {
    calculate();
    type("500");
    ASSERT_TRUE(bar().isVisible());
    EXPECT_EQ(bar().sign(), QStringLiteral("refused"));
}

TEST_F(NoticeLine, MovesNoFieldWhenItComesAndGoes) {
    calculate();
    const QPoint before = place();
    type("58");
    ASSERT_TRUE(bar().isVisible());
    EXPECT_EQ(place(), before);
    tell("Results are out of date", "");
    EXPECT_EQ(place(), before);
    tell("", "");
    EXPECT_EQ(place(), before);
}

/// Its reason takes a second line beside what is told of older results.
TEST_F(NoticeLine, MovesNoFieldWhenAValueIsRefused) {
    calculate();
    const QPoint before = place();
    type("500");
    ASSERT_TRUE(bar().isVisible());
    const auto* told = static_cast<QLabel*>(&widget("NoticeLabel"));
    EXPECT_GE(told->heightForWidth(told->width()), 2 * told->fontMetrics().height());
    EXPECT_EQ(place(), before);
}

TEST_F(NoticeLine, IsToldToAScreenReaderOnceForEachNewText) {
    std::vector<std::string> heard;
    bar().tell = [&heard](QAccessibleEvent& event) {
        EXPECT_EQ(event.type(), QAccessible::Alert);
        heard.push_back(plain(event.accessibleInterface()->text(QAccessible::Name)));
    };
    calculate();
    EXPECT_EQ(heard, std::vector<std::string>{});
    type("58.5");
    EXPECT_EQ(heard, std::vector<std::string>{design->control("NoticeLabel").caption()});
    calculate();
    type("59");
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(NoticeLine, WrapsALongTextAndShowsItWhole) {
    std::string text = "A zone file could not be found.";
    for (int i = 0; i < 8; ++i) text += " And there is more that a person must know.";
    tell(text, "Find");
    auto* label = static_cast<QLabel*>(&widget("NoticeLabel"));
    EXPECT_TRUE(bar().isVisible());
    EXPECT_GT(label->height(), 2 * label->fontMetrics().height());
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    EXPECT_TRUE(bar().rect().contains(label->geometry()));
    EXPECT_TRUE(bar().rect().contains(action().geometry()));
}

TEST_F(NoticeLine, AboveAllWindowsGoesByItsButton) {
    const std::string letter = desk.folder() + "/letter.vht";
    replaceWholeFile(letter, "Dear aunt");
    QWidget* frame = desk.shelf.frameOf(*design);
    frame->setGeometry(0, 0, 700, desk.window->area().height());
    desk.platform.picks = {letter};
    desk.window->menu().action("mnuFileOpen")->trigger();
    Desk::settle();
    auto* label = desk.window->centralWidget()->findChild<QLabel*>(QStringLiteral("NoticeLabel"));
    ASSERT_NE(label, nullptr);
    EXPECT_TRUE(label->isVisible());
    EXPECT_EQ(plain(label->text()),
              "letter.vht was not opened: it ends before it begins as a file of this program does. "
              "Choose another file, or an earlier copy of this one.");
    auto* close = label->parentWidget()->findChild<QAbstractButton*>();
    ASSERT_NE(close, nullptr);
    const int above = label->parentWidget()->parentWidget()->height();
    const int area = desk.window->area().height();
    EXPECT_EQ(frame->height(), area) << "it is not cut off";
    QTest::mouseClick(close, Qt::LeftButton);
    Desk::settle();
    EXPECT_FALSE(label->isVisible());
    EXPECT_EQ(desk.main().control("NoticeLabel").caption(), "");
    EXPECT_EQ(desk.window->area().height(), area + above);
    EXPECT_EQ(frame->height(), desk.window->area().height());
}

/// The ground of a picture, and the colour on it that stands out most.
std::pair<QColor, QColor> groundAndText(const QImage& image) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    const QColor ground(most->first);
    QColor text = ground;
    for (const auto& [colour, count] : counts)
        if (contrast(QColor(colour), ground) > contrast(text, ground)) text = QColor(colour);
    return {ground, text};
}

TEST_F(NoticeLine, HasEnoughContrastInBothSchemes) {
    tell(stale, "Calculate");
    for (const Scheme scheme : {Scheme::light, Scheme::dark}) {
        applyTheme(*qApp, scheme);
        Desk::settle();
        const Look& look = scheme == Scheme::dark ? darkLook() : lightLook();
        const auto [ground, text] =
            groundAndText(bar().grab(widget("NoticeLabel").geometry()).toImage());
        EXPECT_EQ(ground, look.stale);
        EXPECT_GE(contrast(text, ground), 4.5);
    }
    applyTheme(*qApp, Scheme::light);
}

/// What no window is there to tell stands in the main window, above all others.
class MainNotice : public testing::Test {
 protected:
    ~MainNotice() override { EXPECT_TRUE(desk.faults.empty()); }

    QLabel& label() { return *desk.window->centralWidget()->findChild<QLabel*>("NoticeLabel"); }
    void open(const std::string& file) {
        desk.window->openFiles({VARNHOLT_SOURCE_DIR "/examples/" + file});
        Desk::settle();
    }
    /// A zone file under the name of a project.
    void openMistaken() {
        const std::string mistaken = desk.folder() + "/work files/mistaken.vht";
        std::filesystem::copy_file(VARNHOLT_SOURCE_DIR "/examples/office.zon", mistaken);
        desk.window->openFiles({mistaken});
        Desk::settle();
    }

    Desk desk;
};

TEST_F(MainNotice, TakesNoPlaceWhileThereIsNothingToTell) {
    EXPECT_FALSE(label().isVisible());
    open("office.vht");
    EXPECT_FALSE(label().isVisible());
}

TEST_F(MainNotice, NamesAFileOfAnotherKindAboveThePages) {
    openMistaken();
    EXPECT_TRUE(desk.main().windows().empty());
    ASSERT_TRUE(label().isVisible());
    EXPECT_EQ(plain(label().text()), "mistaken.vht was not opened: it is a zone file.");
    EXPECT_EQ(plain(label().text()), desk.main().control("NoticeLabel").caption());
    EXPECT_EQ(label().textFormat(), Qt::PlainText);
    // The whole of it, at the top of the window, within the edge of its bar.
    EXPECT_LT(label().mapTo(desk.window->centralWidget(), QPoint()).y(), 2 * gridStep);
    EXPECT_GE(label().height(), label().heightForWidth(label().width()));
}

TEST_F(MainNotice, GoesWithTheNextFileOrCommand) {
    openMistaken();
    open("office.vht");
    EXPECT_FALSE(label().isVisible());
    EXPECT_FALSE(desk.main().windows().empty());
}

}  // namespace
}  // namespace varnholt
