// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/what_if_values.h"

#include <fmt/core.h>

namespace varnholt {
namespace {

constexpr double anyPrice = 1e9;

template <auto part, auto member>
double* inPart(WhatIfInputs& inputs, std::size_t) {
    return &((inputs.*part).*member);
}

template <auto array>
double* inSpreads(WhatIfInputs& inputs, std::size_t index) {
    return &(inputs.spreads.*array)[index];
}

template <auto member>
double* direct(WhatIfInputs& inputs, std::size_t) {
    return &(inputs.*member);
}

template <auto member>
constexpr auto land = inPart<&WhatIfInputs::land, member>;
template <auto member>
constexpr auto layout = inPart<&WhatIfInputs::layout, member>;
template <auto member>
constexpr auto price = inPart<&WhatIfInputs::prices, member>;

void addSpreads(std::vector<WhatIfNumber>& numbers) {
    // The ground's temperature is off by degrees, all else by percent.
    constexpr double mostDegrees = 30;
    const auto most = [](std::size_t j, double percent) {
        return j == groundTemperature ? mostDegrees : percent;
    };
    for (std::size_t j = 0; j < quantityCount; ++j)
        numbers.push_back(
            {fmt::format("spreadLow({})", j), inSpreads<&Spreads::low>, j, 0, most(j, 90)});
    for (std::size_t j = 0; j < quantityCount; ++j)
        numbers.push_back(
            {fmt::format("spreadHigh({})", j), inSpreads<&Spreads::high>, j, 0, most(j, 300)});
    for (std::size_t n = 0; n < tieCount; ++n)
        numbers.push_back({fmt::format("tie({})", n), inSpreads<&Spreads::tie>, n, -0.95, 0.95});
}

std::vector<WhatIfNumber> makeNumbers() {
    std::vector<WhatIfNumber> numbers;
    addSpreads(numbers);
    // clang-format off
    const WhatIfNumber rows[] = {
        {"drawnDepth",        direct<&WhatIfInputs::drawnDepth>,         0, 0,   2000.0},
        {"confidence",        direct<&WhatIfInputs::confidence>,         0, 50,  99},
        {"landAcross",        land<&LandValues::across>,                 0, 1,   1e4},
        {"landDown",          land<&LandValues::down>,                   0, 1,   1e4},
        {"boundaryClearance", land<&LandValues::boundaryClearance>,      0, 0,   1000.0},
        {"noGoClearance",     land<&LandValues::noGoClearance>,          0, 0,   1000.0},
        {"spacingFrom",       layout<&LayoutValues::spacingFrom>,        0, 3,   100},
        {"spacingTo",         layout<&LayoutValues::spacingTo>,          0, 3,   100},
        {"spacingStep",       layout<&LayoutValues::spacingStep>,        0, 0.1, 100},
        {"leastDepth",        layout<&LayoutValues::leastDepth>,         0, 10,  2000.0},
        {"mostDepth",         layout<&LayoutValues::mostDepth>,          0, 10,  2000.0},
        {"mostBores",         layout<&LayoutValues::mostBores>,          0, 1,   2500.0},
        {"margin",            layout<&LayoutValues::margin>,             0, 0,   100},
        {"costFixed",         price<&Prices::costFixed>,                 0, 0,   anyPrice},
        {"costBore",          price<&Prices::costBore>,                  0, 0,   anyPrice},
        {"costFoot",          price<&Prices::costFoot>,                  0, 0,   anyPrice},
        {"costBand",          price<&Prices::costBand>,                  0, 0,   anyPrice},
        {"costDeep",          price<&Prices::costDeep>,                  0, 0,   anyPrice},
        {"costTrench",        price<&Prices::costTrench>,                0, 0,   anyPrice},
        {"costRun",           price<&Prices::costRun>,                   0, 0,   anyPrice},
        {"costTower",         price<&Prices::costTower>,                 0, 0,   anyPrice},
        {"costCare",          price<&Prices::costCare>,                  0, 0,   anyPrice},
        {"towerPower",        price<&Prices::towerPower>,                0, 0,   anyPrice},
        {"costGround",        price<&Prices::costGround>,                0, 0,   anyPrice},
        {"costPipe",          price<&Prices::costPipe>,                  0, 0,   anyPrice},
        {"costEnergy",        price<&Prices::costEnergy>,                0, 0,   anyPrice},
        {"escalation",        price<&Prices::escalation>,                0, 0,   100},
        {"discount",          price<&Prices::discount>,                  0, 0,   100},
        {"costYears",         price<&Prices::costYears>,                 0, 1,   100},
    };
    // clang-format on
    numbers.insert(numbers.end(), std::begin(rows), std::end(rows));
    return numbers;
}

}  // namespace

double WhatIfNumber::in(const WhatIfInputs& inputs) const {
    // The finder hands out what may be written to; here it is read alone.
    return *find(const_cast<WhatIfInputs&>(inputs), index);
}

std::int16_t& WhatIfChoice::in(WhatIfInputs& inputs) const {
    return direct ? inputs.*direct : inputs.layout.*ofLayout;
}

std::int16_t WhatIfChoice::in(const WhatIfInputs& inputs) const {
    return direct ? inputs.*direct : inputs.layout.*ofLayout;
}

const std::vector<WhatIfNumber>& whatIfNumbers() {
    static const std::vector<WhatIfNumber> numbers = makeNumbers();
    return numbers;
}

const std::vector<WhatIfChoice>& whatIfChoices() {
    static const std::vector<WhatIfChoice> choices{
        {"measure", &WhatIfInputs::measure, nullptr, byGFunctions},
        {"knowledge", &WhatIfInputs::knowledge, nullptr, knownAsTyped},
        {"layoutKind", nullptr, &LayoutValues::layoutKind, 1}};
    return choices;
}

WhatIfInputs withinLimits(WhatIfInputs inputs) {
    const WhatIfInputs builtIn;
    for (const WhatIfNumber& number : whatIfNumbers())
        if (double& value = number.in(inputs); !number.allows(value)) value = number.in(builtIn);
    for (const WhatIfChoice& choice : whatIfChoices())
        if (std::int16_t& value = choice.in(inputs); value < 0 || value > choice.most)
            value = choice.in(builtIn);
    return inputs;
}

}  // namespace varnholt
