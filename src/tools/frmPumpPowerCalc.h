// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/calculator.h"

namespace varnholt {

/// The shaft power of a circulation pump from flow, head and efficiency. Nothing goes back to a
/// design: the designer reads the result.
class frmPumpPowerCalc : public Calculator {
 public:
    explicit frmPumpPowerCalc(Varnmain& main);

 private:
    void addFields();
    void calculate();

    double head_ = 50;        // ft
    double flow_ = 100;       // gpm
    double efficiency_ = 81;  // percent
    double requiredPower_;    // hp
};

}  // namespace varnholt
