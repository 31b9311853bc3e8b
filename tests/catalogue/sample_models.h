// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/error_of.h"
#include "basis/temporary_folder.h"
#include "catalogue/pump.h"
#include "catalogue/pump_evaluation.h"

namespace varnholt {

/// A model whose capacity and power are the same whatever the temperatures, without load-flow
/// data and without an influence of the source flow: q0 = 6, q1 = 9 gpm.
inline pump plainModel(const std::string& name, double coolingCapacity, double heatingCapacity) {
    pump model;
    model.name = name;
    model.mfgInfo.mfgName = "Maker";
    model.seriesInfo.seriesName = "Series";
    model.coefficients.capacity[0] = {coolingCapacity, heatingCapacity};
    model.coefficients.capacityCorrection[0] = {1, 1};
    model.coefficients.watts[0] = {2.5, 2};
    model.coefficients.wattsCorrection[0] = {1, 1};
    model.coefficients.capacityFlowCorrection[0] = {1, 1};
    model.coefficients.wattsFlowCorrection[0] = {1, 1};
    model.flowCf = {{{1, 1}, {1, 1}}};
    model.ewt[3].flowRate[0].flowRate = 6;
    model.ewt[3].flowRate[1].flowRate = 9;
    return model;
}

/// A day whose peaks are these, in different blocks.
inline Gains peaks(double coolingPeak, double heatingPeak) {
    Gains gains{};
    gains[1][cooling] = coolingPeak;
    gains[3][heating] = heatingPeak;
    return gains;
}

}  // namespace varnholt
