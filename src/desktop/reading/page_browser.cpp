// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/reading/page_browser.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextDocument>
#include <algorithm>
#include <utility>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

/// What is laid out at once, in characters: more than a screen of a table.
constexpr qsizetype firstPart = 9000;

/// How long the rest waits, so that the first part is painted before it, ms.
constexpr int untilPainted = 30;

/// How long the next section waits at most, ms. It waits four times as long as the last one took,
/// so that the hands have four fifths of the time while a page grows.
constexpr qint64 longestRest = 80;
constexpr qint64 restForWork = 4;

/// How near its end a reader comes before more of the page is laid out at once, in screens.
constexpr int screensAhead = 2;

/// A page without what the text browser would take for text, or cannot follow.
QString withoutSheetsAndScripts(QString html) {
    static const QRegularExpression dropped(
        QStringLiteral("<(style|script|nav|head)\\b[^>]*>.*?</\\1>|<!--.*?-->"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
    return html.remove(dropped);
}

/// The page cut before its headings, tables whole.
QStringList sectionsOf(const QString& html) {
    static const QRegularExpression heading(QStringLiteral("(?=<h[23]\\b)"));
    return html.split(heading);
}

/// Whether two addresses differ in their places within a page at most.
bool isOnePage(const QUrl& one, const QUrl& other) {
    return one.adjusted(QUrl::RemoveFragment) == other.adjusted(QUrl::RemoveFragment);
}

/// Pictures may have changed where the text of a page has not.
bool hasPictures(const QString& html) {
    return html.contains(QLatin1String("<img"), Qt::CaseInsensitive);
}

}  // namespace

QString pageSheet(const Look& look) {
    return QStringLiteral(
               "a { color: %1; } h1 { font-size: x-large; } h2 { font-size: large; }"
               "h3 { font-size: medium; } th { color: %2; font-weight: 600; }"
               "th, td { padding: 2px 4px; text-align: right; }"
               // A narrow column would break a figure behind its decimal point.
               "td { white-space: nowrap; } td.words { white-space: normal; }"
               ".formula { margin-left: 24px; font-style: italic; }"
               ".button { background-color: %1; color: %3; text-decoration: none; }"
               ".source, .contents, .note { color: %2; } .words { text-align: left; }"
               "dt { font-weight: 600; margin-top: 6px; }"
               "pre, code { font-family: monospace; }")
        .arg(look.accent.name(), look.muted.name(), look.onAccent.name());
}

PageBrowser::PageBrowser(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    // A narrow column of a table would break its words anywhere.
    setWordWrapMode(QTextOption::WordWrap);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(2 * gridStep);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (onLink) onLink(address_.resolved(link));
    });
    more_.setSingleShot(true);
    connect(&more_, &QTimer::timeout, this, [this] { addAtLeisure(); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (more_.isActive() && isReadNearItsEnd()) more_.start(0);
    });
}

void PageBrowser::showPage(const QUrl& address, const QString& html) {
    QString page = withoutSheetsAndScripts(html);
    const bool stands = page == html_ && isOnePage(address, address_) && !hasPictures(page);
    address_ = address;
    if (!stands) {
        html_ = std::move(page);
        layOut();
    }
    if (!address.hasFragment()) return verticalScrollBar()->setValue(0);
    completePage();
    scrollToAnchor(address.fragment(QUrl::FullyDecoded));
}

void PageBrowser::layOut() {
    // Each of what follows would lay out the page before once more.
    clear();
    // One that came and went would lay out the page again with every change of its width.
    setVerticalScrollBarPolicy(html_.size() > firstPart ? Qt::ScrollBarAlwaysOn
                                                        : Qt::ScrollBarAsNeeded);
    document()->setDefaultStyleSheet(pageSheet(lookOf(palette())));
    document()->setBaseUrl(address_);
    waiting_ = sectionsOf(html_);
    QString first;
    while (!waiting_.isEmpty() && first.size() < firstPart) first += waiting_.takeFirst();
    setHtml(first);
    if (!waiting_.isEmpty()) more_.start(untilPainted);
}

bool PageBrowser::addSection() {
    if (waiting_.isEmpty()) return false;
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertBlock(QTextBlockFormat(), QTextCharFormat());
    end.insertHtml(waiting_.takeFirst());
    return true;
}

void PageBrowser::addAtLeisure() {
    QElapsedTimer work;
    work.start();
    if (!addSection()) return;
    const qint64 rest =
        isReadNearItsEnd() ? 0 : std::min(restForWork * work.elapsed(), longestRest);
    more_.start(static_cast<int>(rest));
}

/// Whether a reader has come so far that the end of what is laid out is soon in sight.
bool PageBrowser::isReadNearItsEnd() const {
    const QScrollBar* bar = verticalScrollBar();
    return bar->value() > 0 && bar->value() > bar->maximum() - screensAhead * bar->pageStep();
}

/// Lays out what is still missing of a long page.
void PageBrowser::completePage() {
    while (addSection()) continue;
    more_.stop();
}

std::unique_ptr<QTextDocument> PageBrowser::printable() const {
    auto paper = std::make_unique<QTextDocument>();
    paper->setDefaultFont(font());
    paper->setDefaultStyleSheet(pageSheet(lightLook()));
    paper->setHtml(html_);
    return paper;
}

QVariant PageBrowser::loadResource(int type, const QUrl& name) {
    QVariant bytes;
    if (type == QTextDocument::ImageResource && picture) bytes = picture(address_.resolved(name));
    // For nothing at all the document would look on the disk itself.
    return bytes.isNull() ? QVariant(QByteArray("")) : bytes;
}

void PageBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || html_.isEmpty()) return;
    const int place = verticalScrollBar()->value();
    layOut();
    completePage();
    verticalScrollBar()->setValue(place);
}

}  // namespace varnholt
