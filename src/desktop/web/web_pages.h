// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>
#include <functional>

#include "desktop/reading/page_widget.h"
#include "tools/page_engine.h"

namespace varnholt {

/// Keeps pages to what they may read: a page of this computer reads files of the help alone and
/// nothing from the network, a page of the web reads no file.
class PageGuard : public QWebEngineUrlRequestInterceptor {
 public:
    explicit PageGuard(QString helpFolder) : helpFolder_(std::move(helpFolder)) {}
    void interceptRequest(QWebEngineUrlRequestInfo& info) override;
    const QString& helpFolder() const { return helpFolder_; }

 private:
    QString helpFolder_;
};

/// A page that opens no windows, answers no prompts of untrusted servers and follows no scheme but
/// those of files and of the web.
class GuardedPage : public QWebEnginePage {
 public:
    GuardedPage(QWebEngineProfile* profile, PageEvents& events, QObject* parent);
    /// No more is told from now on.
    void detach() {
        events_ = nullptr;
        takesLink = nullptr;
    }
    /// Asked about every link that is clicked: true for one that is gone to in another way.
    std::function<bool(const QUrl& link)> takesLink;

 protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType type) override;
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override {
        return false;
    }
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override {
        return {};
    }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}

 private:
    void refuse(PageRefusal why, const QUrl& url);

    PageEvents* events_;
};

/// The engine for pages of the web and of this computer.
class WebPages : public PageEngine, public PageWidget {
 public:
    WebPages(PageEvents& events, const PagePlaces& places);
    ~WebPages() override;

    QWidget* widget() override;
    void navigate(const std::string& address) override;
    bool goBack() override;
    bool goForward() override;
    void refresh() override;
    void goHome() override { navigate(places_.home); }
    void goSearch() override { navigate(places_.search); }
    void stop() override;
    bool busy() const override { return busy_; }
    std::string title() const override;
    void runTimer(bool on) override;

 private:
    void watchLoading();
    void load(const QUrl& url);
    bool takesLink(const QUrl& link);
    void ended();

    PageEvents& events_;
    PagePlaces places_;
    QWebEngineProfile profile_;
    PageGuard guard_;
    GuardedPage* page_;
    QPointer<QWebEngineView> view_;
    QTimer timer_, late_;
    bool busy_ = false;
    bool loading_ = false;  ///< from the start of a load to its end, as the engine tells them
};

}  // namespace varnholt
