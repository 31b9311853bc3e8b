// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frame/varnmain.h"

namespace varnholt {

/// A small window that does one sum. It keeps its values in English units, converts at the fields,
/// and follows the Units menu.
class Calculator : public ChildWindow {
 public:
    void load() override;
    void unloaded() override;
    void MetricCheck_Click() override;

 protected:
    /// @param exists the frame's account of the window
    Calculator(std::string formName, bool Varnmain::*exists, int titleText, Varnmain& main);

    /// The commands at the foot of the window; `cmdClose` is the last one.
    void addClose();
    /// Captions and values in the units shown.
    virtual void showValues();

 private:
    bool Varnmain::*exists_;
};

}  // namespace varnholt
