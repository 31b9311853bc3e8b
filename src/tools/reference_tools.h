// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "forms/help_desk.h"
#include "frame/varnmain.h"
#include "tools/HTMLHelp.h"
#include "tools/page_engine.h"

namespace varnholt {

/// Reference pages, the browser window and the help, as the main window's commands.
class ReferenceTools : public HelpDesk {
 public:
    /// @param pages, help  the platform's engines
    ReferenceTools(Varnmain& main, PageSource& pages, HelpEngine& help);

    HTMLHelp& help() { return help_; }
    /// Opens a browser window at an address; an empty one opens an empty window.
    void browse(const std::string& address);

    void explain(const Form& form, const std::string& control) override;
    std::string whatsThis(const Form& form, const std::string& control) const override;

 private:
    void mnuHelp_Click();
    void openTable(const char* baseName, bool hasMetric);
    void installTables();

    Varnmain& main_;
    PageSource& pages_;
    HTMLHelp help_;
};

}  // namespace varnholt
