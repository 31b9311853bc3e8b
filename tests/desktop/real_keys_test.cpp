// SPDX-License-Identifier: GPL-3.0-or-later
// A calculated project worked by keys and the mouse alone.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMenu>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWindow>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/widgets/house_widgets.h"
#include "frame/design_document.h"

namespace varnholt {
namespace {

class RealKeys : public testing::Test {
 protected:
    RealKeys() {
        desk.platform.picks = {VARNHOLT_SOURCE_DIR "/examples/office.vht"};
        desk.main().click("mnuFileOpen");
        design = dynamic_cast<DesignDocument*>(desk.main().find("frmBHDesign"));
        desk.main().activate(*design);
        desk.window->activateWindow();
        Desk::settle();
    }
    ~RealKeys() override { EXPECT_TRUE(desk.faults.empty()); }

    QWidget& widget(const char* name) {
        return *desk.shelf.windowOf(*design)->binder().widget(name);
    }
    void press(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(desk.window->windowHandle(), static_cast<Qt::Key>(key), held);
        Desk::settle();
    }
    double number(const char* name) const { return std::get<double>(design->values().read(name)); }

    Desk desk;
    DesignDocument* design = nullptr;
};

/// Where the handle of the slider stands.
QPoint handleOf(const QSlider& slider) {
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = Qt::Horizontal;
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    return slider.style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
        .center();
}

TEST_F(RealKeys, UndoADragOfTheSliderAsOneStep) {
    auto& slider = static_cast<NumberSlider&>(widget("CAHybridSlider"));
    const double length = number("boreLength(0)");
    const QPoint from = handleOf(slider);
    QTest::mousePress(&slider, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 10; ++step) QTest::mouseMove(&slider, from + QPoint(5 * step, 0));
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, from + QPoint(50, 0));
    Desk::settle();
    const double share = slider.number();
    EXPECT_GT(share, 20);
    EXPECT_LT(number("boreLength(0)"), length);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(slider.number(), 0);
    EXPECT_EQ(number("boreLength(0)"), length);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(slider.number(), share);
}

TEST_F(RealKeys, CalculateByTheBlankOnTheButton) {
    design->choose("BHTabs", 2);
    design->type("SOGroundTempText", "58");
    design->leave("SOGroundTempText");
    design->choose("BHTabs", 0);
    Desk::settle();
    const double length = number("boreLength(0)");
    ASSERT_TRUE(design->control("NoticeLabel").visible());
    widget("CACalculateCommand").setFocus();
    press(Qt::Key_Space);
    EXPECT_FALSE(design->control("NoticeLabel").visible());
    EXPECT_NE(number("boreLength(0)"), length);
}

TEST_F(RealKeys, OpenTheEditMenuAndUndoFromIt) {
    design->choose("BHTabs", 2);
    design->type("SOGroundTempText", "58");
    design->leave("SOGroundTempText");
    Desk::settle();
    press(Qt::Key_E, Qt::AltModifier);
    QMenu* edit = desk.window->menu().menu("mnuEdit");
    ASSERT_TRUE(edit->isVisible());
    QTest::keyClick(edit, Qt::Key_U);
    Desk::settle();
    EXPECT_EQ(design->control("SOGroundTempText").text(), "55.0");
}

}  // namespace
}  // namespace varnholt
