// SPDX-License-Identifier: GPL-3.0-or-later
// What If in the real windows: found while nobody types, walked in reading order, pressed.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <iterator>
#include <set>

#include "design/frmWhatIf.h"
#include "desktop/drawings/what_if_paintings.h"
#include "desktop/views/comparison_table.h"
#include "desktop/widgets/figure_text.h"
#include "desktop/widgets/qt_text.h"
#include "drawing_samples.h"
#include "forms/text_numbers/what_if_window.h"
#include "late_window.h"

namespace varnholt {
namespace {

class WhatIfView : public LateWindow<frmWhatIf> {
 protected:
    WhatIfView() : LateWindow("CAWhatIfCommand", "frmWhatIf") {}

    frmWhatIf& what() { return late(); }
    /// Where the tornado's bars stand, as it is painted.
    std::vector<QRectF> rowsOf(const QWidget& tornado) {
        QImage image(tornado.size(), QImage::Format_RGB32);
        QPainter painter(&image);
        return paintTornado(canvasFor(painter, tornado.rect(), tornado.palette(), tornado.font()),
                            what().tornadoPicture(), what().texts());
    }
};

TEST_F(WhatIfView, FindsItsFiguresWhenTheLoopIsIdle) {
    idle();
    EXPECT_FALSE(what().isBehind());
    EXPECT_NE(what().control("WIBoreLabel").caption(), "-");
    EXPECT_NE(what().control("WIShareLabel(0)").caption(), "-");
    EXPECT_EQ(what().control("WIStateLabel").caption(), "");
    EXPECT_TRUE(desk.faults.empty());
}

/// A key is done before the figures are, and a search goes on between two of them.
TEST_F(WhatIfView, SearchesWhileNobodyTypesAndStopsAtASecondPress) {
    what().click("WIMeasureOption(0)");
    what().choose("WITabs", 2);
    idle();
    what().click("WLSearchCommand");
    EXPECT_TRUE(what().isBehind());
    EXPECT_TRUE(what().control("WLList").items().empty());
    what().click("WLSearchCommand");
    idle();
    EXPECT_TRUE(what().control("WLList").items().empty());
    what().click("WLSearchCommand");
    idle();
    EXPECT_EQ(what().control("WLList").items().size(), 20U);
    EXPECT_EQ(what().control("WLList").index(), 0);
    EXPECT_TRUE(desk.faults.empty());
}

/// Counts how often a widget is painted.
class Paints : public QObject {
 public:
    explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

 protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
};

/// Sets of cases and fields of bores are drawn as they are found, and not at the end alone.
TEST_F(WhatIfView, DrawsWhatHasBeenFoundSoFar) {
    idle();
    struct Asked {
        int page;
        const char *image, *command;
    };
    for (const auto& [page, image, command] :
         {Asked{1, "imgSure", "WIMeasureOption(1)"}, Asked{2, "imgFields", "WLSearchCommand"}}) {
        SCOPED_TRACE(image);
        what().choose("WITabs", page);
        idle();
        what().type("WIDepthText", "300");
        what().click(command);
        QWidget* picture = widget(image);
        const Paints paints(*picture);
        std::set<QString> told;
        const QDeadlineTimer patience(60'000);
        while (what().isBehind() && !patience.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            if (what().isBehind() && paints.count > 0)
                told.insert(picture->accessibleDescription());
        }
        EXPECT_GT(paints.count, 2);
        EXPECT_GT(told.size(), 1U);
    }
}

TEST_F(WhatIfView, IsWalkedInTheOrderOfItsForm) {
    FormWindow window(what(), views.maker(), {});
    window.binder().buildAll();
    std::vector<std::string> walked, added;
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
        const std::string name = at->objectName().toStdString();
        if ((at->focusPolicy() & Qt::TabFocus) != 0 && what().has(name) && name != "WITabs")
            walked.push_back(name);
    }
    for (const auto& control : what().controls())
        if (std::find(walked.begin(), walked.end(), control->name()) != walked.end())
            added.push_back(control->name());
    EXPECT_EQ(walked, added);
    EXPECT_GT(walked.size(), 60U);
    EXPECT_EQ(window.binder().unshown(), std::vector<std::string>{});
}

TEST_F(WhatIfView, PutsTheKeyboardIntoTheFieldOfABarThatIsPressed) {
    what().click("WIMeasureOption(0)");
    idle();
    QWidget* tornado = widget("imgTornado");
    ASSERT_TRUE(tornado->isVisible());
    tornado->repaint();
    const std::vector<QRectF> rows = rowsOf(*tornado);
    ASSERT_FALSE(rows.empty());
    press(tornado, rows.front().center());
    const std::size_t longest = what().tornadoPicture().bars.front().index;
    const QWidget* focused = desk.shelf.windowOf(what())->focusWidget();
    ASSERT_NE(focused, nullptr);
    EXPECT_EQ(focused->objectName().toStdString(), "WILowText(" + std::to_string(longest) + ")");
}

TEST_F(WhatIfView, PutsTheKeyboardIntoTheDesignsFieldOfALeverThatIsPressed) {
    what().click("WIMeasureOption(0)");
    idle();
    QWidget* tornado = widget("imgTornado");
    tornado->repaint();
    const std::vector<QRectF> rows = rowsOf(*tornado);
    const auto bars = what().tornadoPicture().bars;
    ASSERT_EQ(rows.size(), bars.size());
    constexpr const char* fields[] = {"FLInletTempText(0)", "FLInletTempText(1)",
                                      "PASeparationText", "PATimeText", "FLFlowRateText"};
    std::set<std::string> pressed;
    for (std::size_t bar = 0; bar < bars.size(); ++bar) {
        if (!bars[bar].lever) continue;
        desk.main().activate(what());
        press(tornado, rows[bar].center());
        EXPECT_EQ(desk.main().activeWindow(), &design());
        const QWidget* focused = desk.shelf.windowOf(design())->focusWidget();
        ASSERT_NE(focused, nullptr);
        EXPECT_EQ(focused->objectName().toStdString(), fields[bars[bar].index]);
        EXPECT_TRUE(focused->isVisible());
        pressed.insert(focused->objectName().toStdString());
    }
    EXPECT_EQ(pressed.size(), std::size(fields));
    EXPECT_TRUE(desk.faults.empty());
}

TEST_F(WhatIfView, LetsAlternativesShareTheWidthAndScrollWithinTheirTable) {
    what().click("WIMeasureOption(0)");
    what().choose("WITabs", 4);
    desk.shelf.frameOf(what())->resize(1000, 740);
    const auto tableOf = [](QWidget* around) -> ComparisonTable* {
        while (around != nullptr) {
            if (auto* table = dynamic_cast<ComparisonTable*>(around)) return table;
            around = around->parentWidget();
        }
        return nullptr;
    };
    ComparisonTable* table = tableOf(widget("WVHeadLabel(0)"));
    ASSERT_NE(table, nullptr);
    const QScrollArea* page = nullptr;
    for (QWidget* around = table->parentWidget(); around != nullptr && page == nullptr;)
        if ((page = dynamic_cast<QScrollArea*>(around)) == nullptr) around = around->parentWidget();
    ASSERT_NE(page, nullptr);
    idle();
    Desk::settle();
    // The school itself, and what it keeps.
    ASSERT_EQ(table->columnCount(), 4);
    for (int count = 4; count <= 8; ++count) {
        SCOPED_TRACE(count);
        idle();
        Desk::settle();
        EXPECT_EQ(table->columnCount(), count);
        EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(table->verticalScrollBar()->maximum(), 0);
        const int beyond = table->horizontalScrollBar()->maximum();
        EXPECT_TRUE(count <= 5 ? beyond == 0 : count < 8 || beyond > 0) << beyond;
        for (int column = 1; column < count; ++column)
            EXPECT_NEAR(
                widget(elementName("WVLengthLabel", static_cast<std::size_t>(column)))->width(),
                widget("WVLengthLabel(0)")->width(), 1);
        what().type("WVNameText", "Twenty-five feet apart, as in spring");
        what().click("WVKeepCommand");
    }
    EXPECT_TRUE(desk.faults.empty());
}

TEST_F(WhatIfView, KeepsAFewAlternativesBesideTheWordsOfTheirRows) {
    what().choose("WITabs", 4);
    idle();
    // The school keeps three.
    for (int kept = 0; kept < 3; ++kept) {
        what().choose("WVList", 1);
        what().click("WVRemoveCommand");
        idle();
    }
    Desk::settle();
    const QWidget* table = widget("WVLengthLabel(0)")->parentWidget();
    EXPECT_TRUE(widget("WVLengthLabel(1)")->isHidden());
    EXPECT_LT(widget("WVLengthLabel(0)")->geometry().right(), table->width() / 2);
}

struct Page {
    int page;
    const char* image;
};
constexpr Page pictures[] = {{0, "imgTornado"}, {1, "imgSure"}, {2, "imgLand"},
                             {2, "imgFields"},  {3, "imgCost"}, {5, "imgTower"}};

/// The length stands long before what decides it, by g-functions.
TEST_F(WhatIfView, DrawsNoBarsBeforeTheyAreFound) {
    const std::string working = what().texts().text(Text::whatIfWorking);
    EXPECT_EQ(what().descriptionOf("imgTornado"), working);
    const QDeadlineTimer patience(60'000);
    while (what().control("WINeedLabel(0)").caption() == "-" && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    EXPECT_EQ(what().descriptionOf("imgTornado"), working);
    idle();
    EXPECT_EQ(what().tornadoPicture().bars.size(), quantityTexts.size() + leverTexts.size());
}

TEST_F(WhatIfView, TellsAScreenReaderWhatAScriptReads) {
    what().click("WIMeasureOption(0)");
    for (const auto& [page, image] : pictures) {
        SCOPED_TRACE(image);
        what().choose("WITabs", page);
        idle();
        auto* drawing = dynamic_cast<Drawing*>(widget(image));
        ASSERT_NE(drawing, nullptr);
        drawing->refresh();
        EXPECT_EQ(plain(drawing->description()), what().descriptionOf(image));
        EXPECT_FALSE(what().descriptionOf(image).empty());
    }
}

/// Ink on a surface, whatever the scheme and the size.
TEST_F(WhatIfView, ClosesWhileItIsMaximisedWithAnyPageInFront) {
    idle();
    what().choose("WITabs", 2);
    what().click("WLSearchCommand");
    idle();
    desk.shelf.frameOf(what())->showMaximized();
    Desk::settle();
    for (const int page : {3, 4, 5}) {
        what().choose("WITabs", page);
        Desk::settle();
    }
    desk.main().close(what());
    Desk::settle();
    EXPECT_TRUE(desk.main().windowsNamed("frmWhatIf").empty());
    EXPECT_TRUE(desk.faults.empty());
}

/// A person sees thin spaces where scripts and screen readers read commas.
TEST_F(WhatIfView, ShowsThinSpacesInItsSentencesAndTellsCommas) {
    const QString sentence = QStringLiteral("3,249 ft of bore, $58,000");
    what().choose("WITabs", 5);
    auto* label = dynamic_cast<QLabel*>(widget("WTBestLabel"));
    ASSERT_NE(label, nullptr);
    label->setFixedSize(400, 60);
    const auto shown = [&](const QString& text) {
        label->setText(text);
        return label->grab().toImage();
    };
    EXPECT_EQ(shown(sentence), shown(thinThousands(sentence)));
    EXPECT_NE(shown(sentence), shown(QStringLiteral("3249 ft of bore, $58000")));
    what().control("WTBestLabel").setCaption(plain(sentence));
    EXPECT_EQ(label->text(), sentence);
}

TEST_F(WhatIfView, ShowsThinSpacesInTheLinesOfItsFields) {
    what().choose("WITabs", 2);
    auto* list = dynamic_cast<QAbstractItemView*>(widget("WLList"));
    ASSERT_NE(list, nullptr);
    const auto* lines = dynamic_cast<QStyledItemDelegate*>(list->itemDelegate());
    ASSERT_NE(lines, nullptr);
    EXPECT_EQ(lines->displayText(qt("5 by 6, 30 bores: $151,700"), QLocale::c()),
              thinThousands(qt("5 by 6, 30 bores: $151,700")));
    what().click("WIMeasureOption(0)");
    what().click("WLSearchCommand");
    idle();
    const std::vector<std::string>& items = what().control("WLList").items();
    ASSERT_FALSE(items.empty());
    EXPECT_NE(items.front().find(','), std::string::npos);
    EXPECT_EQ(plain(list->model()->index(0, 0).data().toString()), items.front());
}

TEST_F(WhatIfView, TellsInWhichUnitTheDepthsOfTheFieldsAre) {
    FieldsPicture fields;
    fields.fields = {{24, 320, 120'000}, {30, 300, 130'000}};
    const auto drawn = [&](const char* unit) {
        fields.unit = unit;
        const auto paint = [&](const Canvas& c) { paintFields(c, fields, what().texts()); };
        return renderedSample({"what_if_fields", {320, 220}, paint}, lightLook(), 1);
    };
    EXPECT_EQ(drawn("ft"), drawn("ft"));
    EXPECT_NE(drawn("ft"), drawn("m"));
}

TEST_F(WhatIfView, DrawsItsPicturesInBothSchemesAtEverySize) {
    what().click("WIMeasureOption(0)");
    what().choose("WITabs", 2);
    what().click("WLSearchCommand");
    for (int page = 0; page < 6; ++page) {
        what().choose("WITabs", page);
        idle();
    }
    const Texts& texts = what().texts();
    const std::vector<DrawingSample> samples{
        {"what_if_decides",
         {460, 360},
         [&](const Canvas& c) { paintTornado(c, what().tornadoPicture(), texts); }},
        {"what_if_sure",
         {460, 300},
         [&](const Canvas& c) { paintSure(c, what().surePicture(), texts); }},
        {"what_if_land",
         {320, 220},
         [&](const Canvas& c) { paintLand(c, what().landPicture(), texts); }},
        {"what_if_fields",
         {320, 220},
         [&](const Canvas& c) { paintFields(c, what().fieldsPicture(), texts); }},
        {"what_if_cost",
         {420, 72},
         [&](const Canvas& c) { paintCost(c, what().costPicture(), texts); }},
        {"what_if_tower", {460, 300}, [&](const Canvas& c) {
             paintTower(c, what().towerPicture(), texts);
         }}};
    for (const DrawingSample& sample : samples)
        for (const Look* look : {&lightLook(), &darkLook()})
            for (const double ratio : {1.0, 1.5, 2.0}) {
                SCOPED_TRACE(sample.name);
                const QImage image = renderedSample(sample, *look, ratio);
                QImage blank = image;
                blank.fill(look->surface);
                EXPECT_NE(image, blank);
            }
}

}  // namespace
}  // namespace varnholt
