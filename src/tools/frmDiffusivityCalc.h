// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/calculator.h"
#include "tools/soil_diffusivity.h"

namespace varnholt {

/// The diffusivity of a soil from its dry substance and its moisture. Nothing goes back to a
/// design: the designer reads the result.
class frmDiffusivityCalc : public Calculator {
 public:
    explicit frmDiffusivityCalc(Varnmain& main);

    void windowsChanged() override;

 protected:
    void showValues() override;

 private:
    void addFields();
    void calculate();

    DampSoil soil_;
    double diffusivity_ = 0;
};

}  // namespace varnholt
