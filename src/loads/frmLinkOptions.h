// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/form.h"

namespace varnholt {

class Varnmain;

/// The question which of the two loads windows a design is to be linked with. Modal.
class frmLinkOptions : public Form {
 public:
    /// What Cancel leaves in `LinkOption`.
    static constexpr int cancelled = 100;

    explicit frmLinkOptions(Varnmain& main);

    /// Closing the window by its box is a Cancel.
    bool queryClose() override;

 private:
    void cmdSelect_Click();
    void cmdCancel_Click();

    Varnmain& main_;
};

}  // namespace varnholt
