// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "design/whatIf/cost.h"
#include "design/whatIf/land.h"

namespace varnholt {

struct BoreholeProject;

/// By which method the window measures.
enum WhatIfMeasure : std::int16_t { classicalMethod = 0, byGFunctions = 1 };

/// What is known of the ground; a spread that is typed makes it `knownAsTyped`.
enum GroundKnowledge : std::int16_t {
    responseTest = 0,
    drillLogOrMap = 1,
    tableValue = 2,
    knownAsTyped = 3
};

/// The quantities that are in doubt. Two fields tell how far each of them may be off.
enum DoubtfulQuantity : std::size_t {
    conductivity = 0,
    heatCapacity = 1,  ///< by volume
    groundTemperature = 2,
    boreResistance = 3,
    coolingLoads = 4,
    heatingLoads = 5,
    coolingHours = 6,
    heatingHours = 7,
    pumpPower = 8,
    method = 9,
    quantityCount = 10
};

/// Quantities that are off together: the second follows the first.
enum Tie : std::size_t { capacityTie = 0, resistanceTie = 1, heatingTie = 2, tieCount = 3 };

/// How far the quantities may be off: one case in ten lies below the low end, one above the high.
struct Spreads {
    /// Percent of the design's value; degF for the ground's temperature.
    std::array<double, quantityCount> low{20, 15, 2, 15, 15, 15, 20, 20, 5, 0};
    std::array<double, quantityCount> high{20, 15, 2, 15, 15, 15, 20, 20, 10, 0};
    std::array<double, tieCount> tie{};  ///< correlations, -0.95 to 0.95

    friend bool operator==(const Spreads&, const Spreads&) = default;
};

/// The spreads with those of the ground as some knowledge leaves them: conductivity, heat capacity,
/// ground temperature, bore resistance, and the tie of the last to the first, since a test measures
/// both at once. `knownAsTyped` changes nothing.
Spreads withKnowledge(Spreads spreads, GroundKnowledge knowledge);

/// Where the land is a rectangle there are no corners.
struct LandValues {
    double across = 300;            ///< ft
    double down = 200;              ///< ft
    Polygon corner;                 ///< typed outline, ft; empty for the rectangle
    std::vector<Polygon> noGo;      ///< ft
    double boundaryClearance = 10;  ///< from the outline to a bore, ft
    double noGoClearance = 10;      ///< ft

    friend bool operator==(const LandValues&, const LandValues&) = default;
};

/// Which fields of bores a search tries.
struct LayoutValues {
    double spacingFrom = 15;  ///< separation of bores, ft
    double spacingTo = 30;
    double spacingStep = 1;
    double leastDepth = 100;  ///< of a bore, ft
    double mostDepth = 400;
    double mostBores = 400;
    double margin = 0;            ///< on the length, percent
    std::int16_t layoutKind = 0;  ///< a LayoutKind

    friend bool operator==(const LayoutValues&, const LayoutValues&) = default;
};

/// A design that was kept to be compared: its value without loads, results and inputs like these.
struct KeptAlternative {
    std::string name;
    std::shared_ptr<const BoreholeProject> design;

    friend bool operator==(const KeptAlternative& a, const KeptAlternative& b);
};

/// What a designer enters to ask what decides the length, how sure it is and what it costs, in
/// English units. The member initialisers are the defaults.
struct WhatIfInputs {
    std::int16_t measure = byGFunctions;     ///< a WhatIfMeasure
    std::int16_t knowledge = drillLogOrMap;  ///< a GroundKnowledge
    Spreads spreads;
    double drawnDepth = 0;   ///< of a bore, ft; 0 takes the needed depth
    double confidence = 90;  ///< cases in a hundred that the field is to hold
    LandValues land;
    LayoutValues layout;
    Prices prices;
    std::string currency = "$";
    std::string pricesOf;  ///< the prices' date
    std::vector<KeptAlternative> alternatives;
    /// Lines of the file that a newer program wrote and this one does not know.
    std::vector<std::string> unknownLines;

    friend bool operator==(const WhatIfInputs&, const WhatIfInputs&) = default;
};

}  // namespace varnholt
