// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "forms/platform.h"
#include "frame/varnmain.h"
#include "reports/report_shelf.h"
#include "tools/modResource.h"

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

    Application(Platform& platform, const Setup& setup);

    Varnmain& main() { return *main_; }
    const Texts& texts() const { return language_; }
    ReportShelf& reports() { return *reports_; }
    void start() { main_->start(); }

 private:
    LanguageResource language_;
    std::unique_ptr<ReportShelf> reports_;
    std::unique_ptr<Varnmain> main_;
};

}  // namespace varnholt
