// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "frame/child_window.h"
#include "tools/page_engine.h"

namespace varnholt {

/// A small browser: an address list, a tool bar, and the engine's page below them.
class frmBrowser : public ChildWindow, private PageEvents {
 public:
    frmBrowser(Varnmain& main, PageSource& pages);

    /// The page that the window opens with; none when it is empty.
    std::string StartingAddress;

    void load() override;
    void unloaded() override;

    PageEngine& brwWebBrowser() { return *engine_; }

 protected:
    std::vector<Notice> notices() override;

 private:
    void addControls();
    void cboAddress_Click();
    void tbToolBar_ButtonClick(int button);
    void stopLoading();
    void timTimer_Timer();
    void startTimer(bool on);
    void go(const std::string& address);
    void showTitle();

    void navigateComplete(const std::string& address) override;
    void downloadComplete() override;
    void tick() override { timTimer_Timer(); }
    void refused(PageRefusal why, const std::string& address) override;

    std::unique_ptr<PageEngine> engine_;
    std::string refusal_;
    bool browserLoading_ = false;
    bool timTimer_ = false;
};

}  // namespace varnholt
