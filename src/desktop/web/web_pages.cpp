// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/web/web_pages.h"

#include <QFileInfo>
#include <QWebEngineCertificateError>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineSettings>

#include "desktop/reading/help_folder.h"
#include "tools/page_reader.h"

namespace varnholt {
namespace {

constexpr int tickEvery = 100;    // ms
constexpr int untilItAsks = 200;  // ms

bool isWeb(const QUrl& url) {
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

bool isFile(const QUrl& url) { return url.scheme() == QLatin1String("file"); }

/// Such a page of this computer would take all memory.
bool isTooLarge(const QUrl& url) {
    return isFile(url) &&
           QFileInfo(url.toLocalFile()).size() > static_cast<qint64>(PageReader::largestPage);
}

/// How the address list shows it: a page of this computer by its path.
std::string shownAddress(const QUrl& url) {
    if (!isFile(url)) return url.toString(QUrl::FullyEncoded).toStdString();
    QString path = url.toLocalFile();
    if (url.hasFragment()) path += u'#' + url.fragment(QUrl::FullyDecoded);
    return path.toStdString();
}

/// As the engine addresses it; invalid for what leads nowhere.
QUrl urlOf(const PageAddress& address) {
    if (address.kind == PageAddress::Kind::web) {
        const QUrl url(QString::fromStdString(address.url));
        return url.host().isEmpty() ? QUrl() : url;
    }
    if (address.kind != PageAddress::Kind::local) return {};
    QUrl url = QUrl::fromLocalFile(QString::fromStdString(address.file));
    if (!address.fragment.empty())
        url.setFragment(QString::fromStdString(address.fragment), QUrl::DecodedMode);
    return url;
}

}  // namespace

void PageGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QUrl url = info.requestUrl(), page = info.firstPartyUrl(), asker = info.initiator();
    if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame) {
        // A page of the web must not lead to a file, and a folder is no page: the engine would list
        // what lies in it.
        const bool folder = isFile(url) && QFileInfo(url.toLocalFile()).isDir();
        info.block(folder || (isFile(url) && isWeb(asker)));
        return;
    }
    if (!isFile(page)) {
        info.block(isFile(url));
        return;
    }
    info.block(!isOfHelp(url, helpFolder_) && url.scheme() != QLatin1String("data"));
}

GuardedPage::GuardedPage(QWebEngineProfile* profile, PageEvents& events, QObject* parent)
    : QWebEnginePage(profile, parent), events_(&events) {
    connect(this, &QWebEnginePage::certificateError, this,
            [this](QWebEngineCertificateError error) {
                error.rejectCertificate();
                refuse(PageRefusal::certificate, error.url());
            });
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl& origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
}

void GuardedPage::refuse(PageRefusal why, const QUrl& url) {
    if (events_ != nullptr) events_->refused(why, shownAddress(url));
}

bool GuardedPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    if (isMainFrame && type == NavigationTypeLinkClicked && takesLink && takesLink(url))
        return false;
    const bool ours = isWeb(url) || isFile(url) || url.scheme() == QLatin1String("about") ||
                      url.scheme() == QLatin1String("chrome-error");
    // What a page makes of itself in a frame is its own.
    const bool ownFrame = !isMainFrame && (url.scheme() == QLatin1String("blob") ||
                                           url.scheme() == QLatin1String("data"));
    const bool tooLarge = isTooLarge(url);
    if ((ours || ownFrame) && !tooLarge) return true;
    refuse(tooLarge ? PageRefusal::tooLarge : PageRefusal::address, url);
    return false;
}

QWebEnginePage* GuardedPage::createWindow(WebWindowType) {
    refuse(PageRefusal::otherWindow, url());
    return nullptr;
}

WebPages::WebPages(PageEvents& events, const PagePlaces& places)
    : events_(events),
      places_(places),
      guard_(QFileInfo(QString::fromStdString(places.helpFolder)).canonicalFilePath()),
      page_(new GuardedPage(&profile_, events, &profile_)),
      view_(new QWebEngineView) {
    profile_.setUrlRequestInterceptor(&guard_);
    QObject::connect(&profile_, &QWebEngineProfile::downloadRequested, &profile_,
                     [this](QWebEngineDownloadRequest* download) {
                         download->cancel();
                         events_.refused(PageRefusal::download, shownAddress(download->url()));
                     });
    QWebEngineSettings* settings = page_->settings();
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    settings->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, true);
    settings->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    settings->setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
    // So that the page is asked about every one of them, and refuses it with a line.
    settings->setUnknownUrlSchemePolicy(QWebEngineSettings::AllowAllUnknownUrlSchemes);
    page_->takesLink = [this](const QUrl& link) { return takesLink(link); };
    view_->setPage(page_);
    view_->setContextMenuPolicy(Qt::NoContextMenu);
    watchLoading();
    timer_.setInterval(tickEvery);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { events_.tick(); });
}

void WebPages::watchLoading() {
    QObject::connect(page_, &QWebEnginePage::loadStarted, &timer_, [this] {
        late_.stop();
        busy_ = loading_ = true;
        runTimer(true);
    });
    QObject::connect(page_, &QWebEnginePage::loadFinished, &timer_, [this](bool shown) {
        loading_ = false;
        // What turns out to be a file to be saved fails first and asks then.
        if (shown)
            ended();
        else
            late_.start();
    });
    // To a place in the page on show the engine goes without a load, and tells the address alone.
    QObject::connect(page_, &QWebEnginePage::urlChanged, &timer_, [this] {
        if (loading_) return;
        busy_ = true;
        ended();
    });
    late_.setSingleShot(true);
    late_.setInterval(untilItAsks);
    QObject::connect(&late_, &QTimer::timeout, &timer_, [this] { ended(); });
}

WebPages::~WebPages() {
    page_->detach();
    QObject::disconnect(page_, nullptr, &timer_, nullptr);
    // The page goes before the profile that it belongs to; the widget may outlive both.
    if (view_ != nullptr) view_->setPage(nullptr);
    delete page_;
}

QWidget* WebPages::widget() { return view_; }

void WebPages::navigate(const std::string& typed) {
    const QUrl here = page_->url();
    const std::string base = isFile(here) ? here.toLocalFile().toStdString() : std::string();
    const PageAddress address = places_.addressOf(typed, base);
    if (address.kind == PageAddress::Kind::none) return;
    const QUrl url = urlOf(address);
    if (!url.isValid()) return events_.refused(PageRefusal::address, typed);
    if (isTooLarge(url)) return events_.refused(PageRefusal::tooLarge, typed);
    load(url);
}

void WebPages::load(const QUrl& url) {
    late_.stop();
    busy_ = true;
    page_->load(url);
}

/// Takes a link that is clicked in a page of this computer. The engine lets no such page lead to
/// another file, so the window goes there itself, as if the address had been typed.
bool WebPages::takesLink(const QUrl& link) {
    if (!isFile(page_->url())) return false;
    if (link.scheme() == exampleScheme) {
        if (!places_.openExample || !isOfHelp(page_->url(), guard_.helpFolder())) return false;
        // Opening may ask questions, for which the engine must not wait.
        QTimer::singleShot(0, &timer_,
                           [this, file = link.path().toStdString()] { places_.openExample(file); });
        return true;
    }
    if (!isFile(link) || isTooLarge(link)) return false;
    QTimer::singleShot(0, &timer_, [this, link] { load(link); });
    return true;
}

bool WebPages::goBack() {
    if (!page_->history()->canGoBack()) return false;
    busy_ = true;
    page_->history()->back();
    return true;
}

bool WebPages::goForward() {
    if (!page_->history()->canGoForward()) return false;
    busy_ = true;
    page_->history()->forward();
    return true;
}

void WebPages::refresh() {
    if (page_->url().isEmpty()) return;
    busy_ = true;
    page_->triggerAction(QWebEnginePage::Reload);
}

void WebPages::stop() {
    busy_ = false;
    late_.stop();
    page_->triggerAction(QWebEnginePage::Stop);
}

void WebPages::ended() {
    if (!busy_) return;
    busy_ = false;
    events_.navigateComplete(shownAddress(page_->url()));
    events_.downloadComplete();
    if (timer_.isActive()) events_.tick();
}

std::string WebPages::title() const { return page_->title().toStdString(); }

void WebPages::runTimer(bool on) {
    if (on)
        timer_.start();
    else
        timer_.stop();
}

}  // namespace varnholt
