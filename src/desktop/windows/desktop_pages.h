// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

    std::unique_ptr<PageEngine> newEngine(PageEvents& events, const PagePlaces& places) override;
    /// Handles events until no engine is busy, for 5 seconds at most.
    void settle() override;

 private:
    class Watched;
    bool anyBusy() const;

    std::string wanted_;
    std::vector<Watched*> engines_;
};

}  // namespace varnholt
