// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/fitting/pump_fit.h"

namespace varnholt {

/// The pump of tests/independent/curve_fit.py, with its tables filled in and no curves yet.
inline pump measuredPump() {
    constexpr double water[] = {35, 50, 70, 75, 85, 95};
    constexpr double capacity[] = {19.8, 24.9, 31.7, 30.1, 28.4, 26.2};
    constexpr double watts[] = {1.66, 1.8, 2.01, 1.71, 1.93, 2.2};
    constexpr double capacityTwo[] = {20.6, 25.8, 32.7, 31.0, 29.3, 27.1};
    constexpr double wattsTwo[] = {1.68, 1.83, 2.05, 1.62, 1.83, 2.09};
    constexpr ByMode<double> air[] = {{61, 60}, {64, 65}, {67, 70}, {70, 75}, {73, 80}};
    constexpr ByMode<double> airCapacity[] = {
        {0.903, 1.028}, {0.952, 1.014}, {1, 1}, {1.048, 0.986}, {1.1, 0.97}};
    constexpr ByMode<double> airWatts[] = {
        {0.992, 0.916}, {0.996, 0.958}, {1, 1}, {1.004, 1.042}, {1.01, 1.09}};
    constexpr double percent[] = {80, 90, 100, 110, 120};
    constexpr double flowCapacity[] = {0.95, 0.977, 1, 1.018, 1.03};
    constexpr double flowWatts[] = {0.98, 0.991, 1, 1.012, 1.02};
    pump model;
    model.name = "Measured";
    model.nominalFlow = 900;
    model.flowCf = {{{1, 1}, {1, 1}}};
    for (std::size_t i = 0; i < 6; ++i) {
        const Mode mode = i < 3 ? heating : cooling;
        ewt& row = model.ewt[i];
        row.temperature = water[i];
        row.flowRate[0] = {{}, 5};
        row.flowRate[1] = {{}, 8};
        row.flowRate[0].HeatMode[mode] = {watts[i], capacity[i]};
        row.flowRate[1].HeatMode[mode] = {wattsTwo[i], capacityTwo[i]};
    }
    for (std::size_t r = 0; r < mostFitPoints; ++r) {
        model.eat[r] = {air[r], airCapacity[r], airWatts[r]};
        model.elf[r] = {{flowCapacity[r], flowCapacity[r]},
                        {flowWatts[r], flowWatts[r]},
                        {percent[r], percent[r]}};
    }
    return model;
}

/// The same with all of its curves.
inline pump fittedPump() {
    pump model = measuredPump();
    for (const Mode mode : modes) fitRating(model, mode);
    for (const CorrectionKind kind : {byTemperature, byFlow})
        fitCorrections(model, kind, [](FitFault) {});
    return model;
}

}  // namespace varnholt
