// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/pump.h"

namespace varnholt {

/// The terms as they are shown in English units: as stored.
coefficients CopyCoefficientsForDisplay(const coefficients& stored);

/// The terms for degrees Celsius and kilowatts, by constants that are rounded by hand and kept as
/// they stand, since printed sheets agree with them. In x = 1.8 C + 32 the exact ones would be:
/// 9.3792 for 9.382, 300.1344 for 300.075 and 0.52758 for 0.528 of a capacity, and for the others
/// 32 for 32.004, 1024 for 1021.43, 115.2 for 114.97 and 3.24 for 3.236. One of them, the cooling
/// power's over the load-side temperature, does have the exact 115.2. For display only.
coefficients ConvertCoefficientsToMetric(const coefficients& stored);

}  // namespace varnholt
