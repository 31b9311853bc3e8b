// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/web/web_pages.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QWebEngineCertificateError>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineSettings>

#include "tools/page_reader.h"

namespace varnholt {
namespace {

constexpr int tickEvery = 100;    // ms
constexpr int untilItAsks = 200;  // ms

bool isWeb(const QUrl& url) {
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

bool isFile(const QUrl& url) { return url.scheme() == QLatin1String("file"); }

/// Whether it leads anywhere: to a host of the web, or to a file of this computer by its whole
/// path.
bool leadsSomewhere(const QUrl& url) {
    if (isWeb(url)) return !url.host().isEmpty();
    const bool here = url.host().isEmpty() || url.host() == QLatin1String("localhost");
    return isFile(url) && here && url.path().startsWith(u'/');
}

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

/// An address as it is typed or pasted: a path, an address, or a bare host name. Invalid for what
/// is neither a page of the web nor one of this computer.
QUrl urlOf(const std::string& typed, const QUrl& base) {
    QString text = QString::fromStdString(typed).trimmed();
    if (text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"'))
        text = text.mid(1, text.size() - 2);
    if (text.startsWith(u'/')) {
        if (QFileInfo::exists(text) || !text.contains(u'#'))
            return QUrl::fromLocalFile(QDir::cleanPath(text));
        QUrl url = QUrl::fromLocalFile(QDir::cleanPath(text.section(u'#', 0, 0)));
        url.setFragment(text.section(u'#', 1));
        return url;
    }
    static const QRegularExpression host(QStringLiteral("^[A-Za-z0-9.-]+(:[0-9]+)?(/.*)?$"));
    const bool isHost = host.match(text).hasMatch();
    const QUrl url(text);
    if (!isHost && !url.scheme().isEmpty()) return leadsSomewhere(url) ? url : QUrl();
    if (isFile(base)) {
        QUrl beside = base.resolved(QUrl(text));
        if (text.startsWith(u'.') || QFileInfo(beside.toLocalFile()).isFile()) return beside;
    }
    return QUrl(QStringLiteral("http://") + text);
}

}  // namespace

void PageGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QUrl url = info.requestUrl(), page = info.firstPartyUrl(), asker = info.initiator();
    if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame) {
        // A page of the web must not lead to a file.
        info.block(isFile(url) && isWeb(asker));
        return;
    }
    if (!isFile(page)) {
        info.block(isFile(url));
        return;
    }
    const QString path = QFileInfo(url.toLocalFile()).canonicalFilePath();
    const bool ofHelp =
        isFile(url) && !helpFolder_.isEmpty() && path.startsWith(helpFolder_ + u'/');
    info.block(!ofHelp && url.scheme() != QLatin1String("data"));
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

bool GuardedPage::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) {
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
    view_->setPage(page_);
    view_->setContextMenuPolicy(Qt::NoContextMenu);
    QObject::connect(page_, &QWebEnginePage::loadStarted, &timer_, [this] {
        busy_ = true;
        runTimer(true);
    });
    QObject::connect(page_, &QWebEnginePage::loadFinished, &timer_, [this](bool shown) {
        // What turns out to be a file to be saved fails first and asks then.
        if (shown)
            ended();
        else
            late_.start();
    });
    late_.setSingleShot(true);
    late_.setInterval(untilItAsks);
    QObject::connect(&late_, &QTimer::timeout, &timer_, [this] { ended(); });
    timer_.setInterval(tickEvery);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { events_.tick(); });
}

WebPages::~WebPages() {
    page_->detach();
    // The page goes before the profile that it belongs to; the widget may outlive both.
    if (view_ != nullptr) view_->setPage(nullptr);
    delete page_;
}

QWidget* WebPages::widget() { return view_; }

void WebPages::navigate(const std::string& address) {
    const QUrl url = urlOf(address, page_->url());
    if (address.find_first_not_of(" \t\r\n") == std::string::npos) return;
    if (!url.isValid()) return events_.refused(PageRefusal::address, address);
    if (isTooLarge(url)) return events_.refused(PageRefusal::tooLarge, address);
    busy_ = true;
    page_->load(url);
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
