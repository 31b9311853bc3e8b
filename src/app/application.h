// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "forms/platform.h"
#include "frame/varnmain.h"
#include "reports/report_shelf.h"
#include "tools/modResource.h"
#include "tools/page_reader.h"
#include "tools/reference_tools.h"

namespace varnholt {

/// The whole program behind its windows: the language, the main window, every subsystem.
class Application {
 public:
    struct Setup {
        std::string programFolder;   ///< the program's folder, without a slash at its end
        std::string resourceFolder;  ///< holds `language`
        unsigned localeNumber = 0x409;
        bool dayIsGiven = false;  ///< reports tell no time of day
    };

    /// The engines of the platform; what is null is done without a window.
    struct Engines {
        PageSource* pages = nullptr;
        HelpEngine* help = nullptr;
    };

    Application(Platform& platform, const Setup& setup) : Application(platform, setup, {}) {}
    Application(Platform& platform, const Setup& setup, const Engines& engines);

    Varnmain& main() { return *main_; }
    const Texts& texts() const { return language_; }
    ReportShelf& reports() { return *reports_; }
    void start() { main_->start(); }
    /// Opens a browser window at an address.
    void browse(const std::string& address) { tools_->browse(address); }
    /// Lets the pages of the browser windows finish loading, for some seconds at most.
    void settlePages() { pages_.settle(); }

 private:
    LanguageResource language_;
    std::unique_ptr<ReportShelf> reports_;
    // The windows use them to their end.
    ReadPages readPages_;
    UnseenHelp unseenHelp_;
    PageSource& pages_;
    std::unique_ptr<Varnmain> main_;
    std::unique_ptr<ReferenceTools> tools_;
};

}  // namespace varnholt
