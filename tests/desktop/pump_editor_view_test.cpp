// SPDX-License-Identifier: GPL-3.0-or-later
// The heat pump editor in its real window: typing to find a pump, typing into a table, pasting.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include "desk.h"
#include "desktop/drawings/drawings.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

class PumpEditorWindow : public testing::Test {
 protected:
    PumpEditorWindow() {
        desk.main().click("EditAdd");
        editor = desk.main().find("frmHPEdit");
        // The second series of the first manufacturer.
        editor->choose("MfgCombo", 2);
        editor->choose("SeriesCombo", 2);
        Desk::settle();
    }

    Binder& binder() { return desk.shelf.windowOf(*editor)->binder(); }
    QPoint placeOf(const std::string& control) {
        return binder().widget(control)->mapToGlobal(QPoint());
    }
    int rightOf(const std::string& control) {
        return placeOf(control).x() + binder().widget(control)->width();
    }
    QWindow* screen() { return desk.window->windowHandle(); }
    std::vector<std::string> pumps() { return editor->control("PumpNamesList").items(); }

    Desk desk;
    ChildWindow* editor = nullptr;
};

TEST_F(PumpEditorWindow, FindsAPumpByTheBeginningOfItsName) {
    ASSERT_GT(pumps().size(), 3U);
    auto* list = static_cast<ListView*>(binder().widget("PumpNamesList"));
    list->setFocus();
    const std::string third = pumps()[2];
    for (const char key : third) QTest::keyClick(screen(), key);
    Desk::settle();
    EXPECT_EQ(editor->control("PumpModelText").text(), third);
}

TEST_F(PumpEditorWindow, DrawsThePointsWhileTheyAreTyped) {
    editor->choose("PumpDataTabs", 1);
    Desk::settle();
    auto* chart = static_cast<Drawing*>(binder().widget("CoolingRatingChart"));
    const QString before = chart->description();
    EXPECT_TRUE(before.contains(QStringLiteral("3 points"))) << plain(before);
    auto* field = static_cast<QLineEdit*>(binder().widget("CoolingFR1CapacityText(1)"));
    field->setFocus();
    field->selectAll();
    QTest::keyClick(screen(), '9');
    Desk::settle();
    EXPECT_NE(chart->description(), before);
    EXPECT_TRUE(chart->description().contains(QStringLiteral("older"))) << plain(before);
    EXPECT_EQ(binder().widget("CalculateCoefficientsCommand(0)")->property("tone"), "alarm");
}

// A percent of 10001 stretches an axis of 80 to 120 a hundredfold, and 0.001 shrinks one.
TEST_F(PumpEditorWindow, DrawsWhatIsFarFromTheOtherPoints) {
    editor->choose("PumpDataTabs", 4);
    Desk::settle();
    for (const char* percent : {"10001", "1e8", "120", "100.001", "-1e8", "120"}) {
        editor->type("HeatingPercentNominalText(4)", percent);
        Desk::settle();
    }
    editor->choose("PumpDataTabs", 1);
    for (const char* capacity : {"1e8", "-5", "1e-3", "12"}) {
        editor->type("CoolingFR1CapacityText(2)", capacity);
        Desk::settle();
    }
    EXPECT_EQ(editor->control("HeatingPercentNominalText(4)").text(), "120");
}

TEST_F(PumpEditorWindow, TakesASpreadsheetsCellsByTheKeyOfPasting) {
    editor->choose("PumpDataTabs", 1);
    Desk::settle();
    desk.platform.clipboardText = "31\t2\n32\t2.1\n";
    auto* field = static_cast<QLineEdit*>(binder().widget("CoolingFR1CapacityText(0)"));
    field->setFocus();
    QTest::keyClick(screen(), Qt::Key_V, Qt::ControlModifier);
    Desk::settle();
    for (const auto& [name, text] : {std::pair{"CoolingFR1CapacityText(0)", "31.0"},
                                     std::pair{"CoolingFR1PowerText(0)", "2.00"},
                                     std::pair{"CoolingFR1CapacityText(1)", "32.0"},
                                     std::pair{"CoolingFR1PowerText(1)", "2.10"}})
        EXPECT_EQ(static_cast<QLineEdit*>(binder().widget(name))->text(), text) << name;
}

TEST_F(PumpEditorWindow, DisablesThePagesOfAnEmptySeries) {
    desk.platform.answers = {Answer::yes};
    editor->click("ClearCommand");
    Desk::settle();
    EXPECT_FALSE(binder().widget("PumpModelText")->isEnabled());
    editor->click("NewCommand");
    Desk::settle();
    EXPECT_TRUE(binder().widget("PumpModelText")->isEnabled());
}

TEST_F(PumpEditorWindow, StandsTheResultsOfATestBelowWhatWasTypedForThem) {
    editor->choose("PumpDataTabs", 5);
    Desk::settle();
    for (const std::string mode : {"(0)", "(1)"})
        EXPECT_EQ(rightOf("TestCapacityLabel" + mode), rightOf("TestSourceEWTText" + mode)) << mode;
}

TEST_F(PumpEditorWindow, KeepsTheRowsOfATableEquallyFarApart) {
    editor->choose("PumpDataTabs", 3);
    Desk::settle();
    const auto top = [this](int row) {
        return placeOf("CoolingELTText(" + std::to_string(row) + ")").y();
    };
    EXPECT_EQ(top(4) - top(3), top(1) - top(0));
    EXPECT_EQ(top(3) - top(2), top(1) - top(0));
}

FitCurvesPicture sampleFit() {
    FitCurvesPicture picture;
    picture.emptyText = 4297;
    for (CurvePicture* curve :
         {&picture.curves.capacity[cooling], &picture.curves.power[cooling]}) {
        curve->line = {{70, 30}, {80, 28}, {90, 26}};
        curve->measured = {{70, 30}, {80, 28}, {90, 27}};
    }
    return picture;
}

TEST(FitCurvesDrawing, TellsHowTheCurvesFit) {
    Desk desk;
    FitCurvesPicture picture = sampleFit();
    const std::unique_ptr<Drawing> curves(
        newFitCurves([&] { return picture; }, desk.main().texts()));
    curves->show();
    // 26 for 27 is 3.7 percent.
    EXPECT_EQ(curves->description(),
              "Cooling Capacity: 3 points, met within 3.7 %. Cooling Power: 3 points, met within "
              "3.7 %.");
    picture.curves.capacity[cooling].stale = true;
    picture.curves.power[cooling].operating = FitPoint{75, 29};
    curves->refresh();
    EXPECT_EQ(curves->description(),
              "Cooling Capacity: fitted from older data. Cooling Power: 29.0 at 75.0.");
    picture = sampleFit();
    picture.curves.power[cooling].secondStale = true;
    curves->refresh();
    EXPECT_EQ(
        curves->description(),
        "Cooling Capacity: 3 points, met within 3.7 %. Cooling Power: fitted from older data.");
    picture.curves = {};
    curves->refresh();
    EXPECT_EQ(curves->description(), "Type the measured points and calculate the coefficients.");
}

}  // namespace
}  // namespace varnholt
