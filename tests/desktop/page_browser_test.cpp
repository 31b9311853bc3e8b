// SPDX-License-Identifier: GPL-3.0-or-later
// The text browser for pages: what it lays out, and what it leaves as it stands.
#include "desktop/reading/page_browser.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>

namespace varnholt {
namespace {

/// Sixty sections of ten lines: far longer than what is laid out at once, and than any window.
QString longPage(const QString& word) {
    QString html = QStringLiteral("<html><body>");
    for (int section = 0; section < 60; ++section) {
        html += QStringLiteral("<h2 id=\"place%1\">%2 %1</h2>").arg(section).arg(word);
        for (int line = 0; line < 10; ++line)
            html += QStringLiteral("<p>A line of %1</p>").arg(word);
    }
    return html + QStringLiteral("</body></html>");
}

class WidthsCounted : public QObject {
 public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) ++count;
        return QObject::eventFilter(watched, event);
    }
    int count = 0;
};

class PageBrowserTest : public testing::Test {
 protected:
    PageBrowserTest() {
        browser.resize(600, 400);
        browser.show();
        QCoreApplication::processEvents();
    }
    void show(const char* address, const QString& html) {
        browser.showPage(QUrl(QString::fromLatin1(address)), html);
    }
    int place() const { return browser.verticalScrollBar()->value(); }

    PageBrowser browser;
};

TEST_F(PageBrowserTest, AddsAndTakesNothingWhenALinkLeadsToAPlaceInThePage) {
    const QString page = longPage(QStringLiteral("sand"));
    show("file:///folder/page.html#place59", page);
    const int end = place();
    int changes = 0;
    QObject::connect(browser.document(), &QTextDocument::contentsChange, &browser,
                     [&changes] { ++changes; });
    show("file:///folder/page.html#place30", page);
    EXPECT_GT(place(), 0);
    EXPECT_LT(place(), end);
    show("file:///folder/page.html", page);
    EXPECT_EQ(place(), 0);
    EXPECT_EQ(changes, 0);
}

TEST_F(PageBrowserTest, ShowsWhatHasChangedAtTheSameAddress) {
    show("file:///folder/page.html", QStringLiteral("<p>sand</p>"));
    show("file:///folder/page.html", QStringLiteral("<p>clay</p>"));
    EXPECT_EQ(browser.toPlainText(), QStringLiteral("clay"));
}

TEST_F(PageBrowserTest, AsksForThePicturesOfAPageThatIsShownAgain) {
    int asked = 0;
    browser.picture = [&asked](const QUrl&) {
        ++asked;
        return QVariant();
    };
    const QString page = QStringLiteral("<p>sand <img src=\"grain.png\"></p>");
    show("file:///folder/page.html", page);
    const int first = asked;
    EXPECT_GT(first, 0);
    show("file:///folder/page.html", page);
    EXPECT_GT(asked, first);
}

TEST_F(PageBrowserTest, LaysOutTheRestForAReaderWhoKeepsToTheEnd) {
    const QString page = longPage(QStringLiteral("sand"));
    show("file:///folder/page.html", page);
    QScrollBar* bar = browser.verticalScrollBar();
    const int first = bar->maximum();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        bar->setValue(bar->maximum());
        return browser.toPlainText().contains(QStringLiteral("sand 59"));
    }));
    EXPECT_GT(bar->maximum(), first);
}

TEST_F(PageBrowserTest, KeepsItsWidthWhileOneLongPageFollowsAnother) {
    show("file:///folder/page.html", longPage(QStringLiteral("sand")));
    QCoreApplication::processEvents();
    WidthsCounted widths;
    browser.viewport()->installEventFilter(&widths);
    show("file:///folder/other.html#place59", longPage(QStringLiteral("clay")));
    QCoreApplication::processEvents();
    EXPECT_EQ(widths.count, 0);
    browser.viewport()->removeEventFilter(&widths);
}

}  // namespace
}  // namespace varnholt
