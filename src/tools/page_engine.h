// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "tools/page_address.h"

namespace varnholt {

/// Why a browser has not done what a page or an address asked for.
enum class PageRefusal {
    address,      ///< neither a page of the web nor one of this computer
    outside,      ///< a page of the web, handed to the system's browser
    tooLarge,     ///< more than the engine shows
    download,     ///< a page wanted to save a file
    otherWindow,  ///< a page wanted to open a window
    certificate,  ///< the server does not prove who it is
};

/// What an engine tells its browser window.
class PageEvents {
 public:
    virtual ~PageEvents() = default;
    /// A navigation has ended, at a page or at the engine's own error.
    /// @param address  where it ended; a page of this computer by its path
    virtual void navigateComplete(const std::string& address) = 0;
    /// All of the page is there, its title too.
    virtual void downloadComplete() = 0;
    /// The timer's tick, at intervals while it runs.
    virtual void tick() = 0;
    virtual void refused(PageRefusal why, const std::string& address) = 0;
};

/// The engine that shows the pages of one browser window.
class PageEngine {
 public:
    virtual ~PageEngine() = default;

    virtual void navigate(const std::string& address) = 0;
    /// False at the end of the history.
    virtual bool goBack() = 0;
    virtual bool goForward() = 0;
    virtual void refresh() = 0;
    virtual void goHome() = 0;
    virtual void goSearch() = 0;
    virtual void stop() = 0;

    virtual bool busy() const = 0;
    /// Of the page on show; empty when there is none.
    virtual std::string title() const = 0;
    /// Starts and stops the timer that ticks.
    virtual void runTimer(bool on) = 0;
};

/// What an engine knows of the program.
struct PagePlaces {
    std::string home, search;  ///< paths of the pages that Home and Search open
    std::string helpFolder;    ///< whose files local pages may be made of
    std::string errorTitle;    ///< of the page in place of one that cannot be shown
    std::string errorText;     ///< with %1 for its address
    /// Reads what is typed, beside the page on show: pageAddressOf, which an engine in a library of
    /// its own cannot call by its name.
    std::function<PageAddress(const std::string& typed, const std::string& base)> addressOf =
        pageAddressOf;
    /// Opens an example that a page of the help offers, by the name of its file; may be empty.
    std::function<void(const std::string& file)> openExample = {};
};

/// Where engines come from.
class PageSource {
 public:
    virtual ~PageSource() = default;
    virtual std::unique_ptr<PageEngine> newEngine(PageEvents& events, const PagePlaces& places) = 0;
    /// Lets what is being loaded come to its end, for some seconds at most.
    virtual void settle() {}
};

}  // namespace varnholt
