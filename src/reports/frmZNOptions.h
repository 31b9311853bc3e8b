// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frame/varnmain.h"

namespace varnholt {

/// The question which report a loads window prints. Modal.
class frmZNOptions : public Form {
 public:
    explicit frmZNOptions(Varnmain& main);

    /// A report has been chosen, and stands in `LOPrintOption` of the active window.
    bool chosen() const { return chosen_; }

 private:
    void cmdOK_Click();

    Varnmain& main_;
    bool chosen_ = false;
};

}  // namespace varnholt
