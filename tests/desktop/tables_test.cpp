// SPDX-License-Identifier: GPL-3.0-or-later
// Tables and pictures on their way in and out, by a person's own keys.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTest>
#include <filesystem>

#include "basis/file_system.h"
#include "desk.h"
#include "desktop/binding/button_keys.h"
#include "desktop/binding/giving_out.h"
#include "desktop/binding/pasted_places.h"
#include "desktop/binding/shown_table.h"
#include "desktop/drawings/picture_out.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"
#include "loads/frmZoneManage.h"

namespace varnholt {
namespace {

const std::vector<std::vector<std::string>> tablePlaces{{"A0", "B0"}, {"A1", "B1"}, {"A2"}};

TEST(PastedPlaces, GoDownAndAcrossFromTheField) {
    const auto found = placesOf(tablePlaces, "A1", {{"1", "2"}, {"3", "4"}, {"5"}});
    ASSERT_TRUE(found);
    ASSERT_EQ(found->cells.size(), 3U);
    EXPECT_EQ(found->cells[0].control, "A1");
    EXPECT_EQ(found->cells[1].control, "B1");
    EXPECT_EQ(found->cells[2].control, "A2");
    EXPECT_EQ(found->cells[2].text, "3");
    EXPECT_EQ(found->beyond, 2);  // 4 and 5
    EXPECT_FALSE(placesOf(tablePlaces, "C0", {{"1"}}));
}

class Tables : public testing::Test {
 protected:
    Tables() {
        desk.main().click("mnuZoneManage");
        loads = dynamic_cast<frmZoneManage*>(desk.main().find("frmZoneManage"));
        loads->click("LONewCommand");
        desk.window->activateWindow();
        Desk::settle();
    }
    ~Tables() override { EXPECT_TRUE(desk.faults.empty()); }

    QWidget& widget(const std::string& name) {
        return *desk.shelf.windowOf(*loads)->binder().widget(name);
    }
    ListView& list() { return static_cast<ListView&>(widget("LOZoneList")); }
    void press(QWidget& on, Qt::Key key) {
        on.setFocus();
        Desk::settle();
        QTest::keyClick(&on, key, Qt::ControlModifier);
        Desk::settle();
    }
    /// As by the right button of the mouse.
    static void chooseInMenuOf(QWidget& field, const char* caption) {
        const QPoint place = field.rect().center();
        QContextMenuEvent asks(QContextMenuEvent::Mouse, place, field.mapToGlobal(place));
        QCoreApplication::sendEvent(&field, &asks);
        auto* menu = field.findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        QAction* chosen = nullptr;
        for (QAction* action : menu->actions())
            if (action->text().startsWith(QString::fromLatin1(caption))) chosen = action;
        ASSERT_NE(chosen, nullptr);
        EXPECT_TRUE(chosen->isEnabled());
        chosen->trigger();
        menu->close();
        Desk::settle();
    }
    std::string text(const std::string& name) const { return loads->control(name).text(); }

    Desk desk;
    frmZoneManage* loads = nullptr;
};

TEST_F(Tables, OfLoadsGoOnOverTheFieldsFromTheOneWithTheKeyboard) {
    desk.platform.setClipboard("12,5\t4\r\n20\t5\r\n-1\t6\r\n");
    press(widget("LOGainsText(1)"), Qt::Key_V);
    EXPECT_EQ(text("LOGainsText(1)"), "12.5");
    EXPECT_EQ(text("LOGainsText(5)"), "4.0");
    EXPECT_EQ(text("LOGainsText(2)"), "20.0");
    EXPECT_EQ(text("LOGainsText(7)"), "6.0");
    EXPECT_TRUE(loads->control("LOGainsText(3)").refused());
    EXPECT_EQ(desk.platform.told.back(),
              "1 of 6 pasted values were refused; their fields are marked.");
    loads->undo();
    EXPECT_EQ(text("LOGainsText(1)"), "0.0");
    EXPECT_EQ(text("LOGainsText(7)"), "0.0");
}

TEST_F(Tables, GoOnOverTheFieldsFromTheMenuOfAFieldToo) {
    desk.platform.setClipboard("12.5\t4\n20\t5\n");
    QGuiApplication::clipboard()->setText(QStringLiteral("12.5\t4\n20\t5\n"));
    chooseInMenuOf(widget("LOGainsText(1)"), "&Paste");
    EXPECT_EQ(text("LOGainsText(1)"), "12.5");
    EXPECT_EQ(text("LOGainsText(5)"), "4.0");
    EXPECT_EQ(text("LOGainsText(6)"), "5.0");
    EXPECT_EQ(desk.platform.told.back(), "4 values pasted.");
}

TEST_F(Tables, AreCopiedFromTheMenuOfAFieldThatStandsInOne) {
    loads->type("LOGainsText(0)", "10");
    chooseInMenuOf(widget("LOGainsText(1)"), "Copy Table");
    EXPECT_NE(desk.platform.clipboardText.find("8 a.m. - Noon\t10\t0.0"), std::string::npos)
        << desk.platform.clipboardText;
}

TEST_F(Tables, OfOneCellFromTheMenuArePastedWhereTheCursorIs) {
    desk.platform.setClipboard("Wing");
    QGuiApplication::clipboard()->setText(QStringLiteral("Wing"));
    auto& label = static_cast<QLineEdit&>(widget("LOZoneReferenceText"));
    label.setFocus();
    label.selectAll();
    QTest::keyClicks(&label, QStringLiteral("East "));
    chooseInMenuOf(label, "&Paste");
    EXPECT_EQ(text("LOZoneReferenceText"), "East Wing");
}

TEST_F(Tables, OfOneCellArePastedAsBefore) {
    desk.platform.setClipboard("12.5\r\n");
    static_cast<QLineEdit&>(widget("LOGainsText(1)")).selectAll();
    press(widget("LOGainsText(1)"), Qt::Key_V);
    EXPECT_EQ(text("LOGainsText(1)"), "12.5");
    EXPECT_EQ(text("LOGainsText(2)"), "0.0");
}

TEST_F(Tables, OfZonesBecomeZonesInTheirList) {
    desk.platform.setClipboard("Foyer\t1\t2\t3\t4\t5\t6\t7\t8\n");
    press(list(), Qt::Key_V);
    EXPECT_EQ(loads->zoneNumber(), 2);
    EXPECT_EQ(loads->ZoneList()[1].title, "Foyer");
}

TEST_F(Tables, OfAListAreCopiedByLinesAndAsAWhole) {
    loads->type("LOZoneReferenceText", "Foyer");
    loads->click("LONewCommand");
    Desk::settle();
    press(list(), Qt::Key_C);
    // The second zone is the one selected.
    EXPECT_TRUE(desk.platform.clipboardText.starts_with("Zone 2\t\t0.0 / 0.0\t"))
        << desk.platform.clipboardText;
    copyTable(*loads, &list());
    const QStringList lines = qt(desk.platform.clipboardText).split(u'\n');
    ASSERT_EQ(lines.size(), 4);  // heads, two zones, the end of the last line
    EXPECT_EQ(plain(lines[0]), "Zone\tLabel\tLoad\tPump");
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("Zone 1\tFoyer\t")));
}

TEST_F(Tables, OfFieldsHaveTheirUnitsInTheHead) {
    loads->type("LOGainsText(0)", "10");
    const QStringList lines = tableAround(&widget("LOGainsText(0)")).split(u'\n');
    const auto place = lines.indexOf(QRegularExpression(QStringLiteral(".*Heat Gains.*")));
    ASSERT_GE(place, 0) << plain(lines.join(u'|'));
    const QString head = lines[place];
    EXPECT_EQ(plain(head), "Time of Day\tHeat Gains (MBtu/Hr)\tHeat Losses (MBtu/Hr)");
    EXPECT_TRUE(lines.contains(QStringLiteral("8 a.m. - Noon\t10\t0.0")))
        << plain(lines.join(u'|'));
}

TEST_F(Tables, AreNotThereForAWidgetThatStandsInNone) {
    EXPECT_TRUE(tableAround(&widget("LOSaveCommand")).isEmpty());
    copyTable(*loads, &widget("LOSaveCommand"));
    EXPECT_EQ(desk.platform.told.back(), "There is no table here to copy.");
}

TEST_F(Tables, OfResultsAreCopiedFromTheEditMenu) {
    desk.main().click("NewBorehole");
    Desk::settle();
    QTest::keyClick(desk.window.get(), Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
    Desk::settle();
    EXPECT_NE(desk.platform.clipboardText.find("Total Length"), std::string::npos)
        << desk.platform.clipboardText;
}

TEST_F(Tables, OfAnEmptyListBeginWithTheButtonsForTheFirstZone) {
    loads->click("LORemoveCommand");
    Desk::settle();
    QPushButton* first = nullptr;
    for (auto* button : desk.shelf.windowOf(*loads)->findChildren<QPushButton*>())
        if (button->objectName().isEmpty() && button->isVisible() &&
            qt(loads->control("LONewCommand").caption()) == wordsOfButton(*button))
            first = button;
    ASSERT_NE(first, nullptr);
    first->click();
    Desk::settle();
    EXPECT_EQ(loads->zoneNumber(), 1);
    EXPECT_FALSE(first->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &widget("LOZoneReferenceText"));
}

class Pictures : public Tables {
 protected:
    Drawing& drawing() { return *drawingAround(&widget("LOLoadsChart")); }
};

TEST_F(Pictures, AreCopiedAtThreeTimesTheScreensResolution) {
    loads->type("LOGainsText(0)", "10");
    Desk::settle();
    copyPicture(*loads, &widget("LOLoadsChart"));
    const QImage copied = QGuiApplication::clipboard()->image();
    EXPECT_EQ(copied.size(), drawing().size() * 3);
    bool drawn = false;
    for (int x = 0; x < copied.width() && !drawn; ++x)
        drawn = copied.pixel(x, copied.height() / 2) != copied.pixel(0, 0);
    EXPECT_TRUE(drawn);
}

TEST_F(Pictures, AreSavedByLinesByPixelsAndAsAPage) {
    loads->type("LOGainsText(0)", "10");
    Desk::settle();
    const std::string folder = desk.folder();
    for (const char* ending : {"svg", "png", "pdf"}) {
        const std::string path = folder + "/chart." + ending;
        desk.platform.picks.emplace_back(path);
        savePicture(*loads, &widget("LOLoadsChart"));
        EXPECT_EQ(desk.platform.told.back(), "Saved as " + path + ".");
    }
    QSvgRenderer svg(qt(folder + "/chart.svg"));
    EXPECT_TRUE(svg.isValid());
    EXPECT_EQ(svg.viewBox().size(), drawing().size());
    EXPECT_EQ(QImage(qt(folder + "/chart.png")).size(), drawing().size() * 3);
    EXPECT_TRUE(readWholeFile(folder + "/chart.pdf").starts_with("%PDF-"));
}

TEST_F(Pictures, ThatCannotBeSavedSaySo) {
    desk.platform.picks.emplace_back(desk.folder() + "/no such folder/chart.svg");
    savePicture(*loads, &widget("LOLoadsChart"));
    EXPECT_TRUE(desk.platform.told.back().starts_with("The picture could not be saved"));
    EXPECT_FALSE(writePicture(drawing(), qt(desk.folder() + "/chart.doc")));
    const std::string pipe = desk.folder() + "/pipe.png";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(writePicture(drawing(), qt(pipe)));
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST_F(Pictures, AreNoLightsOfALink) {
    EXPECT_EQ(drawingAround(&widget("imgLinkLight(0)")), nullptr);
}

class ZoneColumnsTest : public Tables {
 protected:
    ZoneColumnsTest() {
        for (int i = 0; i < 3; ++i) loads->click("LONewCommand");
        loads->select("LOZoneList", {1});
        loads->type("LOZoneReferenceText", "Gym");
        loads->type("LOGainsText(0)", "50");
        loads->select("LOZoneList", {2});
        loads->type("LOGainsText(0)", "70");
        Desk::settle();
    }
    int shownRows() { return list().model()->rowCount(); }
};

TEST_F(ZoneColumnsTest, AreSortedToLookAtAndTheListsOwnOrderStays) {
    list().sortByColumn(2, Qt::DescendingOrder);
    EXPECT_EQ(list().model()->index(0, 0).data().toString(), QStringLiteral("Zone 3"));
    EXPECT_EQ(list().entries().items()[0], "Zone 1");
    // What is chosen by the place of the screen is the zone that stands there.
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualRect(list().model()->index(1, 0)).center());
    EXPECT_EQ(loads->control("LOZoneList").selected(), std::vector<int>{1});
}

TEST(ListColumnsTest, AreAsWideAsTheirHeadsWhileAllFindRoom) {
    ListView list(false);
    list.setColumns({{QStringLiteral("Zone"), QStringLiteral("Refrigeration")},
                     [](int, int, int) { return QVariant(); },
                     [](int) { return QString(); },
                     {{0, 0}, {2, 1}}});
    list.setItems({"Zone 1"});
    list.resize(400, 200);
    list.show();
    Desk::settle();
    const QHeaderView& heads = *list.header();
    const int needed = heads.fontMetrics().horizontalAdvance(QStringLiteral("Refrigeration"));
    EXPECT_GT(heads.sectionSize(1), needed);
    // Where the head finds no room the column is left out rather than cut.
    list.resize(heads.sectionSize(0) + needed, 200);
    Desk::settle();
    EXPECT_TRUE(list.isColumnHidden(1));
}

TEST_F(ZoneColumnsTest, ShowTheZonesThatHoldATextAndKeepTheSelection) {
    auto* filter = desk.shelf.windowOf(*loads)->findChild<QLineEdit*>(QStringLiteral("zoneFilter"));
    ASSERT_NE(filter, nullptr);
    filter->setText(QStringLiteral("gym"));
    EXPECT_EQ(shownRows(), 1);
    EXPECT_EQ(loads->control("LOZoneList").selected(), std::vector<int>{2});
    filter->clear();
    EXPECT_EQ(shownRows(), 4);
    EXPECT_EQ(list().rows(), std::vector<int>{2});
}

TEST_F(ZoneColumnsTest, GoToTheZoneThatHoldsWhatIsTyped) {
    list().setFocus();
    QTest::keyClicks(&list(), QStringLiteral("gy"));
    EXPECT_EQ(loads->control("LOZoneList").selected(), std::vector<int>{1});
}

TEST_F(ZoneColumnsTest, CarryASignForWhatIsToBeChecked) {
    const QModelIndex zone = list().model()->index(1, 0);
    EXPECT_FALSE(zone.data(Qt::DecorationRole).isNull());  // loads and no pump
    EXPECT_EQ(plain(zone.data(Qt::ToolTipRole).toString()), "Zone 2 has loads and no pump.");
    EXPECT_TRUE(list().model()->index(0, 0).data(Qt::DecorationRole).isNull());
}

TEST_F(ZoneColumnsTest, AreDrawnAnewWhenWhatTheyShowInSightChangesAndOnlyThen) {
    ASSERT_TRUE(list().isVisible());
    int changes = 0;
    QObject::connect(list().model(), &QAbstractItemModel::dataChanged, &list(),
                     [&changes] { ++changes; });
    const auto changesBy = [&](const char* field, const char* value) {
        changes = 0;
        loads->type(field, value);
        return changes;
    };
    EXPECT_EQ(changesBy("LODaysperWeekText", "5"), 0);  // no column tells the days
    EXPECT_GT(changesBy("LOGainsText(0)", "72"), 0);  // the largest bar, by which all are measured
    EXPECT_EQ(changesBy("LOGainsText(1)", "20"), 0);  // below the zone's largest
    EXPECT_GT(changesBy("LOGainsText(7)", "9"), 0);
    EXPECT_EQ(list().model()->index(2, 2).data().toString(), QStringLiteral("72.0 / 9.0"));
    // Whatever decides the rows' order is asked of them all.
    list().sortByColumn(2, Qt::DescendingOrder);
    loads->select("LOZoneList", {0});
    EXPECT_GT(changesBy("LOGainsText(0)", "90"), 0);
    EXPECT_EQ(list().model()->index(0, 0).data().toString(), QStringLiteral("Zone 1"));
}

TEST_F(ZoneColumnsTest, StandAsHighWithASignAsWithout) {
    const auto height = [this] { return list().visualRect(list().model()->index(0, 0)).height(); };
    const int without = height();
    ASSERT_TRUE(list().model()->index(0, 0).data(Qt::DecorationRole).isNull());
    loads->select("LOZoneList", {0});
    loads->type("LOGainsText(0)", "50");
    Desk::settle();
    ASSERT_FALSE(list().model()->index(0, 0).data(Qt::DecorationRole).isNull());
    EXPECT_EQ(height(), without);
}

TEST_F(ZoneColumnsTest, AreOpenedFromTheSummary) {
    loads->click("LOSummaryCommand");
    Desk::settle();
    auto& summary = static_cast<ListView&>(widget("LOZoneSummaryList"));
    summary.onOpened(3);  // the second line of the second zone
    EXPECT_EQ(loads->selectedZone(), 1);
    EXPECT_FALSE(widget("LOZoneReferenceText").visibleRegion().isEmpty());
}

TEST_F(ZoneColumnsTest, BringAClickedZoneIntoSightBelowTheSummary) {
    loads->click("LOSummaryCommand");
    Desk::settle();
    ASSERT_TRUE(widget("LOZoneReferenceText").visibleRegion().isEmpty()) << "the summary is long";
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualRect(list().model()->index(1, 0)).center());
    Desk::settle();
    EXPECT_EQ(loads->selectedZone(), 1);
    EXPECT_FALSE(widget("LOZoneReferenceText").visibleRegion().isEmpty());
    EXPECT_FALSE(widget("LOGainsText(0)").visibleRegion().isEmpty());
    EXPECT_TRUE(loads->control("LOSummaryPicture").visible()) << "it stays as it was left";
    loads->click("LOSummaryCommand");
    Desk::settle();
    EXPECT_FALSE(widget("LOZoneReferenceText").visibleRegion().isEmpty());
}

}  // namespace
}  // namespace varnholt
