// SPDX-License-Identifier: GPL-3.0-or-later
// How the pages of designs lie in their windows: what is in sight, and what stands below what.
#include <gtest/gtest.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

#include "desk.h"
#include "desktop/binding/form_window.h"

namespace varnholt {
namespace {

/// A design's window in the size in which it opens.
class PagesOfDesigns : public testing::Test {
 protected:
    void open(const char* command) {
        desk.main().click(command);
        form = desk.main().windows().back();
        window = std::make_unique<FormWindow>(*form, views.maker(), FaultTaker());
        window->binder().buildAll();
        dress(*window);
        window->resize(1180, 700);
        window->show();
        Desk::settle();
    }

    /// By how many pixels the page is higher than the window has room for.
    int hiddenOf(const char* pages, int page) {
        auto* tabs = static_cast<QTabWidget*>(window->binder().widget(pages));
        tabs->setCurrentIndex(page);
        Desk::settle();
        const auto* area = tabs->widget(page)->findChild<QScrollArea*>();
        if (area == nullptr) area = qobject_cast<QScrollArea*>(tabs->widget(page));
        EXPECT_NE(area, nullptr);
        return area == nullptr ? -1 : area->verticalScrollBar()->maximum();
    }

    QRect placeOf(const std::string& name) {
        const QWidget* widget = window->binder().widget(name);
        return {widget->mapTo(window.get(), QPoint()), widget->size()};
    }

    Desk desk;
    ViewRegistry views;
    ChildWindow* form = nullptr;
    std::unique_ptr<FormWindow> window;
};

TEST_F(PagesOfDesigns, ShowsTheTrenchesOfEveryArrangementWithoutScrolling) {
    open("NewHorizontal");
    for (const bool metric : {false, true}) {
        if (metric) form->click("MetricCheck");
        for (const std::size_t arrangement : {0, 1, 2, 3, 4}) {
            form->click(elementName("PAConfigurationOption", arrangement));
            EXPECT_EQ(hiddenOf("HZTabs", 4), 0) << arrangement << (metric ? " in metric" : "");
        }
    }
}

TEST_F(PagesOfDesigns, ShowsPumpsAndTowerWithoutScrolling) {
    open("NewHorizontal");
    EXPECT_EQ(hiddenOf("HZTabs", 5), 0);
    open("NewBorehole");
    EXPECT_EQ(hiddenOf("BHTabs", 5), 0);
}

TEST_F(PagesOfDesigns, ShowsLoopsAndHeadersOfAPondWithoutScrolling) {
    open("NewSurfaceWater");
    EXPECT_EQ(hiddenOf("SWTabs", 3), 0);
    form->click("MetricCheck");
    EXPECT_EQ(hiddenOf("SWTabs", 3), 0);
}

TEST_F(PagesOfDesigns, PutsTheNumberOfPipesBelowTheNumberOfTrenches) {
    open("NewHorizontal");
    hiddenOf("HZTabs", 4);
    EXPECT_EQ(placeOf("PAInTrenchConfigurationLabel(3)").right(),
              placeOf("PASeparationText(3)").right());
    EXPECT_EQ(placeOf("PAConfigurationUpDown(1)").left(),
              placeOf("PAConfigurationUpDown(0)").left());
    form->click("PAConfigurationOption(3)");
    Desk::settle();
    EXPECT_EQ(placeOf("PAInTrenchConfigurationText(0)").left(),
              placeOf("PAInTrenchConfigurationText(1)").left());
}

TEST_F(PagesOfDesigns, KeepsTheFieldsOfAPageBelowOneAnotherWhicheverCaptionIsLongest) {
    open("NewHorizontal");
    hiddenOf("HZTabs", 2);
    for (const char* longest :
         {"SOGroundTempLabel", "SOThermalDiffusivityLabel", "SOAirTempSwingLabel", "SODayLabel"}) {
        Control& label = form->control(longest);
        const std::string usual = label.caption();
        label.setCaption("A caption of more than forty characters in all:");
        Desk::settle();
        const int left = placeOf("SOGroundTempText").left();
        for (const char* field : {"SOThermalDiffusivityText", "SOAirTempSwingText", "SODayText(0)"})
            EXPECT_EQ(placeOf(field).left(), left) << field << " below " << longest;
        label.setCaption(usual);
    }
}

}  // namespace
}  // namespace varnholt
