// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/page_engine.h"

namespace varnholt {

/// The engines of the browser windows of a program with windows: the web's where it is installed
/// and wanted, else the text browser.
class DesktopPages : public PageSource {
 public:
    /// @param wanted  "web" or "text"; empty for the web where it is installed
    explicit DesktopPages(std::string wanted) : wanted_(std::move(wanted)) {}
    ~DesktopPages() override;

    /// How an example opens that a page of the help offers, before the first engine.
    void openExamplesBy(std::function<void(const std::string& file)> open) {
        openExample_ = std::move(open);
    }

    std::unique_ptr<PageEngine> newEngine(PageEvents& events, const PagePlaces& places) override;
    /// Handles events until no engine is busy, for 5 seconds at most.
    void settle() override;

 private:
    class Watched;
    bool anyBusy() const;

    std::string wanted_;
    std::function<void(const std::string& file)> openExample_;
    std::vector<Watched*> engines_;
};

}  // namespace varnholt
