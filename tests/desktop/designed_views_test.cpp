// SPDX-License-Identifier: GPL-3.0-or-later
// The views of the designs and the loads windows: in the order of their forms, with pictures that
// follow.
#include <gtest/gtest.h>

#include <QTabWidget>
#include <algorithm>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

/// Names of the form's controls in the order in which Tab visits them.
std::vector<std::string> walkedByTab(const Form& form, FormWindow& window) {
    std::vector<std::string> walked;
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
        const std::string name = at->objectName().toStdString();
        if ((at->focusPolicy() & Qt::TabFocus) == 0 || !form.has(name)) continue;
        // The pane hands the focus on to its bar of tabs.
        if (form.control(name).kind() != ControlKind::tabs) walked.push_back(name);
    }
    return walked;
}

class DesignedViews : public testing::Test {
 protected:
    /// The form of the window that a menu entry opens.
    ChildWindow& opened(const char* command) {
        desk.main().click(command);
        return *desk.main().windows().back();
    }

    void expectReadingOrder(const char* command) {
        ChildWindow& form = opened(command);
        FormWindow window(form, views.maker(), {});
        window.binder().buildAll();
        std::vector<std::string> walked = walkedByTab(form, window);
        // The summary stands above the zone, where it is seen as soon as it opens.
        std::erase_if(walked, [&](const std::string& name) {
            return form.control(name).container() == "LOSummaryPicture";
        });
        // Calculate stands in the strip below the pages, in sight from all of them: it comes last.
        if (form.has("CACalculateCommand")) {
            ASSERT_EQ(walked.back(), "CACalculateCommand");
            walked.pop_back();
        }
        std::vector<std::string> added;
        for (const auto& control : form.controls())
            if (std::find(walked.begin(), walked.end(), control->name()) != walked.end())
                added.push_back(control->name());
        EXPECT_EQ(walked, added);
        EXPECT_GT(walked.size(), 20U);
    }

    Desk desk;
    ViewRegistry views;
};

TEST_F(DesignedViews, OfABoreholeDesignIsWalkedInTheOrderOfItsForm) {
    expectReadingOrder("NewBorehole");
}

TEST_F(DesignedViews, OfAHorizontalDesignIsWalkedInTheOrderOfItsForm) {
    expectReadingOrder("NewHorizontal");
}

TEST_F(DesignedViews, OfASurfaceWaterDesignIsWalkedInTheOrderOfItsForm) {
    expectReadingOrder("NewSurfaceWater");
}

TEST_F(DesignedViews, OfTheZoneManagerIsWalkedInTheOrderOfItsForm) {
    expectReadingOrder("mnuZoneManage");
}

TEST_F(DesignedViews, OfTheAverageBlockIsWalkedInTheOrderOfItsForm) {
    expectReadingOrder("mnuAvgBlock");
}

TEST_F(DesignedViews, OfTheHeatPumpEditorIsWalkedInTheOrderOfItsForm) {
    expectReadingOrder("EditAdd");
}

TEST_F(DesignedViews, LeaveNoControlOut) {
    for (const char* command : {"NewBorehole", "NewHorizontal", "NewSurfaceWater", "mnuZoneManage",
                                "mnuAvgBlock", "EditAdd"}) {
        ChildWindow& form = opened(command);
        FormWindow window(form, views.maker(), {});
        EXPECT_EQ(window.binder().unshown(), std::vector<std::string>{}) << form.formName();
    }
}

TEST_F(DesignedViews, TellAScreenReaderEachFigureWithItsLabel) {
    ChildWindow& form = opened("NewBorehole");
    FormWindow window(form, views.maker(), {});
    const QWidget* figure = window.binder().widget("CATotalLengthLabel(0)");
    form.control("CATotalLengthLabel(0)").setCaption("812.5");
    EXPECT_EQ(plain(figure->accessibleName()), "Total Length (ft), Cooling, 812.5");
    form.control("CATotalLengthLabel(2)").setCaption("Total Length (m):");
    EXPECT_EQ(plain(figure->accessibleName()), "Total Length (m), Cooling, 812.5");
    const QWidget* other = window.binder().widget("CATotalLengthLabel(1)");
    form.control("CATotalLengthLabel(1)").setCaption("812.5");
    EXPECT_EQ(plain(other->accessibleName()), "Total Length (m), Heating, 812.5");
}

TEST_F(DesignedViews, BuildAPageWhenItIsTurnedTo) {
    ChildWindow& form = opened("NewBorehole");
    FormWindow window(form, views.maker(), {});
    window.show();
    Binder& binder = window.binder();
    EXPECT_NE(binder.find("CACalculateCommand"), nullptr);
    EXPECT_EQ(binder.find("FLInletTempText(0)"), nullptr);
    EXPECT_EQ(binder.find("SOGroundTempText"), nullptr);
    static_cast<QTabWidget*>(binder.widget("BHTabs"))->setCurrentIndex(1);
    ASSERT_NE(binder.find("FLInletTempText(0)"), nullptr);
    EXPECT_TRUE(binder.find("FLInletTempText(0)")->widget()->isVisible());
    EXPECT_EQ(binder.find("SOGroundTempText"), nullptr);
}

TEST_F(DesignedViews, BuildAPanelWhenItIsShown) {
    ChildWindow& form = opened("mnuZoneManage");
    form.click("LONewCommand");
    FormWindow window(form, views.maker(), {});
    window.show();
    EXPECT_EQ(window.binder().find("LOReturnFromSummaryCommand"), nullptr);
    form.click("LOSummaryCommand");
    ASSERT_NE(window.binder().find("LOReturnFromSummaryCommand"), nullptr);
    Desk::settle();
    EXPECT_TRUE(window.binder().find("LOReturnFromSummaryCommand")->widget()->isVisible());
}

TEST_F(DesignedViews, ShowOnALatePageWhatHasChangedBefore) {
    ChildWindow& form = opened("NewBorehole");
    FormWindow window(form, views.maker(), {});
    form.type("SOGroundTempText", "57.5");
    form.control("SOGroundTempText").setEnabled(false);
    const BoundControl* field = window.binder().require("SOGroundTempText");
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(std::get<std::string>(field->shown(Property::text)), "57.5");
    EXPECT_FALSE(std::get<bool>(field->shown(Property::enabled)));
}

TEST_F(DesignedViews, BuildALatePageWithoutTurningToIt) {
    ChildWindow& form = opened("NewBorehole");
    FormWindow window(form, views.maker(), {});
    window.show();
    const QWidget* field = window.binder().require("INCommentsRichTextBox")->widget();
    EXPECT_EQ(form.control("BHTabs").index(), 0);
    EXPECT_FALSE(field->isVisible());
    EXPECT_EQ(window.binder().require("NoSuchControl"), nullptr);
}

TEST_F(DesignedViews, KeepTheReadingOrderWhateverPageIsBuiltFirst) {
    ChildWindow& form = opened("NewBorehole");
    FormWindow inOrder(form, views.maker(), {});
    inOrder.binder().buildAll();
    FormWindow backwards(form, views.maker(), {});
    for (const int page : {6, 3, 1, 5, 2, 4})
        static_cast<QTabWidget*>(backwards.binder().widget("BHTabs"))->setCurrentIndex(page);
    EXPECT_EQ(walkedByTab(form, backwards), walkedByTab(form, inOrder));
}

TEST_F(DesignedViews, DrawTheBoreAsItIsTyped) {
    ChildWindow& form = opened("NewBorehole");
    form.choose("BHTabs", 3);
    FormWindow window(form, views.maker(), {});
    window.show();
    form.type("PIBoreholeDiameterText", "6.5");
    const auto* bore = static_cast<Drawing*>(window.binder().widget("imgBore"));
    EXPECT_TRUE(bore->description().contains(QStringLiteral("6.50 in")));
}

TEST_F(DesignedViews, DrawTheTrenchesAsTheyAreTyped) {
    ChildWindow& form = opened("NewHorizontal");
    form.choose("HZTabs", 4);
    FormWindow window(form, views.maker(), {});
    window.show();
    form.type("PASeparationText(1)", "7");
    const auto* section = static_cast<Drawing*>(window.binder().widget("PADiagramPicture(1)"));
    EXPECT_TRUE(section->isVisible());
    EXPECT_TRUE(section->description().contains(QStringLiteral("7.0 ft")));
    form.click("PAConfigurationOption(4)");
    EXPECT_FALSE(section->isVisible());
    EXPECT_TRUE(window.binder().widget("PADiagramPicture(0)")->isVisible());
    const auto* plan = static_cast<Drawing*>(window.binder().widget("imgConfiguration(4)"));
    EXPECT_TRUE(plan->isVisible());
    form.slide("PAConfigurationUpDown(0)", 9);
    EXPECT_TRUE(plan->description().contains(QStringLiteral("Plan of 9 trenches")));
}

TEST_F(DesignedViews, DrawThePondsCircuitAsItIsTyped) {
    ChildWindow& form = opened("NewSurfaceWater");
    FormWindow window(form, views.maker(), {});
    window.show();
    form.type("PIHeaderNumberText(1)", "4");
    form.type("PIHeaderLengthText(1)", "160");
    const auto* circuit = static_cast<Drawing*>(window.binder().widget("imgCircuit"));
    EXPECT_TRUE(circuit->description().contains(QStringLiteral("branches of each: 4")));
    EXPECT_TRUE(circuit->description().contains(QStringLiteral("160.0 ft in soil")));
}

TEST_F(DesignedViews, TellTheGroundsTemperatureAsItsDepthIsTyped) {
    ChildWindow& form = opened("NewSurfaceWater");
    form.choose("SWTabs", 2);
    FormWindow window(form, views.maker(), {});
    window.show();
    form.type("SOHeaderDepthText", "0");
    form.type("SOGroundTempText", "50");
    form.type("SOAirTempSwingText", "20");
    Desk::settle();
    // At the surface the coldest day has 50 - 20, and the warmest is the same day in a new design.
    const auto* ground = static_cast<Drawing*>(window.binder().widget("imgGroundTemp"));
    EXPECT_TRUE(ground->description().contains(QStringLiteral("30.0 deg F")))
        << ground->description().toStdString();
}

TEST_F(DesignedViews, DrawAnewWhatAnotherWindowsActionHasChanged) {
    ChildWindow& form = opened("NewBorehole");
    form.choose("BHTabs", 3);
    FormWindow window(form, views.maker(), {});
    window.show();
    Desk::settle();
    desk.main().click("Metric");
    Desk::settle();
    const auto* bore = static_cast<Drawing*>(window.binder().widget("imgBore"));
    // 5 in are 127 mm.
    EXPECT_TRUE(bore->description().contains(QStringLiteral("127.00 mm")));
}

TEST_F(DesignedViews, LightTheLampOfTheLinkedWindow) {
    ChildWindow& form = opened("NewBorehole");
    opened("mnuAvgBlock");
    desk.main().activate(form);
    desk.main().click("mnuLink");
    FormWindow window(form, views.maker(), {});
    window.show();
    EXPECT_TRUE(window.binder().widget("imgLinkLight(8)")->isEnabled());
    EXPECT_FALSE(window.binder().widget("imgLinkLight(0)")->isEnabled());
    EXPECT_FALSE(window.binder().widget("imgLinkLight(6)")->isVisible());
}

TEST_F(DesignedViews, LetTheLampBlinkForAPersonAndNotInTheMidstOfAScriptsPictures) {
    ChildWindow& form = opened("NewBorehole");
    opened("mnuAvgBlock");
    desk.main().activate(form);
    desk.main().click("mnuLink");
    FormWindow window(form, views.maker(), {});
    window.show();
    const std::string lamp = "imgLinkLight(8)";
    const QImage lit = window.binder().widget(lamp)->grab().toImage();
    FormWindow scripted(form, views.maker(), {});
    scripted.binder().setScripted();
    scripted.show();
    form.control(lamp).flash();
    EXPECT_NE(window.binder().widget(lamp)->grab().toImage(), lit);
    EXPECT_EQ(scripted.binder().widget(lamp)->grab().toImage(), lit);
}

}  // namespace
}  // namespace varnholt
