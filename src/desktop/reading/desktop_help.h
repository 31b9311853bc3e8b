// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "desktop/reading/help_module.h"

class QWidget;

namespace varnholt {

/// The help of a program with windows: the engine stands in a module, which is loaded when the
/// first page is asked for.
class DesktopHelp : public HelpEngine {
 public:
    DesktopHelp();
    ~DesktopHelp() override;

    /// What it needs of the program, before the first request.
    void setPlaces(HelpPlaces places) { places_ = std::move(places); }
    /// Shows itself without taking the focus from the window at hand, as a script needs it.
    void setQuiet() { quiet_ = true; }

    bool isHelpFile(const std::string& path) const override;
    long display(const HelpRequest& request) override;
    void displayPopup(const HelpPopup& popup) override;
    void invokeWhatsThis() override;
    void close() override;
    HelpComponent helpComponent() const override;
    HelpComponent browserComponent() const override;

    /// Null before the first page, and where the module is missing.
    HelpWindow* window() const { return window_; }

 private:
    long displayPage(const HelpRequest& request) const;
    void showWindow(bool onTop) const;

    HelpPlaces places_;
    HelpWindow* window_ = nullptr;
    bool quiet_ = false;
};

}  // namespace varnholt
