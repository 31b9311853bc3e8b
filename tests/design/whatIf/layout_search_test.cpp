// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/layout_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "design/whatIf/field_method.h"
#include "design/whatIf/layout_run.h"
#include "design/whatIf/office.h"
#include "design/whatIf/tower_curve.h"
#include "forms/text_numbers/what_if.h"

namespace varnholt {
namespace {

LayoutCase officeLayoutCase() {
    LayoutCase theCase;
    theCase.design = officeInputs();
    return theCase;
}

Layouts found(const LayoutCase& theCase, const NeedByGFunctions& byGFunctions = {}) {
    LayoutSearch search(theCase, byGFunctions);
    while (!search.step()) {
    }
    return search.result();
}

double cheapest(const LayoutCase& theCase) {
    const Layouts layouts = found(theCase);
    return layouts.fields.empty() ? noLength : layouts.fields.front().firstCost;
}

TEST(LayoutSearch, NeedsWhatADesignWithThatFieldNeeds) {
    const Layouts layouts = found(officeLayoutCase());
    ASSERT_GT(layouts.fields.size(), 100u);
    EXPECT_EQ(layouts.landArea, 60'000);
    for (std::size_t i = 0; i < layouts.fields.size(); i += 7) {
        const LayoutField& each = layouts.fields[i];
        BoreholeInputs design = officeInputs();
        design.arrangement.patternRows = {static_cast<double>(each.field.rows),
                                          static_cast<double>(each.field.columns)};
        design.arrangement.boreSeparation = each.field.separation;
        const double need = classicalFigures(RolledZones(design.loads.zones), design, {}, 0).need();
        const double depth = std::max(100.0, need / static_cast<double>(each.field.bores));
        EXPECT_NEAR(each.depth, depth, 1e-9);
        EXPECT_NEAR(each.length, depth * static_cast<double>(each.field.bores), 1e-6);
        EXPECT_NEAR(each.firstCost,
                    designCost(design, RolledZones(design.loads.zones), depth, {}).firstCost, 1e-6);
        EXPECT_LE(each.depth, 400 + 1e-6);
    }
}

TEST(LayoutSearch, ListsTheCheapestFirst) {
    const Layouts layouts = found(officeLayoutCase());
    for (std::size_t i = 1; i < layouts.fields.size(); ++i)
        EXPECT_LE(layouts.fields[i - 1].firstCost, layouts.fields[i].firstCost);
    // Without a price of the trench equal fields of several separations cost the same when they are
    // held at the least depth: the narrower comes first.
    LayoutCase same = officeLayoutCase();
    same.prices.costTrench = 0;
    same.layout.leastDepth = same.layout.mostDepth = 400;
    const Layouts equal = found(same);
    ASSERT_GT(equal.fields.size(), 3u);
    for (std::size_t i = 1; i < equal.fields.size(); ++i) {
        const LayoutField &a = equal.fields[i - 1], &b = equal.fields[i];
        if (a.firstCost == b.firstCost) {
            EXPECT_LE(a.field.separation, b.field.separation);
        }
    }
}

TEST(LayoutSearch, HoldsMarginAndLeastDepth) {
    LayoutCase theCase = officeLayoutCase();
    const Layouts plain = found(theCase);
    theCase.layout.margin = 10;
    const Layouts wide = found(theCase);
    for (const LayoutField& each : wide.fields) {
        const auto same = std::find_if(plain.fields.begin(), plain.fields.end(),
                                       [&](const auto& f) { return f.field == each.field; });
        ASSERT_NE(same, plain.fields.end());
        if (same->depth > 100) {
            EXPECT_NEAR(each.depth, 1.1 * same->depth, 1e-9);
        }
    }
    EXPECT_LT(wide.fields.size(), plain.fields.size());
}

TEST(LayoutSearch, FindsTheSameCostsOnATurnedAndAMirroredPlot) {
    LayoutCase theCase = officeLayoutCase();
    // Corners at multiples of a quarter of the separation, so that the lattices meet them alike.
    const Polygon plot{{0, 0}, {300, 0}, {300, 100}, {180, 100}, {180, 220}, {0, 220}};
    theCase.layout.spacingFrom = theCase.layout.spacingTo = 20;
    for (const LayoutKind kind : {wholeRectangles, rowsCutToLand}) {
        theCase.layout.layoutKind = kind;
        theCase.land.corner = plot;
        const double cost = cheapest(theCase);
        for (Point& corner : theCase.land.corner) corner = {-corner.x, corner.y};
        EXPECT_NEAR(cheapest(theCase), cost, 1e-6);
        for (Point& corner : theCase.land.corner) corner = {corner.y, corner.x};
        EXPECT_NEAR(cheapest(theCase), cost, 1e-6);
    }
}

TEST(LayoutSearch, NeverAsksMoreForMoreLand) {
    double before = noLength;
    for (double across = 60; across <= 300; across += 20) {
        LayoutCase theCase = officeLayoutCase();
        theCase.land.across = across;
        const double cost = cheapest(theCase);
        EXPECT_LE(cost, before);
        before = cost;
    }
    EXPECT_LT(before, 130'000);
}

TEST(LayoutSearch, SaysWhyThereIsNoField) {
    LayoutCase theCase = officeLayoutCase();
    theCase.land.across = 15;
    EXPECT_EQ(found(theCase).reason, (Reason{Text::layoutNoPlace, {{FigureKind::feet, 10}}}));
    theCase = officeLayoutCase();
    theCase.layout.mostBores = 12;
    theCase.layout.spacingTo = 15;
    const Reason deep = found(theCase).reason;
    EXPECT_EQ(deep.text, Text::layoutTooDeep);
    ASSERT_EQ(deep.figures.size(), 5u);
    EXPECT_EQ(deep.figures[0].value * deep.figures[1].value, 12);
    EXPECT_EQ(deep.figures[2], (Figure{FigureKind::feet, 15}));
    EXPECT_GT(deep.figures[3].value, 400);
    EXPECT_EQ(deep.figures[4], (Figure{FigureKind::feet, 400}));
    theCase = officeLayoutCase();
    theCase.land.corner = {{0, 0}, {100, 100}, {100, 0}, {0, 100}};
    EXPECT_EQ(found(theCase).reason.text, Text::layoutOutlineCrosses);
    theCase.land.corner.clear();
    theCase.land.noGo = {rectangleOf(5, 5), {{0, 0}, {9, 9}, {9, 0}, {0, 9}}};
    EXPECT_EQ(found(theCase).reason, (Reason{Text::layoutNoGoCrosses, {{FigureKind::count, 2}}}));
    theCase = officeLayoutCase();
    theCase.design.loads.inletTemp[cooling] = 40;
    EXPECT_EQ(found(theCase).reason.text, Text::whatIfCoolingLimit);
    theCase = officeLayoutCase();
    theCase.design.loads.zones = SharedZones();
    EXPECT_EQ(found(theCase).reason.text, Text::whatIfNoLoads);
}

TEST(LayoutSearch, TurnsLimitsRoundThatStandTheWrongWay) {
    LayoutCase theCase = officeLayoutCase();
    const Layouts plain = found(theCase);
    std::swap(theCase.layout.spacingFrom, theCase.layout.spacingTo);
    std::swap(theCase.layout.leastDepth, theCase.layout.mostDepth);
    const Layouts turned = found(theCase);
    EXPECT_EQ(turned.fields, plain.fields);
    ASSERT_EQ(turned.notes.size(), 2u);
    EXPECT_EQ(turned.notes[0].text, Text::layoutSpacingSwapped);
    EXPECT_EQ(turned.notes[1].text, Text::layoutDepthSwapped);
}

TEST(LayoutSearch, IgnoresTheFieldOfTheDesign) {
    LayoutCase theCase = officeLayoutCase();
    const Layouts plain = found(theCase);
    theCase.design.arrangement.patternRows = {0, 0};
    theCase.design.arrangement.boreSeparation = 0;
    EXPECT_EQ(found(theCase), plain);
}

/// A stand-in that asks for more the denser and the larger a field is.
std::optional<double> denserIsLonger(const LatticeField& field, double classical) {
    const auto bores = static_cast<double>(field.bores);
    return classical * (1 + 0.08 * std::log(bores) * 20 / field.separation);
}

TEST(LayoutSearch, FindsByEstimatesWhatComputingEveryFieldFinds) {
    for (const double across : {180.0, 260.0}) {
        LayoutCase theCase = officeLayoutCase();
        theCase.land.across = across;
        const BoreholeInputs design = officeInputs();
        FieldNeeds classical(RolledZones(design.loads.zones), design);
        int computed = 0;
        theCase.measure = byGFunctions;
        const auto standIn = [&](const std::vector<Point>& bores, const LatticeField& field,
                                 double) {
            EXPECT_EQ(bores.size(), field.bores);
            ++computed;
            return denserIsLonger(field, classical.need(field));
        };
        const Layouts layouts = found(theCase, standIn);
        EXPECT_LE(computed, 66);
        // All of them: as if the stand-in were the classical method.
        FieldFinder finder(landOf(theCase.land), theCase.layout);
        while (!finder.step()) {
        }
        double best = noLength;
        for (const LatticeField& field : finder.fields()) {
            const auto bores = static_cast<double>(field.bores);
            const double need = *denserIsLonger(field, classical.need(field));
            const double depth = std::max(100.0, need / bores);
            if (depth <= 400)
                best = std::min(best, sumOf(costParts({bores, depth, field.separation, 0}, {})));
        }
        ASSERT_FALSE(layouts.fields.empty());
        EXPECT_NEAR(layouts.fields.front().firstCost, best, 1e-6);
        EXPECT_GT(finder.fields().size(), 300u);
        // The other method's depth stands beside it.
        EXPECT_GT(layouts.fields.front().otherDepth, 0);
        EXPECT_LT(layouts.fields.front().otherDepth, layouts.fields.front().depth);
    }
}

TEST(LayoutSearch, ComputesTheLeastDeepWhereNoEstimateIsShallowEnough) {
    LayoutCase theCase = officeLayoutCase();
    theCase.measure = byGFunctions;
    theCase.layout.mostDepth = 101;
    theCase.land.across = 120;
    theCase.land.down = 80;
    const BoreholeInputs design = officeInputs();
    FieldNeeds classical(RolledZones(design.loads.zones), design);
    const Layouts layouts =
        found(theCase, [&](const std::vector<Point>&, const LatticeField& field, double) {
            return std::optional(classical.need(field));
        });
    EXPECT_EQ(layouts.reason.text, Text::layoutTooDeep);
    // The shallowest has most bores: 7 by 5 at 15 ft, of the 100 by 60 ft within the clearances.
    EXPECT_EQ(layouts.reason.figures[0].value, 7);
    EXPECT_EQ(layouts.reason.figures[1].value, 5);
}

Layouts searched(const WhatIfCase& theCase) {
    LayoutSearch search = layoutSearchOf(theCase);
    while (!search.step()) {
    }
    return search.result();
}

TEST(LayoutSearch, ByGFunctionsComesWithinTenFieldsOfTheBestOfAll) {
    // A small plot, of which every field is sized: the search computes some of them.
    WhatIfCase theCase;
    theCase.design = officeInputs();
    theCase.inputs.land.across = 160;
    theCase.inputs.land.down = 110;
    theCase.inputs.layout.spacingTo = 25;
    theCase.inputs.layout.spacingStep = 5;
    theCase.inputs.layout.mostBores = 60;
    theCase.inputs.layout.mostDepth = 500;
    const Layouts layouts = searched(theCase);
    FieldSizer sizer({}, theCase.design);
    FieldFinder finder(landOf(theCase.inputs.land), theCase.inputs.layout);
    while (!finder.step()) {
    }
    std::vector<double> costs;
    for (const LatticeField& field : finder.fields()) {
        std::vector<secondOpinion::BorePosition> bores;
        for (const Point& bore : boresOf(landOf(theCase.inputs.land), field))
            bores.push_back({bore.x, bore.y});
        std::optional<double> need;
        while (!need) need = sizer.need(bores, field.separation, 300);
        const auto count = static_cast<double>(field.bores);
        const double depth = std::max(100.0, *need / count);
        if (depth <= 400)
            costs.push_back(sumOf(costParts({count, depth, field.separation, 0}, {})));
    }
    std::sort(costs.begin(), costs.end());
    ASSERT_GT(costs.size(), 20u);
    ASSERT_FALSE(layouts.fields.empty());
    EXPECT_LE(layouts.fields.front().firstCost, costs[9]);
    EXPECT_NEAR(layouts.fields.front().firstCost, costs[0], 0.005 * costs[0]);
}

TEST(LayoutSearch, TellsTheShallowestFieldByBothMethodsHoweverDeepItWouldBe) {
    // 16 by 16 ft within the clearances: four bores 15 or 16 ft apart for a building of three times
    // the office's loads, whose 30 bores need 8,297 ft by one method, 9,762 ft by the other. Less
    // heat stays between four bores, but never so much less that 2,000 ft a bore were enough.
    WhatIfCase theCase;
    theCase.design = officeInputs();
    Zone& zone = theCase.design.loads.zones.edit(0);
    for (Mode m : modes) {
        for (auto& gain : zone.gains) gain[m] *= 3;
        zone.pump.capacity[m] *= 3;
        zone.pump.watts[m] *= 3;
    }
    theCase.inputs.land.across = theCase.inputs.land.down = 36;
    for (const WhatIfMeasure measure : {classicalMethod, byGFunctions}) {
        theCase.inputs.measure = measure;
        const Layouts layouts = searched(theCase);
        EXPECT_TRUE(layouts.fields.empty());
        ASSERT_EQ(layouts.reason.text, Text::layoutTooDeep) << measure;
        EXPECT_EQ(layouts.reason.figures[0].value, 2);
        EXPECT_EQ(layouts.reason.figures[1].value, 2);
        EXPECT_EQ(layouts.reason.figures[2].value, 16);
        EXPECT_GT(layouts.reason.figures[3].value, 2'000);
        EXPECT_LT(layouts.reason.figures[3].value, 3 * 9'762 / 4.0);
        EXPECT_EQ(layouts.reason.figures[4].value, 400);
    }
}

TEST(LayoutSearch, ByTheClassicalMethodTellsTheOthersDepthOfTheListedFields) {
    WhatIfCase theCase;
    theCase.design = officeInputs();
    theCase.inputs.measure = classicalMethod;
    theCase.inputs.land.across = 160;
    theCase.inputs.layout.spacingStep = 5;
    const Layouts layouts = searched(theCase);
    ASSERT_GT(layouts.fields.size(), listedFields);
    for (std::size_t i = 0; i < layouts.fields.size(); ++i)
        EXPECT_EQ(layouts.fields[i].otherDepth > 0, i < listedFields);
    // Rings flatter the field: by g-functions it has to be deeper.
    EXPECT_GT(layouts.fields.front().otherDepth, layouts.fields.front().depth);
}

}  // namespace
}  // namespace varnholt
