// SPDX-License-Identifier: GPL-3.0-or-later
// Reports on paper: what stands on which page, and the files that come of it.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <algorithm>

#include "basis/file_system.h"
#include "basis/temporary_folder.h"
#include "desktop/paper/page_setup.h"
#include "desktop/paper/pdf_file.h"
#include "desktop/paper/report_view.h"
#include "desktop/report_samples.h"

namespace varnholt {
namespace {

class Paper : public testing::Test {
 protected:
    std::unique_ptr<PageLayout> laid(const std::shared_ptr<const Report>& report,
                                     const PageSetup& setup = {}) {
        return std::make_unique<PageLayout>(report, setup.layoutFor(*report));
    }
    std::string pdf(const std::shared_ptr<const Report>& report, const PageSetup& setup = {}) {
        const QPageLayout paper = setup.layoutFor(*report);
        return pdfOf(PageLayout(report, paper), paper, desk.program.texts());
    }
    std::string written(const std::string& bytes) {
        const std::string path = folder / "report.pdf";
        replaceWholeFile(path, bytes);
        return path;
    }
    static QString outputOf(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is not installed";
        EXPECT_EQ(process.readAllStandardError(), QByteArray());
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    /// What a reader finds in the file, page by page.
    QStringList textOf(const std::string& bytes) {
        QStringList pages = outputOf(QStringLiteral("pdftotext"),
                                     {QStringLiteral("-layout"),
                                      QString::fromStdString(written(bytes)), QStringLiteral("-")})
                                .split(u'\f');
        pages.removeLast();
        return pages;
    }
    /// The tool sets words apart by their places on the page, and narrow blanks not at all.
    static QString withoutBlanks(QString text) { return text.remove(u' '); }
    QString infoOf(const std::string& bytes) {
        return outputOf(QStringLiteral("pdfinfo"), {QString::fromStdString(written(bytes))});
    }

    Desk desk;
    ReportSamples samples{desk};
    TemporaryFolder folder;
};

TEST_F(Paper, IsLetterWhereLetterIsUsedAndA4Elsewhere) {
    EXPECT_EQ(usualPage(0x409).size.id(), QPageSize::Letter);  // United States
    EXPECT_EQ(usualPage(0xC0C).size.id(), QPageSize::Letter);  // Canada, French
    EXPECT_EQ(usualPage(0x809).size.id(), QPageSize::A4);      // United Kingdom
    EXPECT_EQ(usualPage(0x407).size.id(), QPageSize::A4);      // Germany
}

TEST_F(Paper, LiesAsTheReportWantsUnlessTheUserTurnsIt) {
    PageSetup setup;
    EXPECT_EQ(setup.layoutFor(*samples.zones(1, 1)).orientation(), QPageLayout::Landscape);
    EXPECT_EQ(setup.layoutFor(*samples.zones(1, 2)).orientation(), QPageLayout::Portrait);
    setup.orientation = QPageLayout::Landscape;
    EXPECT_EQ(setup.layoutFor(*samples.zones(1, 2)).orientation(), QPageLayout::Landscape);
}

TEST_F(Paper, IsTurnedAndTurnedBackInItsSetUp) {
    const auto sheet = [](QPageSize::PageSizeId size, QPageLayout::Orientation way) {
        return QPageLayout(QPageSize(size), way, {});
    };
    PageSetup setup;
    setup.take(sheet(QPageSize::Letter, QPageLayout::Portrait));
    EXPECT_EQ(setup, PageSetup{QPageSize(QPageSize::Letter)});
    setup.take(sheet(QPageSize::A4, QPageLayout::Landscape));
    EXPECT_EQ(setup.layoutFor(*samples.zones(1, 2)).orientation(), QPageLayout::Landscape);
    setup.take(sheet(QPageSize::A4, QPageLayout::Portrait));
    EXPECT_EQ(setup.layoutFor(*samples.zones(1, 2)).orientation(), QPageLayout::Portrait);
}

TEST_F(Paper, HoldsEveryRowWithinItsMargins) {
    for (int option = 1; option <= 5; ++option)
        for (const QPageSize::PageSizeId size : {QPageSize::A4, QPageSize::Letter}) {
            const auto pages = laid(samples.zones(60, option), {QPageSize(size)});
            for (const LaidPage& page : pages->pages())
                for (const PlacedRow& placed : page.rows) {
                    EXPECT_GE(placed.top, pages->text().top() - 0.5);
                    EXPECT_LE(placed.top + placed.row->height, pages->text().bottom() + 0.5);
                }
        }
}

TEST_F(Paper, KeepsAZonesBlockTogether) {
    const auto pages = laid(samples.zones(40, 2));
    std::map<std::size_t, std::set<std::size_t>> pagesOfZone;
    for (std::size_t page = 0; page < pages->pages().size(); ++page)
        for (const PlacedRow& placed : pages->pages()[page].rows)
            if (placed.row->zone > 0) pagesOfZone[placed.row->zone].insert(page);
    ASSERT_EQ(pagesOfZone.size(), 40U);
    for (const auto& [zone, where] : pagesOfZone) EXPECT_EQ(where.size(), 1U) << "zone " << zone;
    EXPECT_GT(pages->pages().size(), 4U);
}

TEST_F(Paper, LeavesNoHeadingAtTheFootOfAPage) {
    // Comments of every length push the headings behind them over the foot.
    for (int lines = 0; lines < 60; lines += 7) {
        const auto pages =
            laid(samples.borehole(0, std::string(static_cast<std::size_t>(lines), '\n')));
        for (const LaidPage& page : pages->pages()) {
            const LaidRow* last = nullptr;
            for (const PlacedRow& placed : page.rows)
                if (placed.top < pages->text().bottom() - 300) last = placed.row;
            if (&page != &pages->pages().back()) {
                EXPECT_FALSE(last->keepsNext);
            }
        }
    }
}

TEST_F(Paper, WrapsALongNameAndCutsNothing) {
    std::string title;
    for (int i = 0; i < 2000; ++i) title += "word" + std::to_string(i) + " ";  // about 16,000
    const QStringList pages = textOf(pdf(samples.zones(1, 2, title)));
    const QString all = pages.join(u' ');
    EXPECT_TRUE(all.contains(QStringLiteral("word0 ")));
    EXPECT_TRUE(all.contains(QStringLiteral("word1999")));
    EXPECT_GT(pages.size(), 1);
}

TEST_F(Paper, WrapsAWordThatIsLongerThanItsColumn) {
    const auto pages = laid(samples.zones(1, 5, std::string(10000, 'x')));
    for (const LaidPage& page : pages->pages())
        for (const PlacedRow& placed : page.rows)
            for (const LaidItem& item : placed.row->items)
                for (const QString& line : item.lines)
                    if (item.item->control == "txtTitle") {
                        EXPECT_LE(pages->type().of(*item.item).widthOf(line), item.width + 1);
                    }
}

TEST_F(Paper, LetsALongHeadGoOnOverPages) {
    auto report = std::make_shared<Report>(*samples.borehole(0));
    std::string name;
    for (int i = 0; i < 2000; ++i) name += "name ";  // 10,000 characters
    for (ReportBand& band : report->bands)
        for (ReportRow& row : band.rows)
            for (ReportItem& item : row.items)
                if (item.control == "ProjectNameTextLabel") item.text = name;
    const auto pages = laid(report);
    EXPECT_GT(pages->pages().size(), 3U);
    for (const LaidPage& page : pages->pages())
        for (const PlacedRow& placed : page.rows)
            EXPECT_LE(placed.top + placed.row->height, pages->text().bottom() + 0.5);
}

TEST_F(Paper, NamesItsPagesAndHasNoEmptyOne) {
    const QStringList pages = textOf(pdf(samples.zones(30, 2)));
    ASSERT_GT(pages.size(), 3);
    for (int page = 0; page < pages.size(); ++page) {
        EXPECT_TRUE(withoutBlanks(pages[page])
                        .contains(QStringLiteral("%1/%2").arg(page + 1).arg(pages.size())))
            << page;
        EXPECT_TRUE(pages[page].contains(QStringLiteral("AB-036"))) << page;
        const bool running =
            pages[page].contains(QStringLiteral("Page %1 of %2").arg(page + 1).arg(pages.size()));
        EXPECT_EQ(running, page > 0);
    }
}

TEST_F(Paper, TellsEverySignOfItsWords) {
    const QString text = withoutBlanks(textOf(pdf(samples.zones(1, 2))).join(QString()));
    for (const char* words : {"2026-01-15", "Unit Inlet (deg F):", "(MBtu/Hr):", "EER / COP:",
                              "AB-036", "1 / 1", "Manufacturer:"})
        EXPECT_TRUE(text.contains(withoutBlanks(QString::fromLatin1(words)))) << words;
}

TEST_F(Paper, IsSearchableTextWithTitleAuthorAndBookmarks) {
    const std::string project = pdf(samples.borehole(0));
    EXPECT_TRUE(textOf(project).join(u' ').contains(QStringLiteral("School Östra Vånga")));
    const QString info = infoOf(project);
    EXPECT_TRUE(info.contains(
        QRegularExpression(QStringLiteral("Title: +Borehole Design Project Report"))));
    EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Author: +A. Designer"))));
    const std::string zones = pdf(samples.zones(12, 2));
    EXPECT_NE(zones.find("/Type /Outlines"), std::string::npos);
    EXPECT_NE(zones.find("/Count 12"), std::string::npos);
}

TEST_F(Paper, IsOfTheSizeThatWasChosen) {
    EXPECT_TRUE(infoOf(pdf(samples.borehole(0), {QPageSize(QPageSize::A4)}))
                    .contains(QStringLiteral("(A4)")));
    EXPECT_TRUE(infoOf(pdf(samples.borehole(0), {QPageSize(QPageSize::Letter)}))
                    .contains(QStringLiteral("(letter)")));
}

TEST_F(Paper, EmbedsItsFonts) {
    const QString fonts = outputOf(QStringLiteral("pdffonts"),
                                   {QString::fromStdString(written(pdf(samples.borehole(0))))});
    const QStringList lines = fonts.trimmed().split(u'\n').mid(2);
    ASSERT_FALSE(lines.isEmpty());
    for (const QString& line : lines)
        EXPECT_TRUE(line.contains(QStringLiteral(" yes"))) << line.toStdString();
}

TEST_F(Paper, IsTheSameFileButForTheTimeOfItsMaking) {
    const auto withoutDate = [](std::string bytes) {
        const std::size_t at = bytes.find("/CreationDate");
        return bytes.erase(at, bytes.find('\n', at) - at);
    };
    const auto report = samples.borehole(0);
    EXPECT_EQ(withoutDate(pdf(report)), withoutDate(pdf(report)));
}

TEST_F(Paper, CanBeBrokenOff) {
    const auto report = samples.zones(2000, 2);
    int asked = 0;
    const PageLayout broken(report, PageSetup().layoutFor(*report),
                            [&](std::size_t, std::size_t) { return ++asked < 3; });
    EXPECT_FALSE(broken.isComplete());
    EXPECT_GE(asked, 3);
}

TEST_F(Paper, PaintsInkOnEveryPage) {
    const auto pages = laid(samples.zones(12, 2));
    for (std::size_t page = 0; page < pages->pages().size(); ++page) {
        QImage image(600, 850, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(0.1, 0.1);
        PagePainter(*pages, desk.program.texts()).paint(painter, page);
        painter.end();
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 128;
        EXPECT_GT(dark, 500) << page;
    }
}

class OnScreen : public Paper {
 protected:
    OnScreen() : view(desk.program.texts()) {
        view.resize(800, 600);
        view.setPages(std::shared_ptr<const PageLayout>(laid(samples.zones(40, 2))));
        view.show();
        Desk::settle();
    }
    ReportView view;
};

TEST_F(OnScreen, PagesAreTurned) {
    ASSERT_GT(view.pageCount(), 5U);
    view.goTo(3);
    EXPECT_EQ(view.page(), 3U);
    view.setContinuous(false);
    EXPECT_EQ(view.page(), 3U);
    view.goTo(1000);
    EXPECT_EQ(view.page(), view.pageCount() - 1);
}

TEST_F(OnScreen, PagesFitTheWidthOrThePage) {
    view.setFit(ReportView::Fit::page);
    const double page = view.zoom();
    view.setFit(ReportView::Fit::width);
    EXPECT_GT(view.zoom(), page);
    view.setZoom(1);
    EXPECT_EQ(view.fit(), ReportView::Fit::none);
    view.step(1);
    EXPECT_DOUBLE_EQ(view.zoom(), 1.25);
    view.step(-1);
    view.step(-1);
    EXPECT_DOUBLE_EQ(view.zoom(), 0.75);
}

TEST_F(OnScreen, WordsAreFoundOneAfterTheOther) {
    EXPECT_FALSE(view.find(QStringLiteral("nowhere at all")));
    EXPECT_TRUE(view.find(QStringLiteral("zone 3")));
    // Zone 3 and Zone 30 to Zone 39.
    EXPECT_EQ(view.found().size(), 11U);
    const std::size_t first = view.foundPlace();
    view.find(QStringLiteral("zone 3"));
    EXPECT_EQ(view.foundPlace(), first + 1);
}

}  // namespace
}  // namespace varnholt
