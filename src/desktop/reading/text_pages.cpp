// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/reading/text_pages.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "basis/text_encoding.h"
#include "desktop/reading/help_folder.h"
#include "desktop/reading/page_browser.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr int tickEvery = 100;  // ms

/// A picture of the help's folder; nothing for any other file.
QVariant pictureOf(const QUrl& address, const QString& folder) {
    if (!isOfHelp(address, folder)) return {};
    QFile file(address.toLocalFile());
    return file.open(QIODevice::ReadOnly) ? QVariant(file.readAll()) : QVariant();
}

}  // namespace

TextPages::TextPages(PageEvents& events, const PagePlaces& places)
    : PageReader(events, places), browser_(new PageBrowser) {
    const QString folder = QFileInfo(qt(places.helpFolder)).canonicalFilePath();
    browser_->picture = [folder](const QUrl& address) { return pictureOf(address, folder); };
    browser_->onLink = [this, folder](const QUrl& link) { follow(link, folder); };
    load_.setSingleShot(true);
    load_.setInterval(0);
    QObject::connect(&load_, &QTimer::timeout, &load_, [this] { finish(); });
    timer_.setInterval(tickEvery);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { finish(); });
}

TextPages::~TextPages() {
    // The widget may outlive the engine by a moment.
    if (browser_ != nullptr) browser_->onLink = nullptr;
}

QWidget* TextPages::widget() { return browser_; }

void TextPages::follow(const QUrl& link, const QString& helpFolder) {
    const bool offered = link.scheme() == exampleScheme && places().openExample &&
                         isOfHelp(QUrl::fromLocalFile(qt(base())), helpFolder);
    if (offered) return places().openExample(plain(link.path()));
    runTimer(true);
    navigate(plain(QString::fromUtf8(link.toEncoded())));
}

void TextPages::runTimer(bool on) {
    PageReader::runTimer(on);
    if (on)
        timer_.start();
    else
        timer_.stop();
}

void TextPages::begun() { load_.start(); }

void TextPages::stop() {
    load_.stop();
    PageReader::stop();
}

void TextPages::show(const PageAddress& address, const std::string& bytes) {
    if (browser_ == nullptr) return;
    QUrl url = QUrl::fromLocalFile(qt(address.file));
    if (!address.fragment.empty()) url.setFragment(qt(address.fragment), QUrl::DecodedMode);
    browser_->showPage(url, qt(decodeText(bytes)));
}

}  // namespace varnholt
