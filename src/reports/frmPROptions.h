// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "frame/varnmain.h"

namespace varnholt {

/// The question which form of its report a design prints. Modal.
class frmPROptions : public Form {
 public:
    explicit frmPROptions(Varnmain& main);

    /// The option that was confirmed, 0 detailed or 1 concise; none after a cancel.
    std::optional<int> chosen() const { return chosen_; }

 private:
    std::optional<int> chosen_;
};

}  // namespace varnholt
