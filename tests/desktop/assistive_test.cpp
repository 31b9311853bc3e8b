// SPDX-License-Identifier: GPL-3.0-or-later
// What assistive technology does with the controls of a window reaches its form: it acts on them
// without keys and without a pointer.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "desk.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

class Assistive : public testing::Test {
 protected:
    Assistive() {
        QAccessible::setActive(true);
        desk.main().click("NewBorehole");
        design = desk.main().activeWindow();
        Desk::settle();
    }
    ~Assistive() override {
        QAccessible::setActive(false);
        EXPECT_TRUE(desk.faults.empty());
    }

    QWidget& widget(const char* name, int page) {
        design->choose("BHTabs", page);
        Desk::settle();
        return *desk.shelf.windowOf(*design)->binder().require(name)->widget();
    }
    static QAccessibleInterface& told(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static void toggle(QWidget& widget) {
        told(widget).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        Desk::settle();
    }

    Desk desk;
    ChildWindow* design = nullptr;
};

TEST_F(Assistive, WritesANumberAsIfItWereTypedAndLeft) {
    QWidget& ground = widget("SOGroundTempText", 2);
    told(ground).setText(QAccessible::Value, QStringLiteral("58"));
    Desk::settle();
    EXPECT_EQ(design->control("SOGroundTempText").text(), "58.0");
    EXPECT_EQ(plain(static_cast<QLineEdit&>(ground).text()), "58.0");
}

TEST_F(Assistive, IsToldWhyANumberIsRefused) {
    QWidget& ground = widget("SOGroundTempText", 2);
    ground.setFocus();
    told(ground).setText(QAccessible::Value, QStringLiteral("500"));
    EXPECT_EQ(plain(static_cast<QLineEdit&>(ground).text()), "500");
    Desk::settle();
    EXPECT_EQ(design->control("SOGroundTempText").text(), "62.0");
}

TEST_F(Assistive, TogglesACheckOnce) {
    const bool before = design->control("MetricCheck").checked();
    toggle(widget("MetricCheck", 2));
    EXPECT_NE(design->control("MetricCheck").checked(), before);
    // 62 deg F are 16.7 deg C: the units have changed with it.
    EXPECT_EQ(design->control("SOGroundTempText").text(), "16.7");
}

TEST_F(Assistive, ChoosesOneOfSeveralOptions) {
    ASSERT_FALSE(design->control("PIPlacementOption(0)").checked());
    toggle(widget("PIPlacementOption(0)", 3));
    EXPECT_TRUE(design->control("PIPlacementOption(0)").checked());
    EXPECT_FALSE(design->control("PIPlacementOption(1)").checked());
}

TEST_F(Assistive, ChoosesAnEntryOfAComboThatIsNotOpen) {
    auto& fluids = static_cast<QComboBox&>(widget("FLFluidTypeCombo", 1));
    // A screen reader may be started when the windows are there already.
    QAccessible::setActive(true);
    fluids.view()->selectionModel()->select(fluids.model()->index(3, 0),
                                            QItemSelectionModel::ClearAndSelect);
    Desk::settle();
    EXPECT_EQ(design->control("FLFluidTypeCombo").index(), 3);
    EXPECT_EQ(fluids.currentIndex(), 3);
}

TEST_F(Assistive, WritesIntoAComboAsIfItWereTypedAndLeft) {
    auto& fluids = static_cast<QComboBox&>(widget("FLFluidTypeCombo", 1));
    fluids.clearFocus();
    QAccessibleInterface& line = told(*fluids.lineEdit());
    EXPECT_EQ(plain(line.text(QAccessible::Name)), "Fluid Type");
    line.setText(QAccessible::Value, QStringLiteral("Site mixture"));
    Desk::settle();
    EXPECT_EQ(design->control("FLFluidTypeCombo").text(), "Site mixture");
    EXPECT_EQ(design->control("FLFluidTypeCombo").index(), -1);
    EXPECT_EQ(design->visitedField(), "");
    line.editableTextInterface()->insertText(0, QStringLiteral("The "));
    Desk::settle();
    EXPECT_EQ(design->control("FLFluidTypeCombo").text(), "The Site mixture");
    line.editableTextInterface()->deleteText(0, 4);
    Desk::settle();
    EXPECT_EQ(design->control("FLFluidTypeCombo").text(), "Site mixture");
    EXPECT_EQ(plain(fluids.currentText()), "Site mixture");
}

TEST_F(Assistive, ChoosesTheEntryOfAComboWhoseNameItWrites) {
    auto& fluids = static_cast<QComboBox&>(widget("FLFluidTypeCombo", 1));
    const std::string entry = design->control("FLFluidTypeCombo").items()[2];
    told(*fluids.lineEdit()).setText(QAccessible::Value, qt(entry));
    Desk::settle();
    EXPECT_EQ(design->control("FLFluidTypeCombo").index(), 2);
    EXPECT_EQ(fluids.currentIndex(), 2);
}

/// The toolkit tells of the new text before it tells of the choice.
TEST_F(Assistive, IsNotTakenForAPersonWhoChoosesOrTypes) {
    auto& fluids = static_cast<QComboBox&>(widget("FLFluidTypeCombo", 1));
    const Binder& binder = desk.shelf.windowOf(*design)->binder();
    const int before = binder.actions();
    fluids.setCurrentIndex(2);
    Q_EMIT fluids.activated(2);
    Desk::settle();
    EXPECT_EQ(binder.actions(), before + 1);
    fluids.lineEdit()->selectAll();
    QInputMethodEvent typed;
    typed.setCommitString(QStringLiteral("Site mixture"));
    QCoreApplication::sendEvent(fluids.lineEdit(), &typed);
    Desk::settle();
    EXPECT_EQ(binder.actions(), before + 2);
    EXPECT_EQ(design->control("FLFluidTypeCombo").text(), "Site mixture");
}

/// The bus offers to write into a field whatever keys may do.
TEST_F(Assistive, WritesNothingIntoALockedField) {
    auto& percent = static_cast<QLineEdit&>(widget("FLPercentAntifreezeText", 1));
    design->choose("FLFluidTypeCombo", 0);
    const Control& held = design->control("FLPercentAntifreezeText");
    ASSERT_TRUE(held.locked());
    const std::string before = held.text();
    told(percent).setText(QAccessible::Value, QStringLiteral("50"));
    Desk::settle();
    EXPECT_EQ(held.text(), before);
    EXPECT_EQ(plain(percent.text()), before);
}

TEST_F(Assistive, ClicksOnceWhereAPersonDoes) {
    auto& metric = static_cast<QAbstractButton&>(widget("MetricCheck", 2));
    const bool before = design->control("MetricCheck").checked();
    metric.click();
    Desk::settle();
    EXPECT_NE(design->control("MetricCheck").checked(), before);
}

}  // namespace
}  // namespace varnholt
