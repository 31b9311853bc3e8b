// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "design/what_if_texts.h"

namespace varnholt {

// What the pictures of What If show, in the units shown, and the sentence that tells a screen
// reader the same. Where there is nothing to draw, `empty` says why.

/// The length between the ends of each quantity, and of what the designer chooses.
struct TornadoPicture {
    struct Bar {
        std::string name;
        double low = 0, high = 0;  ///< length; 0 where there is none
        std::string share;         ///< of the doubt: "26 %"; empty where it is not told
        bool lever = false;        ///< chosen, not in doubt
        std::size_t index = 0;     ///< of the quantity or the lever
        friend bool operator==(const Bar&, const Bar&) = default;
    };

    std::string empty;
    double base = 0;  ///< length of the middle case
    std::vector<Bar> bars;
    std::string unit;

    friend bool operator==(const TornadoPicture&, const TornadoPicture&) = default;
};

/// The share of cases held over the depth of a bore.
struct SurePicture {
    struct Place {
        double depth = 0, share = 0;
        friend bool operator==(const Place&, const Place&) = default;
    };

    std::string empty;
    std::vector<Place> curve, other;  ///< rising; `other` by the other method
    std::vector<Place> dots;          ///< one case in twenty each
    double drawn = 0;                 ///< depth
    double confidence = 0;            ///< share asked for
    double confident = 0;             ///< depth that holds it; 0 for none
    std::string method, otherMethod;
    std::string question;  ///< how many cases hold
    std::string unit;

    friend bool operator==(const SurePicture&, const SurePicture&) = default;
};

/// The land, and the chosen field on it. Lengths as shown.
struct LandPicture {
    std::string empty;
    Polygon outline;
    std::vector<Polygon> noGo;
    double boundaryClearance = 0, noGoClearance = 0;
    std::vector<Point> bores;
    std::string field;  ///< the chosen field in a line
    std::string area;   ///< with its unit

    friend bool operator==(const LandPicture&, const LandPicture&) = default;
};

/// All fields found: depth of a bore over the number of bores, coloured by cost.
struct FieldsPicture {
    struct Place {
        double bores = 0, depth = 0, cost = 0;
        friend bool operator==(const Place&, const Place&) = default;
    };

    std::string empty;
    std::vector<Place> fields;  ///< the cheapest first
    std::optional<std::size_t> chosen;
    std::string cheapest, dearest, unit;

    friend bool operator==(const FieldsPicture&, const FieldsPicture&) = default;
};

/// The parts of the first cost in one bar.
struct CostPicture {
    struct Part {
        std::string name, cost;
        double value = 0;
        friend bool operator==(const Part&, const Part&) = default;
    };

    std::string empty;
    std::vector<Part> parts;  ///< those above 0
    std::string total;

    friend bool operator==(const CostPicture&, const CostPicture&) = default;
};

/// First cost, its tower, and cost over life against the tower's percent.
struct TowerPicture {
    std::string empty;
    std::vector<double> first, tower, life;  ///< by percent; 0 where there is none
    std::optional<std::size_t> best;         ///< by what is judged
    bool judgesLife = true;
    std::optional<std::size_t> heatingGoverns;
    std::string bestCost, currency;

    friend bool operator==(const TowerPicture&, const TowerPicture&) = default;
};

TornadoPicture tornadoPicture(const WhatIfTeller& teller, const WhatIf& found);
SurePicture surePicture(const WhatIfTeller& teller, const WhatIf& found,
                        const WhatIfInputs& inputs);
/// @param chosen  of the search's fields; none for the land alone
LandPicture landPicture(const WhatIfTeller& teller, const LandValues& values,
                        const LayoutField* chosen, const Land* searched);
FieldsPicture fieldsPicture(const WhatIfTeller& teller, const Layouts& found,
                            std::optional<std::size_t> chosen);
CostPicture costPicture(const WhatIfTeller& teller, const WhatIf& found);
TowerPicture towerPicture(const WhatIfTeller& teller, const WhatIf& found, bool judgesLife);

std::string describe(const TornadoPicture& picture, const Texts& texts);
std::string describe(const SurePicture& picture, const Texts& texts);
std::string describe(const LandPicture& picture, const Texts& texts);
std::string describe(const FieldsPicture& picture, const Texts& texts);
std::string describe(const CostPicture& picture, const Texts& texts);
std::string describe(const TowerPicture& picture, const Texts& texts);

}  // namespace varnholt
