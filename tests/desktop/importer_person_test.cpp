// SPDX-License-Identifier: GPL-3.0-or-later
// The importer and the calculators under a person's own clicks and keys.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <tuple>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/widgets/qt_text.h"
#include "loads/import/frmImport1.h"

namespace varnholt {
namespace {

class ImportPerson : public testing::Test {
 protected:
    ~ImportPerson() override { EXPECT_TRUE(desk.faults.empty()); }

    template <class Widget>
    Widget& widget(Form& form, const std::string& name) {
        return *qobject_cast<Widget*>(desk.shelf.windowOf(form)->binder().widget(name));
    }

    Desk desk;
};

TEST_F(ImportPerson, ClicksACellTypesAndGoesOnWithEnter) {
    Form& form = desk.opened("mnuMonthlyLoadsImport");
    auto& edit = widget<QLineEdit>(form, "txtImport1");
    auto& cell = widget<QLabel>(form, "lblTotal(3)");
    QTest::mouseClick(&cell, Qt::LeftButton);
    Desk::settle();
    EXPECT_TRUE(edit.hasFocus());
    EXPECT_EQ(edit.selectedText(), edit.text());
    // It stands over the cell, at its place and size.
    EXPECT_EQ(edit.geometry(), cell.geometry());
    EXPECT_EQ(edit.accessibleName(), "April, Total Loads, MBtu");
    EXPECT_EQ(cell.accessibleName(), "April, Total Loads, MBtu, 0.0");
    QTest::keyClicks(&edit, QStringLiteral("120"));
    EXPECT_EQ(cell.text(), "120.0");
    EXPECT_EQ(edit.text(), "120");
    QTest::keyClick(&edit, Qt::Key_Return);
    Desk::settle();
    EXPECT_EQ(edit.geometry(), widget<QLabel>(form, "lblTotal(4)").geometry());
    EXPECT_EQ(edit.text(), "0.0");
    QTest::keyClicks(&edit, QStringLiteral("130"));
    QTest::keyClick(&edit, Qt::Key_Tab);
    Desk::settle();
    EXPECT_EQ(edit.text(), "130.0");
    EXPECT_EQ(widget<QLabel>(form, "lblTotal(12)").text(), "250.0");
}

TEST_F(ImportPerson, SeesTheModeOnScreenPressed) {
    Form& form = desk.opened("mnuMonthlyLoadsImport");
    auto& cool = widget<QAbstractButton>(form, "cmdCoolHeat(0)");
    auto& heat = widget<QAbstractButton>(form, "cmdCoolHeat(1)");
    QTest::mouseClick(&heat, Qt::LeftButton);
    EXPECT_TRUE(heat.isChecked());
    EXPECT_FALSE(cool.isChecked());
    // Pressing it once more lets it be.
    QTest::mouseClick(&heat, Qt::LeftButton);
    EXPECT_TRUE(heat.isChecked());
}

TEST_F(ImportPerson, GoesDownTheHoursCalculatorWithEnter) {
    Form& form = desk.opened("mnuEqvHours");
    auto& first = widget<QLineEdit>(form, "txtEqvHours(0)");
    first.setFocus();
    first.selectAll();
    QTest::keyClicks(&first, QStringLiteral("80"));
    QTest::keyClick(&first, Qt::Key_Return);
    Desk::settle();
    EXPECT_EQ(first.text(), "80.0");
    EXPECT_TRUE(widget<QLineEdit>(form, "txtEqvHours(1)").hasFocus());
    auto& december = widget<QLineEdit>(form, "txtEqvHours(12)");
    december.setFocus();
    QTest::keyClick(&december, Qt::Key_Return);
    Desk::settle();
    EXPECT_TRUE(widget<QAbstractButton>(form, "cmdCalculate").hasFocus());
}

TEST_F(ImportPerson, FindsTheResultOfACalculatorLargest) {
    for (const auto& [command, result, input] :
         {std::tuple{"mnuDiffCalc", "txtDiffCalc(4)", "txtDiffCalc(0)"},
          std::tuple{"mnuPumpPowerCalc", "txtPumpPowerCalc(0)", "txtPumpPowerCalc(1)"},
          std::tuple{"mnuEqvHours", "txtEqvHours(13)", "txtEqvHours(0)"}}) {
        Form& form = desk.opened(command);
        EXPECT_GT(widget<QLineEdit>(form, result).height(), widget<QLineEdit>(form, input).height())
            << command;
    }
}

}  // namespace
}  // namespace varnholt
