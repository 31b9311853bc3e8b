// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/loop_length.h"

#include <array>
#include <cstddef>

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/modCalculations/ground_load.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

/// Feet of pipe per ton against approach.
struct DesignCurve {
    std::array<double, 4> cubic;  ///< near the water's temperature
    double constant, slope;       ///< of the line further away

    double near(double a) const {
        const auto& [c0, c1, c2, c3] = cubic;
        return c0 + c1 * a + c2 * a * a + c3 * a * a * a;
    }
    double far(double a) const { return constant + slope * a; }
};

// Coil and slinky in cooling, coil and slinky in heating, for each size of pipe. The figures are
// kept as they are, though the slinky of 1 1/4 in falls 20 ft short of its line in cooling, which a
// last coefficient of -0.15625 would meet.
// clang-format off
constexpr std::array<DesignCurve, 16> designTable{{
    {{1442.824, -270.23656, 22.95499, -0.70557}, 312, -4},
    {{846.433035, -96.73363, 4.352679, -0.052083}, 252, -3.23085},
    {{970.35714, 205.05952, 21.25, 0.8333333}, 273.75, 3.75},
    {{787.02381, 166.56746, 17.380952, 0.69444}, 216.735, 2.9706},
    {{1224.5566, -215.01288, 17.54685, -0.5215}, 300, -3.84617},
    {{829.8392857, -116.57738, 7.946429, -0.20833}, 240, -3.07702},
    {{966.6667, 222.9365, 25.5952, 1.11111}, 256.64, 3.516},
    {{773.095238, 176.30952, 19.7619, 0.833333}, 205.3235, 2.8137},
    {{992.0057, -157.0728, 12.3361, -0.3643}, 288, -3.6923},
    {{715.441964, -95.55804, 6.27232, -0.16525}, 227.9987, -2.9229},
    {{939.642857, 222.04365, 25.65476, 1.11111}, 239.54, 3.2824},
    {{744.16666, 172.5595, 19.58333, 0.833333}, 193.91177, 2.65686},
    {{750.2788, -95.4344, 6.155266, -0.14576}, 276, -3.5385},
    {{589.00893, -71.324404, 4.41964, -0.1041667}, 216, -2.76936},
    {{894.40476, 213.82937, 25.17857, 1.11111}, 228.124, 3.1249},
    {{774.16666, 200.6151, 24.7024, 1.11111}, 182.323, 2.4804},
}};
// clang-format on

constexpr ByMode<double> lastOfCubic{13, -9};  // degF
constexpr double tableFlow = 3.0;              // gpm per ton

bool isNear(Mode m, double approach) {
    return m == cooling ? approach <= lastOfCubic[m] : approach >= lastOfCubic[m];
}

/// Outlet of the units at the flow of the table, degF.
double referenceOutlet(const LoopLengthTerms& terms, Mode m) {
    const double flow = terms.peakLoad[m] / mbtuPerTon * tableFlow;
    if (flow <= 0) return terms.inletTemp[m];
    const double heat = 1000 * peakGroundLoad(m, terms.peakLoad[m], terms.peakDemand[m]);
    return terms.inletTemp[m] - divide(heat, terms.fluid.heatPerGallonMinute() * flow);
}

/// Approach of the fluid's mean temperature, degF.
double meanApproach(double approach, double inlet, double outlet) {
    return approach + 0.5 * (outlet - inlet);
}

double correctedFeetPerTon(const LoopPipe& pipe, const LoopLengthTerms& terms, Mode m) {
    const double approach = terms.approachTemp[m];
    const double inlet = terms.inletTemp[m];
    const double atTableFlow = meanApproach(approach, inlet, referenceOutlet(terms, m));
    const double atDesignFlow = meanApproach(approach, inlet, terms.outletTemp[m]);
    const double feet = finite(divide(feetPerTon(pipe, m, approach) * atTableFlow, atDesignFlow));
    return feet < 0 ? 0 : feet;
}

}  // namespace

double feetPerTon(const LoopPipe& pipe, Mode mode, double approachTemp) {
    const auto row = toInteger(pipe.loopStyle + 2 * static_cast<int>(mode) + 4 * pipe.loopPipeSize);
    const DesignCurve& curve = at(designTable, row);
    return isNear(mode, approachTemp) ? curve.near(approachTemp) : curve.far(approachTemp);
}

ByMode<double> calculateLoopLength(const LoopPipe& pipe, const LoopLengthTerms& terms) {
    ByMode<double> length{};
    for (Mode m : modes)
        length[m] = finite(terms.peakLoad[m] / mbtuPerTon * correctedFeetPerTon(pipe, terms, m));
    return length;
}

ByMode<double> lengthAtTableFlow(const LoopPipe& pipe, const LoopLengthTerms& terms) {
    ByMode<double> length{};
    for (Mode m : modes)
        length[m] = terms.peakLoad[m] / mbtuPerTon * feetPerTon(pipe, m, terms.approachTemp[m]);
    return length;
}

}  // namespace varnholt::modCalculations
