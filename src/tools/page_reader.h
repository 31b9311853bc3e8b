// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "tools/page_address.h"
#include "tools/page_engine.h"

namespace varnholt {

/// An engine for the pages of this computer, without a toolkit: it keeps the history, reads pages
/// and their titles, refuses what is to be refused and hands the web to the system's browser. What
/// shows the pages stands on top of it.
///
/// A navigation ends in finish(), which whoever owns the engine calls once nothing else is due.
class PageReader : public PageEngine {
 public:
    /// Longer pages are refused: they would take all memory.
    static constexpr std::size_t largestPage = std::size_t{16} << 20;  // bytes

    PageReader(PageEvents& events, PagePlaces places);

    void navigate(const std::string& address) override;
    bool goBack() override { return step(-1); }
    bool goForward() override { return step(1); }
    void refresh() override;
    void goHome() override { navigate(places_.home); }
    void goSearch() override { navigate(places_.search); }
    void stop() override { pending_ = Pending::nothing; }
    bool busy() const override { return pending_ != Pending::nothing; }
    std::string title() const override { return title_; }
    void runTimer(bool on) override { ticking_ = on; }

    /// Ends the navigation under way, and ticks once.
    void finish();

 protected:
    /// A navigation has begun: finish() is due soon.
    virtual void begun() {}
    /// The page to be shown. The bytes are those of its file, or of the page that tells its error.
    virtual void show(const PageAddress& /*address*/, const std::string& /*bytes*/) {}
    const PagePlaces& places() const { return places_; }
    /// Path of the page on show.
    const std::string& base() const { return current_.file; }

 private:
    enum class Pending { nothing, next, step };

    void begin(Pending how, std::size_t place, PageAddress address);
    bool step(int by);
    std::string read(const PageAddress& address, bool& tooLarge) const;
    std::string errorPage(const PageAddress& address) const;

    PageEvents& events_;
    PagePlaces places_;
    std::vector<PageAddress> history_;
    std::size_t place_ = 0, wanted_ = 0;
    Pending pending_ = Pending::nothing;
    PageAddress next_, current_;
    std::string title_;
    bool ticking_ = false;
};

/// The engines of a program without windows.
class ReadPages : public PageSource {
 public:
    ~ReadPages() override;
    std::unique_ptr<PageEngine> newEngine(PageEvents& events, const PagePlaces& places) override;
    void settle() override;

 private:
    class Engine;
    std::vector<Engine*> engines_;
};

}  // namespace varnholt
