// SPDX-License-Identifier: GPL-3.0-or-later
// What a person meets first: the start page, and designs that have no loads yet.
#include <gtest/gtest.h>

#include <QPushButton>
#include <filesystem>

#include "basis/file_system.h"
#include "desk.h"
#include "desktop/windows/start_page.h"
#include "frame/design_document.h"
#include "loads/frmAvgBlock.h"
#include "loads/frmZoneManage.h"

namespace varnholt {
namespace {

QAbstractButton* buttonNamed(QWidget& page, const char* name) {
    for (auto* button : page.findChildren<QAbstractButton*>())
        if (button->isVisible() && button->accessibleName() == QLatin1String(name)) return button;
    return nullptr;
}

class FirstMinutes : public testing::Test {
 protected:
    FirstMinutes() { Desk::settle(); }
    ~FirstMinutes() override { EXPECT_TRUE(desk.faults.empty()); }
    StartPage& page() { return *desk.window->findChild<StartPage*>(); }

    Desk desk;
};

TEST_F(FirstMinutes, ADesignWithoutLoadsOffersTheWindowsInWhichTheyAreEntered) {
    desk.main().click("NewBorehole");
    Desk::settle();
    ChildWindow& design = *desk.main().activeWindow();
    QWidget* first = desk.shelf.windowOf(design)->findChild<QWidget*>(QStringLiteral("firstLoads"));
    ASSERT_NE(first, nullptr);
    ASSERT_TRUE(first->isVisible());
    const QList<QPushButton*> commands = first->findChildren<QPushButton*>();
    ASSERT_EQ(commands.size(), 3);
    commands[2]->click();
    Desk::settle();
    EXPECT_TRUE(desk.platform.told.back().starts_with("Nothing is linked: "));
    commands[0]->click();
    Desk::settle();
    EXPECT_NE(dynamic_cast<frmZoneManage*>(desk.main().activeWindow()), nullptr);
    commands[1]->click();
    Desk::settle();
    EXPECT_NE(dynamic_cast<frmAvgBlock*>(desk.main().activeWindow()), nullptr);
    desk.main().activeWindow()->click("LONewCommand");
    desk.main().close(*desk.main().find("frmZoneManage"));
    desk.main().activate(design);
    Desk::settle();
    commands[2]->click();
    Desk::settle();
    EXPECT_FALSE(first->isVisible());
}

TEST_F(FirstMinutes, OpenATemplateThatHasNoFileOfItsOwn) {
    QAbstractButton* office = buttonNamed(page(), "Office");
    ASSERT_NE(office, nullptr);
    office->click();
    Desk::settle();
    auto* design = dynamic_cast<DesignDocument*>(desk.main().find("frmBHDesign"));
    ASSERT_NE(design, nullptr);
    EXPECT_FALSE(design->currentFileCheck);
    EXPECT_EQ(design->FileName, "");
}

TEST_F(FirstMinutes, OpenAnExampleAndOfferItAsRecentAfterwards) {
    QAbstractButton* example = buttonNamed(page(), "trench-office");
    ASSERT_NE(example, nullptr);
    example->click();
    Desk::settle();
    ASSERT_NE(desk.main().find("frmHZDesign"), nullptr);
    for (ChildWindow* window : desk.main().windows()) desk.main().close(*window);
    Desk::settle();
    EXPECT_NE(buttonNamed(page(), "trench-office.vht"), nullptr);
}

/// What a button of the start page shows at its left.
QImage startPictureOf(QWidget& page, const char* name) {
    QAbstractButton* button = buttonNamed(page, name);
    return button == nullptr ? QImage() : button->grab({8, 4, 72, button->height() - 8}).toImage();
}

TEST_F(FirstMinutes, ShowEachExampleByAPictureDrawnFromItsFile) {
    const QImage office = startPictureOf(page(), "office"),
                 pond = startPictureOf(page(), "school-pond");
    EXPECT_NE(office, startPictureOf(page(), "school-north"));
    EXPECT_NE(office, pond);
    EXPECT_NE(startPictureOf(page(), "house"), startPictureOf(page(), "trench-office"));
    const std::filesystem::path examples = desk.folder() + "/work files";
    const auto showAnew = [this] {
        page().hide();
        page().show();
        Desk::settle();
    };
    std::filesystem::copy_file(examples / "school-pond.vht", examples / "office.vht",
                               std::filesystem::copy_options::overwrite_existing);
    showAnew();
    EXPECT_EQ(startPictureOf(page(), "office"), pond);
    // A file that holds nothing to draw is shown by the icon of its kind.
    replaceWholeFile((examples / "office.vht").string(), "");
    showAnew();
    EXPECT_NE(startPictureOf(page(), "office"), pond);
    EXPECT_NE(startPictureOf(page(), "office"), office);
}

TEST_F(FirstMinutes, StandBelowEachOtherInANarrowWindow) {
    const auto placeOf = [this](const char* name) {
        return buttonNamed(page(), name)->mapTo(&page(), QPoint());
    };
    EXPECT_GT(placeOf("Office").x(), placeOf("New Borehole").x());
    desk.window->resize(683, 700);
    Desk::settle();
    EXPECT_GT(placeOf("Office").y(), placeOf("New Borehole").y());
}

}  // namespace
}  // namespace varnholt
