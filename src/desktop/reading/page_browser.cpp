// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/reading/page_browser.h"

#include <QEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextDocument>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

/// What is laid out at once, in characters: more than a screen of a table.
constexpr qsizetype firstPart = 9000;

/// How long the rest waits, so that the first part is painted before it, ms.
constexpr int untilPainted = 30;

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
    connect(&more_, &QTimer::timeout, this, [this] {
        more_.setInterval(0);
        if (!addSection()) more_.stop();
    });
}

void PageBrowser::showPage(const QUrl& address, const QString& html) {
    address_ = address;
    html_ = withoutSheetsAndScripts(html);
    layOut();
    if (!address.hasFragment()) return;
    completePage();
    scrollToAnchor(address.fragment(QUrl::FullyDecoded));
}

void PageBrowser::layOut() {
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
