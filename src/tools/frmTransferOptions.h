// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/form.h"

namespace varnholt {

class Varnmain;

/// The question which mode a transfer serves whose source holds one mode only. Modal.
class frmTransferOptions : public Form {
 public:
    explicit frmTransferOptions(Varnmain& main);

    /// `cmdSelect` has closed it, and `TransferOption` holds the mode.
    bool isSelected() const { return selected_; }

 private:
    void cmdSelect_Click();

    Varnmain& main_;
    bool selected_ = false;
};

}  // namespace varnholt
