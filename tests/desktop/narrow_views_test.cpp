// SPDX-License-Identifier: GPL-3.0-or-later
// Windows of half a small screen: 683 of 1366 pixels, frame included.
#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QDeadlineTimer>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTabWidget>
#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include "design/frmSecondOpinion.h"
#include "design/frmWhatIf.h"
#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/report_samples.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/windows/report_preview.h"
#include "desktop/windows/report_windows.h"

namespace varnholt {
namespace {

constexpr int halfOfASmallScreen = 683;

/// Turns to each page of each pane in the window and looks at it.
template <class Look>
void onEveryPage(QWidget& window, const Look& look) {
    for (QTabWidget* pages : window.findChildren<QTabWidget*>())
        for (int page = 0; page < pages->count(); ++page) {
            SCOPED_TRACE(page);
            pages->setCurrentIndex(page);
            Desk::settle();
            look();
        }
    look();
}

/// What in a frame would have to be scrolled sideways; the table of alternatives, whose columns
/// are many, scrolls within itself.
std::string scrolledSideways(const QWidget& frame) {
    std::string scrolled;
    for (const QAbstractScrollArea* area : frame.findChildren<QAbstractScrollArea*>())
        if (area->isVisible() && area->horizontalScrollBar()->maximum() > 0 &&
            area->objectName() != QLatin1String("alternativesTable"))
            scrolled += area->metaObject()->className() + (" " + plain(area->objectName())) + "; ";
    return scrolled;
}

/// The next project brings loads of its own.
void closeLoads(Desk& desk) {
    for (ChildWindow* loads : desk.main().windowsNamed("frmZoneManage")) desk.main().close(*loads);
}

class NarrowWindows : public testing::Test {
 protected:
    NarrowWindows() { desk.window->resize(1366, 740); }
    void openProject(const char* name) {
        desk.platform.picks.push_back(std::string("work files/") + name);
        desk.main().click("mnuFileOpen");
        Desk::settle();
    }
    ChildWindow& last(const char* form) { return *desk.main().windowsNamed(form).back(); }

    static void choose(Form& form, const char* combo, const std::string& entry) {
        const std::vector<std::string>& items = form.control(combo).items();
        // The catalogue's names end in blanks.
        const auto found = std::find_if(items.begin(), items.end(), [&](const std::string& item) {
            return item.starts_with(entry);
        });
        ASSERT_NE(found, items.end());
        form.choose(combo, static_cast<int>(found - items.begin()));
    }

    void expectNothingBeyond(QWidget& frame) {
        frame.resize(halfOfASmallScreen, 600);
        Desk::settle();
        EXPECT_EQ(frame.width(), halfOfASmallScreen);
        onEveryPage(frame, [&] { EXPECT_EQ(scrolledSideways(frame), ""); });
    }
    void expectFits(ChildWindow& form) {
        SCOPED_TRACE(form.formName());
        desk.main().activate(form);
        expectNothingBeyond(*desk.shelf.frameOf(form));
    }

    Desk desk;
};

TEST_F(NarrowWindows, NeedNoHorizontalScrollBarWhileTheyAreEmpty) {
    std::set<std::string> seen;
    for (const char* command : {"NewBorehole", "NewHorizontal", "NewSurfaceWater", "mnuZoneManage",
                                "mnuAvgBlock", "mnuMonthlyLoadsImport", "EditAdd", "mnuDiffCalc",
                                "mnuEqvHours", "mnuPumpPowerCalc", "FluidProperties"}) {
        desk.main().click(command);
        seen.insert(desk.main().activeWindow()->formName());
        expectFits(*desk.main().activeWindow());
    }
    EXPECT_EQ(seen.size(), 11U);
}

TEST_F(NarrowWindows, OfABuildingAndItsFieldNeedNone) {
    openProject("school-south.vht");
    ChildWindow& loads = last("frmZoneManage");
    loads.select("LOZoneList", {24});
    expectFits(loads);
    for (const auto& [open, close] :
         {std::pair("LOSelectCommand", "LOCancelCommand"),
          std::pair("LODetailsCommand", "LOReturnCommand"),
          std::pair("LOSummaryCommand", "LOReturnFromSummaryCommand")}) {
        SCOPED_TRACE(open);
        loads.click(open);
        expectFits(loads);
        loads.click(close);
    }
    ChildWindow& design = last("frmBHDesign");
    design.click("CACalculateCommand");
    expectFits(design);
    design.click("CASecondOpinionCommand");
    expectFits(last("frmSecondOpinion"));
    design.click("CAWhatIfCommand");
    expectFits(last("frmWhatIf"));
}

TEST_F(NarrowWindows, OfPondsAndTrenchesNeedNone) {
    for (const auto& [file, form] :
         {std::pair("school-pond.vht", "frmSWDesign"), std::pair("house.vht", "frmHZDesign")}) {
        openProject(file);
        last(form).click("CACalculateCommand");
        expectFits(last(form));
        closeLoads(desk);
    }
}

TEST_F(NarrowWindows, OfPumpsAndImportedLoadsNeedNone) {
    desk.main().click("EditAdd");
    ChildWindow& editor = last("frmHPEdit");
    choose(editor, "MfgCombo", "Alder Creek");
    choose(editor, "SeriesCombo", "Creekside Compact");
    expectFits(editor);
    desk.main().click("mnuMonthlyLoadsImport");
    desk.platform.picks.push_back("zones/school-south.gth");
    last("frmImport1").click("cmdImport(2)");
    expectFits(last("frmImport1"));
}

TEST_F(NarrowWindows, OfReportsNeedNone) {
    ReportSamples samples(desk);
    ReportWindows previews(*desk.window, desk.platform, desk.program.reports(),
                           desk.program.texts(), 0x409);
    ReportPreview* preview = previews.show(samples.zones(30, 2));
    ASSERT_NE(preview, nullptr);
    expectNothingBeyond(*preview->parentWidget());
    preview->parentWidget()->close();
    Desk::settle();
}

/// By how many pixels the page in front is higher than its window, or nothing where none scrolls.
int hiddenBelow(const QWidget& frame) {
    int hidden = 0;
    for (const QScrollArea* area : frame.findChildren<QScrollArea*>())
        if (area->isVisible()) hidden = std::max(hidden, area->verticalScrollBar()->maximum());
    return hidden;
}

/// A screen of 1366 by 768 without what the desktop puts around the main window.
class LowScreens : public testing::Test {
 protected:
    explicit LowScreens(const QSize& room = {1350, 720}) { desk.window->resize(room); }
    void openSchool() {
        desk.platform.picks.push_back("work files/school-south.vht");
        desk.main().click("mnuFileOpen");
        Desk::settle();
    }
    ChildWindow& last(const char* form) { return *desk.main().windowsNamed(form).back(); }
    QWidget& frameOf(const char* form) { return *desk.shelf.frameOf(last(form)); }
    /// Until the figures that come while nobody types have come.
    template <class Window>
    void idle(const char* form) {
        const QDeadlineTimer patience(60'000);
        while (dynamic_cast<Window&>(last(form)).isBehind() && !patience.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        Desk::settle();
    }
    void expectNothingHidden(const char* form) {
        SCOPED_TRACE(form);
        QWidget& frame = frameOf(form);
        onEveryPage(frame, [&] { EXPECT_EQ(hiddenBelow(frame), 0); });
    }
    void expectDesignsWhole() {
        const std::tuple<const char*, const char*, std::vector<int>> projects[] = {
            {"school-south.vht", "frmBHDesign", {0, 3, 4}},
            {"school-pond.vht", "frmSWDesign", {0, 3}},
            {"house.vht", "frmHZDesign", {0, 4}},
            {"trench-office.vht", "frmHZDesign", {0, 4}}};
        for (const auto& [file, name, pages] : projects) {
            SCOPED_TRACE(file);
            desk.platform.picks.push_back(std::string("work files/") + file);
            desk.main().click("mnuFileOpen");
            ChildWindow& form = last(name);
            desk.main().activate(form);
            form.click("CACalculateCommand");
            QWidget* frame = desk.shelf.frameOf(form);
            for (const int page : pages) {
                frame->findChild<QTabWidget*>()->setCurrentIndex(page);
                Desk::settle();
                EXPECT_EQ(hiddenBelow(*frame), 0) << page;
            }
            closeLoads(desk);
        }
    }
    void expectWhatIfWhole() {
        openSchool();
        desk.main().activate(last("frmBHDesign"));
        last("frmBHDesign").click("CAWhatIfCommand");
        idle<frmWhatIf>("frmWhatIf");
        expectNothingHidden("frmWhatIf");
    }
    void expectZonesAndPumpsWhole() {
        openSchool();
        last("frmZoneManage").select("LOZoneList", {24});
        expectNothingHidden("frmZoneManage");
        desk.main().click("EditAdd");
        ChildWindow& editor = last("frmHPEdit");
        // The second series of the first manufacturer.
        editor.choose("MfgCombo", 2);
        editor.choose("SeriesCombo", 2);
        expectNothingHidden("frmHPEdit");
    }

    Desk desk;
};

TEST_F(LowScreens, ShowResultsAndPipesWithoutScrolling) { expectDesignsWhole(); }

TEST_F(LowScreens, ShowWhatIfWithoutScrolling) { expectWhatIfWhole(); }

TEST_F(LowScreens, ShowTheFiguresOfASecondOpinionWithTheFirstPicture) {
    openSchool();
    desk.main().activate(last("frmBHDesign"));
    last("frmBHDesign").click("CASecondOpinionCommand");
    idle<frmSecondOpinion>("frmSecondOpinion");
    const auto* page = frameOf("frmSecondOpinion").findChild<QScrollArea*>();
    ASSERT_NE(page, nullptr);
    Binder& binder = desk.shelf.windowOf(last("frmSecondOpinion"))->binder();
    for (const char* name : {"SESizesFrame", "SEPartsFrame", "imgHistory"}) {
        const QWidget* shown = binder.widget(name);
        const QRect place(shown->mapTo(page->viewport(), QPoint(0, 0)), shown->size());
        EXPECT_TRUE(page->viewport()->rect().contains(place)) << name;
    }
    EXPECT_LT(page->verticalScrollBar()->maximum(), page->viewport()->height() / 2);
}

TEST_F(LowScreens, ShowZonesPumpsAndImportedLoadsWithoutScrolling) {
    expectZonesAndPumpsWhole();
    desk.main().click("mnuMonthlyLoadsImport");
    desk.platform.picks.push_back("zones/school-south.gth");
    last("frmImport1").click("cmdImport(2)");
    Desk::settle();
    expectNothingHidden("frmImport1");
}

/// A screen of 1280 by 720, or of 2560 by 1440 at twice the size.
class LowestScreens : public LowScreens {
 protected:
    LowestScreens() : LowScreens({1264, 672}) {}
};

TEST_F(LowestScreens, ShowResultsAndPipesWithoutScrolling) { expectDesignsWhole(); }

TEST_F(LowestScreens, ShowWhatIfWithoutScrolling) { expectWhatIfWhole(); }

TEST_F(LowestScreens, ShowZonesAndPumpsWithoutScrolling) { expectZonesAndPumpsWhole(); }

TEST_F(LowestScreens, ShowADesignWithoutLoadsWithoutScrolling) {
    desk.main().click("NewBorehole");
    Desk::settle();
    EXPECT_EQ(hiddenBelow(frameOf("frmBHDesign")), 0);
}

TEST(NewWindows, FitIntoTheMainWindow) {
    Desk desk;
    desk.window->resize(1024, 700);
    for (const char* command : {"NewBorehole", "mnuZoneManage", "EditAdd"}) {
        desk.main().click(command);
        Desk::settle();
        const QRect room(QPoint(0, 0), desk.window->area().viewport()->size());
        EXPECT_TRUE(room.contains(desk.shelf.frameOf(*desk.main().activeWindow())->geometry()))
            << command;
    }
}

}  // namespace
}  // namespace varnholt
