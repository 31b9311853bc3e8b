// SPDX-License-Identifier: GPL-3.0-or-later
// The values of What If by name, in English units.
#include <algorithm>

#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "design/result_values.h"
#include "design/whatIf/what_if_values.h"

namespace varnholt {
namespace {

using Indices = Values::Indices;

/// Fields beyond those found are 0, beyond those listed an error.
template <class Get>
double ofListed(const Layouts& found, int index, Get get) {
    checkIndex(index, listedFields);
    const auto n = static_cast<std::size_t>(index);
    return n < found.fields.size() ? static_cast<double>(get(found.fields[n])) : 0;
}

}  // namespace

void frmWhatIf::registerValues() {
    registerInputs();
    registerFigures();
    registerLayouts();
    registerAlternatives();
}

void frmWhatIf::registerInputs() {
    Values& values = publicValues();
    for (const WhatIfNumber& number : whatIfNumbers())
        if (number.name.find('(') == std::string::npos)
            values.add(number.name, &number.in(inputs()));
    for (const WhatIfChoice& choice : whatIfChoices())
        values.add(choice.name, &choice.in(inputs()));
    values.addArray("spreadLow", &inputs().spreads.low);
    values.addArray("spreadHigh", &inputs().spreads.high);
    values.addArray("tie", &inputs().spreads.tie);
    values.add("currency", &inputs().currency);
    values.add("pricesOf", &inputs().pricesOf);
}

void frmWhatIf::registerFigures() {
    using W = const WhatIf&;
    using Part = bool WhatIfWanted::*;
    const auto of = [this](Part part) {
        return ResultValues<WhatIf>(publicValues(), [this, part]() -> W { return figures(part); });
    };
    ResultValues<WhatIf> base = of(nullptr), decides = of(&WhatIfWanted::decides),
                         sure = of(&WhatIfWanted::sure), cost = of(&WhatIfWanted::cost),
                         tower = of(&WhatIfWanted::tower);
    // clang-format off
    base.array("needLength", [](W w) -> auto& { return w.needLength; });
    base.number("needGoverning", [](W w) { return w.needGoverning; });
    decides.array("tornadoLow", [](W w) -> auto& { return w.tornadoLow; });
    decides.array("tornadoHigh", [](W w) -> auto& { return w.tornadoHigh; });
    decides.array("tornadoRank", [](W w) -> auto& { return w.tornadoRank; });
    decides.array("leverLow", [](W w) -> auto& { return w.leverLow; });
    decides.array("leverHigh", [](W w) -> auto& { return w.leverHigh; });
    decides.array("share", [](W w) -> auto& { return w.share; });
    decides.array("shareAlone", [](W w) -> auto& { return w.shareAlone; });
    sure.number("needP10", [](W w) { return w.needP10; });
    sure.number("needP50", [](W w) { return w.needP50; });
    sure.number("needP90", [](W w) { return w.needP90; });
    sure.number("needMean", [](W w) { return w.needMean; });
    sure.number("needError", [](W w) { return w.needError; });
    sure.array("lengthP10", [](W w) -> auto& { return w.lengthP10; });
    sure.array("lengthP50", [](W w) -> auto& { return w.lengthP50; });
    sure.array("lengthP90", [](W w) -> auto& { return w.lengthP90; });
    sure.number("holds", [](W w) { return w.holds; });
    sure.array("holdsMode", [](W w) -> auto& { return w.holdsMode; });
    sure.number("confidentDepth", [](W w) { return w.confidentDepth; });
    sure.number("testSaves", [](W w) { return w.testSaves; });
    sure.array("enteringP10", [](W w) -> auto& { return w.enteringP10; });
    sure.array("enteringP50", [](W w) -> auto& { return w.enteringP50; });
    sure.array("enteringP90", [](W w) -> auto& { return w.enteringP90; });
    sure.number("sampleCount", [](W w) { return w.sampleCount; });
    sure.number("failedSamples", [](W w) { return w.failedSamples; });
    cost.array("costPart", [](W w) -> auto& { return w.costPart; });
    cost.number("firstCost", [](W w) { return w.firstCost; });
    cost.number("yearlyEnergy", [](W w) { return w.yearlyEnergy; });
    cost.number("yearlyCost", [](W w) { return w.yearlyCost; });
    cost.number("lifeCost", [](W w) { return w.lifeCost; });
    tower.array("towerLength", [](W w) -> auto& { return w.tower.length; });
    tower.array("towerFirst", [](W w) -> auto& { return w.tower.first; });
    tower.array("towerLife", [](W w) -> auto& { return w.tower.life; });
    tower.number("towerBest", [](W w) { return w.tower.best.value_or(0); });
    tower.number("towerBestFirst", [](W w) { return w.tower.bestFirst.value_or(0); });
    // clang-format on
}

void frmWhatIf::registerLayouts() {
    Values& values = publicValues();
    values.add("landArea", 0, [this](const Indices&) {
        const Land land = landOf(withinLimits(inputs()).land);
        return isSimple(land.outline) ? areaOf(land.outline) : 0;
    });
    values.add("noGoCount", 0,
               [this](const Indices&) { return static_cast<double>(inputs().land.noGo.size()); });
    values.add("layoutCount", 0, [this](const Indices&) {
        return static_cast<double>(std::min(layouts().fields.size(), listedFields));
    });
    const auto listed = [&](const char* name, auto get) {
        values.add(name, 1,
                   [this, get](const Indices& i) { return ofListed(layouts(), i[0], get); });
    };
    using F = const LayoutField&;
    listed("layoutRows", [](F f) { return f.field.rows; });
    listed("layoutColumns", [](F f) { return f.field.columns; });
    listed("layoutBores", [](F f) { return f.field.bores; });
    listed("layoutSpacing", [](F f) { return f.field.separation; });
    listed("layoutDepth", [](F f) { return f.depth; });
    listed("layoutLength", [](F f) { return f.length; });
    listed("layoutCost", [](F f) { return f.firstCost; });
    listed("layoutOther", [](F f) { return f.otherDepth; });
}

void frmWhatIf::registerAlternatives() {
    Values& values = publicValues();
    const auto all = [this]() -> const std::vector<AlternativeFigures>& {
        return figures(&WhatIfWanted::alternatives).alternatives;
    };
    values.add("altCount", 0, [all](const Indices&) { return static_cast<double>(all().size()); });
    values.add("altName", 1, [all](const Indices& i) { return publicElement(all(), i[0]).name; });
    const auto figure = [&](const char* name, auto get) {
        values.add(name, 1, [all, get](const Indices& i) {
            return static_cast<double>(get(publicElement(all(), i[0])));
        });
    };
    using A = const AlternativeFigures&;
    figure("altKind", [](A a) { return static_cast<int>(a.kind); });
    figure("altLength", [](A a) { return a.length; });
    figure("altBores", [](A a) { return a.bores; });
    figure("altDepth", [](A a) { return a.depth; });
    figure("altFirst", [](A a) { return a.first; });
    figure("altLife", [](A a) { return a.life; });
    figure("altEnergy", [](A a) { return a.energy; });
}

}  // namespace varnholt
