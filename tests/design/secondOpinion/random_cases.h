// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <iterator>
#include <random>
#include <vector>

#include "design/secondOpinion/opinion_cases.h"

namespace varnholt {

/// Draws designs and the second opinion's inputs, one in four with something that no field takes.
class RandomCases {
 public:
    explicit RandomCases(unsigned seed) : random_(seed) {}

    SecondOpinionCase next(int mostAcross, int mostDown) {
        SecondOpinionCase theCase = sampleCase();
        BoreholeInputs& design = theCase.design;
        std::vector<Zone> zones;
        for (int i = whole(1, 3); i > 0; --i) zones.push_back(zone());
        design.loads.zones = zones;
        design.loads.inletTemp = {among(70, 110), among(20, 60)};
        design.loads.flowRate = rarely() ? 0 : among(0.5, 6);
        design.loads.hybridPercent = static_cast<std::int16_t>(rarely() ? whole(1, 100) : 0);
        design.loads.hybridOn = design.loads.hybridPercent != 0;
        design.soil = {among(40, 75), spread(0.1, 5), spread(0.001, 1000)};
        design.bore.boreDiameter = among(2, 24);
        design.bore.boreResistance = among(0, 0.6);
        design.arrangement.patternRows = {double(whole(1, mostAcross)), double(whole(1, mostDown))};
        design.arrangement.boreSeparation = rarely() ? among(0, 3) : among(3, 100);
        design.arrangement.boresPerCircuit = static_cast<std::int16_t>(whole(0, 3));
        design.arrangement.predictionTime = rarely() ? among(0, 1) : among(1, 100);
        window(theCase.window);
        if (often()) breakOne(theCase);
        return theCase;
    }

    // Draws.

    double among(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    double spread(double low, double high) {
        return std::exp(among(std::log(low), std::log(high)));
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool rarely() { return whole(1, 10) == 1; }
    bool often() { return whole(1, 4) == 1; }
    /// What no field would take, as a file may hold it.
    double wrong() {
        const double values[]{0, -1, 1e-300, 1e300, 1e-9, 1e9, HUGE_VAL, std::nan("")};
        return values[whole(0, std::size(values) - 1)];
    }

 private:
    Zone zone() {
        Zone zone;
        const double size = spread(1, 2000);
        for (auto& gain : zone.gains)
            gain = {rarely() ? 0 : among(0, size), rarely() ? 0 : among(0, size)};
        zone.hours = {static_cast<std::int16_t>(whole(0, 8760)),
                      static_cast<std::int16_t>(whole(0, 8760))};
        zone.days = whole(0, 7);
        zone.pump.capacity = {among(0.5, 1.5) * size, among(0.5, 1.5) * size};
        zone.pump.watts = {among(0, 0.12) * size, among(0, 0.12) * size};
        return zone;
    }

    void window(SecondOpinionInputs& inputs) {
        inputs.buriedDepth = rarely() ? 0 : among(0, 100);
        inputs.pulseHours = often() ? among(1, 24) : 0;
        inputs.shape = static_cast<std::int16_t>(whole(0, 2));
        inputs.southern = often();
        inputs.cylinder = often();
        for (auto& month : inputs.monthEnergy)
            month = {often() ? 0 : among(0, 10), often() ? 0 : among(0, 10)};
        for (auto& month : inputs.monthTop)
            month = {often() ? 0 : among(0, 10), often() ? 0 : among(0, 10)};
        inputs.depthChoice = static_cast<std::int16_t>(whole(0, 2));
        inputs.typedDepth = rarely() ? among(0, 10) : among(10, 2000);
    }

    void breakOne(SecondOpinionCase& theCase) {
        BoreholeInputs& design = theCase.design;
        double* const places[]{&design.soil.groundTemp,
                               &design.soil.conductivity,
                               &design.soil.diffusivity,
                               &design.bore.boreDiameter,
                               &design.bore.boreResistance,
                               &design.arrangement.patternRows[0],
                               &design.arrangement.boreSeparation,
                               &design.arrangement.predictionTime,
                               &design.loads.inletTemp[cooling],
                               &design.loads.flowRate,
                               &design.loads.fluid.density,
                               &theCase.window.buriedDepth,
                               &theCase.window.pulseHours,
                               &theCase.window.typedDepth,
                               &theCase.window.monthEnergy[3][cooling],
                               &theCase.window.monthTop[3][heating]};
        *places[whole(0, std::size(places) - 1)] = wrong();
    }

    std::mt19937 random_;
};

}  // namespace varnholt
