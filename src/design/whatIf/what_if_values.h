// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "design/whatIf/what_if_inputs.h"

namespace varnholt {

/// A number among the inputs: what scripts and files call it, and what it may be. A value outside
/// falls back to the one that is built in.
struct WhatIfNumber {
    std::string name;  ///< with its index: "spreadLow(0)"
    double* (*find)(WhatIfInputs&, std::size_t index);
    std::size_t index = 0;
    double least = 0, most = 0;

    double& in(WhatIfInputs& inputs) const { return *find(inputs, index); }
    double in(const WhatIfInputs& inputs) const;
    bool allows(double value) const { return value >= least && value <= most; }
};

/// A choice among some options, counted from 0.
struct WhatIfChoice {
    std::string name;
    std::int16_t WhatIfInputs::*direct = nullptr;
    std::int16_t LayoutValues::*ofLayout = nullptr;
    std::int16_t most = 0;

    std::int16_t& in(WhatIfInputs& inputs) const;
    std::int16_t in(const WhatIfInputs& inputs) const;
};

/// All numbers in the order of the window.
const std::vector<WhatIfNumber>& whatIfNumbers();
const std::vector<WhatIfChoice>& whatIfChoices();

/// The inputs with every number and choice that its field would refuse put back to the built-in
/// one: a file may hold anything.
WhatIfInputs withinLimits(WhatIfInputs inputs);

}  // namespace varnholt
