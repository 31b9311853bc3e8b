// SPDX-License-Identifier: GPL-3.0-or-later
// Where the line lies that says why a field has refused a value.
#include "desktop/widgets/refusal_hint.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <array>

namespace varnholt {
namespace {

/// A window with fields below each other, 24 pixels high and as close as those of a form.
class CrowdedFields : public testing::Test {
 protected:
    CrowdedFields() {
        window.resize(600, 400);
        int y = 160;
        for (QLineEdit& field : fields) {
            field.setParent(&window);
            field.setGeometry(100, y, 80, 24);
            y += 28;
        }
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    bool covers(const QLineEdit& field) const {
        return hint.label()->geometry().intersects(field.geometry());
    }
    void visit(QLineEdit& field) {
        field.setFocus();
        EXPECT_TRUE(QTest::qWaitFor([&field] { return field.hasFocus(); }));
    }

    QWidget window;
    std::array<QLineEdit, 3> fields;
    RefusalHint hint;
    const std::string why = "500 is outside 0 to 100.";
};

TEST_F(CrowdedFields, LeaveTheLineAboveTheFirstAndBelowTheLast) {
    hint.show(&fields[0], why);
    EXPECT_FALSE(covers(fields[0]));
    EXPECT_FALSE(covers(fields[1]));
    EXPECT_LT(hint.label()->y(), fields[0].y());
    hint.show(&fields[2], why);
    EXPECT_FALSE(covers(fields[1]));
    EXPECT_GT(hint.label()->y(), fields[2].y());
}

TEST_F(CrowdedFields, AreUncoveredWhenTheyAreVisited) {
    visit(fields[1]);
    hint.show(&fields[1], why);
    ASSERT_TRUE(covers(fields[2])) << "there is no room beside it that covers no other";
    EXPECT_TRUE(hint.label()->isVisible());
    visit(fields[0]);
    EXPECT_TRUE(hint.label()->isVisible()) << "it does not lie over this one";
    visit(fields[2]);
    EXPECT_FALSE(hint.label()->isVisible());
    EXPECT_TRUE(hint.isShownFor(&fields[1], why)) << "it does not come again by itself";
    visit(fields[1]);
    EXPECT_TRUE(hint.label()->isVisible());
    hint.hide();
    visit(fields[0]);
    visit(fields[1]);
    EXPECT_FALSE(hint.label()->isVisible());
}

}  // namespace
}  // namespace varnholt
