// SPDX-License-Identifier: GPL-3.0-or-later
// The preview of a report among the windows of the program.
#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <QToolBar>
#include <algorithm>
#include <filesystem>

#include "basis/temporary_folder.h"
#include "desktop/paper/print_module.h"
#include "desktop/report_samples.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/windows/report_preview.h"
#include "desktop/windows/report_windows.h"
#include "desktop/windows/window_places.h"
#include "forms/text_numbers/reports.h"

namespace varnholt {
namespace {

class Previews : public testing::Test {
 protected:
    ReportPreview& shown(const std::shared_ptr<const Report>& report) {
        ReportPreview* preview = windows.show(report);
        Desk::settle();
        return *preview;
    }
    std::string toldInPassing() {
        return plain(desk.window->findChild<QLabel*>(QStringLiteral("toldLabel"))->text());
    }
    static void trigger(ReportPreview& preview, const char* name) {
        preview.findChild<QAction*>(QString::fromLatin1(name))->trigger();
    }

    Desk desk;
    ReportSamples samples{desk};
    TemporaryFolder folder;
    ReportWindows windows{*desk.window, desk.platform, desk.program.reports(), desk.program.texts(),
                          0x409};
};

TEST_F(Previews, StandBesideTheWindowThatIsPrintedAndLeaveItActive) {
    desk.main().click("NewBorehole");
    const ChildWindow* design = desk.main().activeWindow();
    desk.platform.onModal = [](Form& form) { form.click("cmdOK"); };
    desk.main().click("mnuFilePrint");
    Desk::settle();
    EXPECT_EQ(desk.main().activeWindow(), design);
    EXPECT_EQ(desk.main().windows().size(), 1U);
    EXPECT_EQ(desk.window->area().subWindowList().size(), 2);
    const auto preview = desk.window->findChild<QWidget*>(QStringLiteral("rptBH"));
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(preview->windowTitle(), QStringLiteral("Borehole Design Project Report"));
    EXPECT_TRUE(desk.faults.empty());
}

TEST_F(Previews, GoAwayByThemselves) {
    ReportPreview& preview = shown(samples.borehole(1));
    preview.parentWidget()->close();
    Desk::settle();
    EXPECT_EQ(desk.window->findChild<QWidget*>(QStringLiteral("rptBHShort")), nullptr);
    EXPECT_TRUE(desk.faults.empty());
}

TEST_F(Previews, GiveTheFrontBackToTheWindowThatHadItBefore) {
    desk.main().click("mnuAvgBlock");
    const auto report = samples.borehole(1);
    const ChildWindow* design = desk.main().activeWindow();
    ASSERT_EQ(design->formName(), "frmBHDesign");
    ReportPreview& preview = shown(report);
    auto* frame = qobject_cast<QMdiSubWindow*>(preview.parentWidget());
    desk.window->area().setActiveSubWindow(frame);
    frame->close();
    Desk::settle();
    EXPECT_EQ(desk.main().activeWindow(), design);
    EXPECT_EQ(desk.window->area().activeSubWindow(), desk.shelf.frameOf(*design));
}

TEST_F(Previews, OpenWhereAPersonHasLeftTheLastOne) {
    WindowPlaces places(folder / "places.ini");
    windows.rememberPlaces(places);
    QWidget* first = shown(samples.borehole(1)).parentWidget();
    first->setGeometry(30, 20, 700, 500);
    Desk::settle();
    first->close();
    Desk::settle();
    QWidget* next = shown(samples.borehole(1)).parentWidget();
    EXPECT_EQ(next->geometry(), QRect(30, 20, 700, 500));
    next->showMaximized();
    Desk::settle();
    next->close();
    Desk::settle();
    QWidget* last = shown(samples.borehole(1)).parentWidget();
    EXPECT_TRUE(last->isMaximized());
    last->showNormal();
    Desk::settle();
    EXPECT_EQ(last->geometry(), QRect(30, 20, 700, 500));
    last->close();
    Desk::settle();
}

TEST_F(Previews, LayTheReportOutForOtherPaper) {
    ReportPreview& preview = shown(samples.zones(30, 2));
    EXPECT_EQ(preview.setup().size.id(), QPageSize::Letter);
    const double before = preview.view().pages()->sheet().width();
    auto* paper = preview.findChild<QComboBox*>(QStringLiteral("paper"));
    paper->setCurrentIndex(0);
    Q_EMIT paper->activated(0);
    EXPECT_EQ(preview.setup().size.id(), QPageSize::A4);
    EXPECT_LT(preview.view().pages()->sheet().width(), before);
    trigger(preview, "landscape");
    EXPECT_GT(preview.view().pages()->sheet().width(), preview.view().pages()->sheet().height());
}

TEST_F(Previews, HaveEveryToolInSight) {
    ReportPreview& preview = shown(samples.borehole(0));
    preview.parentWidget()->resize(900, 800);
    Desk::settle();
    for (const auto* bar : preview.findChildren<QToolBar*>())
        EXPECT_LE(bar->sizeHint().width(), bar->width()) << bar->actions().size();
    for (const auto* bar : preview.findChildren<QToolBar*>())
        for (QAction* action : bar->actions())
            EXPECT_TRUE(bar->widgetForAction(action)->isVisible()) << plain(action->text());
}

TEST_F(Previews, NamePaperThatIsNotInTheirList) {
    ReportPreview& preview = shown(samples.borehole(0));
    const auto* paper = preview.findChild<QComboBox*>(QStringLiteral("paper"));
    EXPECT_EQ(paper->currentText(), QStringLiteral("Letter"));
    preview.setSetup({QPageSize(QPageSize::A3)});
    EXPECT_EQ(paper->currentIndex(), -1);
    EXPECT_EQ(paper->placeholderText(), QPageSize(QPageSize::A3).name());
}

TEST_F(Previews, KeepTheirPagesWhereLayingThemOutAnewIsBrokenOff) {
    bool goesOn = true;
    PreviewServices services;
    services.layingOut = [&](std::size_t, std::size_t) { return goesOn; };
    ReportPreview preview(samples.zones(300, 2), usualPage(0x409), desk.program.texts(), services);
    const std::size_t before = preview.view().pageCount();
    goesOn = false;
    auto* paper = preview.findChild<QComboBox*>(QStringLiteral("paper"));
    paper->setCurrentIndex(0);
    Q_EMIT paper->activated(0);
    trigger(preview, "landscape");
    EXPECT_EQ(preview.view().pageCount(), before);
    EXPECT_TRUE(preview.view().pages()->isComplete());
    EXPECT_EQ(preview.setup(), usualPage(0x409));
    EXPECT_EQ(paper->currentText(), QStringLiteral("Letter"));
    EXPECT_FALSE(preview.findChild<QAction*>(QStringLiteral("landscape"))->isChecked());
}

TEST_F(Previews, SaveEveryKindOfFile) {
    ReportPreview& preview = shown(samples.borehole(0));
    for (const char* name : {"a.pdf", "a.html", "a.csv"}) {
        preview.saveAs(folder / name);
        EXPECT_GT(std::filesystem::file_size(folder / name), 500U) << name;
        EXPECT_EQ(toldInPassing(), "Saved as " + (folder / name) + ".");
    }
    EXPECT_TRUE(desk.platform.messages.empty());
}

TEST_F(Previews, TellWhatCannotBeSavedAndLeaveNothingBehind) {
    ReportPreview& preview = shown(samples.borehole(0));
    preview.saveAs(folder / "missing/a.pdf");
    ASSERT_EQ(desk.platform.messages.size(), 1U);
    EXPECT_NE(desk.platform.messages[0].text.find("missing/a.pdf"), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_EQ(toldInPassing(), "");
}

TEST_F(Previews, CopyThePageInFrontAsText) {
    ReportPreview& preview = shown(samples.borehole(0));
    trigger(preview, "copy");
    const QString text = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(text.contains(QStringLiteral("Borehole Design Project Report")));
    EXPECT_TRUE(text.contains(QStringLiteral("1 / ")));
    EXPECT_EQ(toldInPassing(), std::to_string(text.count(u'\n')) + " lines copied.");
}

TEST_F(Previews, CopyAPageWithItsColumns) {
    // The second line of a zone has no number, units and pump: zone, mode, four blocks, hours,
    // units, pump, then the pump's figures.
    ReportPreview& preview = shown(samples.zones(1, 1));
    trigger(preview, "copy");
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    const auto first = std::find_if(lines.begin(), lines.end(), [](const QString& line) {
        return line.startsWith(QStringLiteral("1\tCooling\t10.5"));
    });
    ASSERT_NE(first, lines.end());
    ASSERT_NE(first + 1, lines.end());
    EXPECT_TRUE(first->startsWith(
        QStringLiteral("1\tCooling\t10.5\t10.5\t10.5\t10.5\t1200\t1\tAB-036\t36.0\t")));
    EXPECT_TRUE(
        (first + 1)->startsWith(QStringLiteral("\tHeating\t8.3\t8.3\t8.3\t8.3\t900\t\t\t30.0\t")));
}

TEST_F(Previews, CopyWhatTheUserWroteAsItStands) {
    ReportPreview& preview = shown(samples.borehole(0, "90%p of the load, 10%P of the hours"));
    QString text;
    for (std::size_t page = 0; page < preview.view().pageCount(); ++page) {
        preview.view().goTo(page);
        trigger(preview, "copy");
        text += QGuiApplication::clipboard()->text();
    }
    EXPECT_TRUE(text.contains(QStringLiteral("90%p of the load, 10%P of the hours")));
}

TEST_F(Previews, TellThatThereIsNoPrinter) {
    ASSERT_NE(findPrintModule(), nullptr);
    if (findPrintModule()->hasPrinter()) GTEST_SKIP() << "this machine has a printer";
    ReportPreview& preview = shown(samples.borehole(0));
    trigger(preview, "print");
    ASSERT_EQ(desk.platform.messages.size(), 1U);
    EXPECT_EQ(desk.platform.messages[0].text, desk.program.texts().text(Text::noPrinter));
}

TEST_F(Previews, FindWords) {
    ReportPreview& preview = shown(samples.zones(40, 2));
    auto* search = preview.findChild<QLineEdit*>(QStringLiteral("search"));
    search->setText(QStringLiteral("Zone 40"));
    Q_EMIT search->returnPressed();
    EXPECT_EQ(preview.view().page(), preview.view().found().front().page);
    EXPECT_EQ(preview.view().found().size(), 1U);
}

TEST_F(Previews, ExplainThemselvesByF1) {
    ReportPreview& preview = shown(samples.borehole(0));
    desk.window->activateWindow();
    auto* search = preview.findChild<QLineEdit*>(QStringLiteral("search"));
    for (QWidget* widget :
         {static_cast<QWidget*>(&preview.view()), static_cast<QWidget*>(search)}) {
        desk.main().HHTopicURL.clear();
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_F1);
        Desk::settle();
        EXPECT_EQ(desk.main().HHTopicURL, "reports.html#preview");
    }
    EXPECT_TRUE(search->text().isEmpty());
    EXPECT_TRUE(desk.faults.empty());
}

}  // namespace
}  // namespace varnholt
