// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/desktop_pages.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <utility>

#include "desktop/reading/text_pages.h"
#include "desktop/reading/web_module.h"

namespace varnholt {
namespace {

/// How long a script waits for a page.
constexpr std::chrono::seconds pagesPatience(5);
/// How long after its end a page of the web may still be painting.
constexpr std::chrono::milliseconds untilPainted(300);

}  // namespace

/// An engine that its source knows of as long as it lives.
class DesktopPages::Watched : public PageEngine, public PageWidget {
 public:
    Watched(DesktopPages& source, std::unique_ptr<PageEngine> engine)
        : source_(&source), engine_(std::move(engine)) {
        source.engines_.push_back(this);
    }
    ~Watched() override {
        if (source_ != nullptr) std::erase(source_->engines_, this);
    }
    void forget() { source_ = nullptr; }
    /// Something is still to come: a page, or the tick after it.
    bool isWaited() const { return engine_->busy() || ticking_; }
    /// Whether the page is painted apart from the program's windows, in its own time.
    bool paintsLater() const { return dynamic_cast<const TextPages*>(engine_.get()) == nullptr; }

    QWidget* widget() override { return dynamic_cast<PageWidget&>(*engine_).widget(); }
    void navigate(const std::string& address) override { engine_->navigate(address); }
    bool goBack() override { return engine_->goBack(); }
    bool goForward() override { return engine_->goForward(); }
    void refresh() override { engine_->refresh(); }
    void goHome() override { engine_->goHome(); }
    void goSearch() override { engine_->goSearch(); }
    void stop() override { engine_->stop(); }
    bool busy() const override { return engine_->busy(); }
    std::string title() const override { return engine_->title(); }
    void runTimer(bool on) override {
        ticking_ = on;
        engine_->runTimer(on);
    }

 private:
    DesktopPages* source_;
    std::unique_ptr<PageEngine> engine_;
    bool ticking_ = false;
};

DesktopPages::~DesktopPages() {
    for (Watched* engine : engines_) engine->forget();
}

std::unique_ptr<PageEngine> DesktopPages::newEngine(PageEvents& events, const PagePlaces& wanted) {
    PagePlaces places = wanted;
    places.openExample = openExample_;
    std::unique_ptr<PageEngine> engine;
    WebModule* web = wanted_ == "text" ? nullptr : findWebModule();
    if (web != nullptr)
        engine = web->newEngine(events, places);
    else
        engine = std::make_unique<TextPages>(events, places);
    return std::make_unique<Watched>(*this, std::move(engine));
}

bool DesktopPages::anyBusy() const {
    return std::any_of(engines_.begin(), engines_.end(),
                       [](const Watched* engine) { return engine->isWaited(); });
}

void DesktopPages::settle() {
    if (!anyBusy()) return;
    const QDeadlineTimer end(pagesPatience);
    while (anyBusy() && !end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents |
                                        QEventLoop::ExcludeUserInputEvents);
    if (std::none_of(engines_.begin(), engines_.end(),
                     [](const Watched* engine) { return engine->paintsLater(); }))
        return;
    // So that a picture that the next line takes has the page in it.
    QEventLoop painting;
    QTimer::singleShot(untilPainted, &painting, &QEventLoop::quit);
    painting.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace varnholt
