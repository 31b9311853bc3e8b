// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/short_circuit.h"

namespace varnholt::modCalculations {

double shortCircuitFactor(std::int16_t boresPerCircuit, double flowPerTon) {
    const bool slow = flowPerTon <= 2.4;
    switch (boresPerCircuit) {
        case 1:
            return slow ? 1.06 : 1.04;
        case 2:
            return slow ? 1.03 : 1.02;
        case 3:
            return slow ? 1.02 : 1.01;
        default:
            return 1.0;
    }
}

}  // namespace varnholt::modCalculations
