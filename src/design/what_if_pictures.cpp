// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/what_if_pictures.h"

#include <algorithm>
#include <cmath>

#include "basis/number_text.h"
#include "forms/numeric_field.h"
#include "forms/quantity.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/second_opinion.h"
#include "forms/text_numbers/surface_water.h"
#include "forms/text_numbers/what_if.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

constexpr std::size_t dotCount = 20;
constexpr std::size_t curvePlaces = 100;

/// Why a page has nothing to draw.
/// @param there  what it draws has been found
std::string emptyBecause(const WhatIfTeller& teller, const WhatIf& found, bool there) {
    const bool needs = found.needGoverning > 0;
    if (needs && there) return {};
    const std::string message = needs ? std::string() : whatIfMessage(teller, found);
    if (!message.empty()) return message;
    return teller.text(teller.working ? Text::whatIfWorking : Text::whatIfNoNeed);
}

/// A bar at least is as long as the base, so all of them are 0 until they have been found.
bool hasBars(const WhatIf& found) {
    const auto isLong = [](double length) { return length > 0; };
    return std::any_of(found.tornadoLow.begin(), found.tornadoLow.end(), isLong) ||
           std::any_of(found.tornadoHigh.begin(), found.tornadoHigh.end(), isLong);
}

std::string lengthUnitOf(const WhatIfTeller& teller) {
    return teller.text(
        UnitTexts{Text::lengthUnitsEnglish, Text::lengthUnitsMetric}.in(teller.units));
}

double shownLength(const WhatIfTeller& teller, double feet) {
    return quantities::length.shown(feet, teller.units);
}

std::string percentText(const Texts& texts, double share) {
    return filledIn(texts.text(Text::opinionPercent), {formatNumber(100 * share, "##0")});
}

/// Places of a rising curve: at each share the depth that so many cases do not exceed.
std::vector<SurePicture::Place> placesOf(const WhatIfTeller& teller,
                                         const std::vector<double>& needs, double bores,
                                         std::size_t count) {
    std::vector<SurePicture::Place> places;
    if (needs.empty() || !(bores > 0)) return places;
    for (std::size_t i = 0; i < count; ++i) {
        // In the middle of its part of the cases, as a dot stands for one part.
        const double share = (static_cast<double>(i) + 0.5) / static_cast<double>(count);
        const double need = quantileOf(needs, share);
        if (need < noLength) places.push_back({shownLength(teller, need / bores), share});
    }
    return places;
}

Polygon shownPolygon(const WhatIfTeller& teller, Polygon polygon) {
    for (Point& corner : polygon)
        corner = {shownLength(teller, corner.x), shownLength(teller, corner.y)};
    return polygon;
}

}  // namespace

TornadoPicture tornadoPicture(const WhatIfTeller& teller, const WhatIf& found) {
    TornadoPicture picture;
    picture.empty = emptyBecause(teller, found, hasBars(found));
    if (!picture.empty.empty()) return picture;
    picture.base = shownLength(teller, found.needGoverning);
    picture.unit = lengthUnitOf(teller);
    for (const std::size_t j : found.tornadoRank) {
        TornadoPicture::Bar bar;
        bar.name = teller.text(quantityTexts[j]);
        bar.low = shownLength(teller, found.tornadoLow[j]);
        bar.high = shownLength(teller, found.tornadoHigh[j]);
        if (found.share[j] > 0) bar.share = percentText(teller.texts, found.share[j]);
        bar.index = j;
        picture.bars.push_back(bar);
    }
    for (std::size_t n = 0; n < leverCount; ++n)
        picture.bars.push_back({teller.text(leverTexts[n]),
                                shownLength(teller, found.leverLow[n]),
                                shownLength(teller, found.leverHigh[n]),
                                {},
                                true,
                                n});
    return picture;
}

SurePicture surePicture(const WhatIfTeller& teller, const WhatIf& found,
                        const WhatIfInputs& inputs) {
    SurePicture picture;
    picture.empty = emptyBecause(teller, found, !found.needs.empty());
    if (!picture.empty.empty()) return picture;
    picture.curve = placesOf(teller, found.needs, found.bores, curvePlaces);
    picture.other = placesOf(teller, found.otherNeeds, found.bores, curvePlaces);
    picture.dots = placesOf(teller, found.needs, found.bores, dotCount);
    picture.drawn = shownLength(teller, found.drawnDepth);
    picture.confidence = inputs.confidence / 100;
    picture.confident = shownLength(teller, found.confidentDepth);
    const bool classical = inputs.measure == classicalMethod;
    picture.method = teller.text(classical ? Text::whatIfClassical : Text::whatIfByGFunctions);
    picture.otherMethod = teller.text(classical ? Text::whatIfByGFunctions : Text::whatIfClassical);
    picture.question = holdsQuestion(teller, found, inputs);
    picture.unit = lengthUnitOf(teller);
    return picture;
}

LandPicture landPicture(const WhatIfTeller& teller, const LandValues& values,
                        const LayoutField* chosen, const Land* searched) {
    LandPicture picture;
    const Land land = chosen != nullptr && searched != nullptr ? *searched : landOf(values);
    if (!isSimple(land.outline)) {
        picture.empty = teller.text(Text::layoutOutlineCrosses);
        return picture;
    }
    picture.outline = shownPolygon(teller, land.outline);
    for (const Polygon& area : land.noGo) picture.noGo.push_back(shownPolygon(teller, area));
    picture.boundaryClearance = shownLength(teller, land.boundaryClearance);
    picture.noGoClearance = shownLength(teller, land.noGoClearance);
    const double area = quantities::area.shown(areaOf(land.outline), teller.units);
    picture.area =
        groupedNumber(area) + ' ' +
        teller.text(UnitTexts{Text::areaUnitsEnglish, Text::areaUnitsMetric}.in(teller.units));
    if (chosen == nullptr) return picture;
    picture.field = layoutLine(teller, *chosen);
    picture.bores = shownPolygon(teller, boresOf(land, chosen->field));
    return picture;
}

FieldsPicture fieldsPicture(const WhatIfTeller& teller, const Layouts& found,
                            std::optional<std::size_t> chosen) {
    FieldsPicture picture;
    if (found.fields.empty()) {
        const std::string message = layoutMessage(teller, found);
        picture.empty = message.empty() ? teller.text(Text::whatIfNoSearch) : message;
        return picture;
    }
    for (const LayoutField& field : found.fields)
        picture.fields.push_back({static_cast<double>(field.field.bores),
                                  shownLength(teller, field.depth), field.firstCost});
    picture.chosen = chosen;
    picture.cheapest = teller.money(found.fields.front().firstCost);
    picture.dearest = teller.money(found.fields.back().firstCost);
    picture.unit = lengthUnitOf(teller);
    return picture;
}

CostPicture costPicture(const WhatIfTeller& teller, const WhatIf& found) {
    CostPicture picture;
    if (!(found.firstCost > 0)) {
        picture.empty = emptyBecause(teller, found, false);
        return picture;
    }
    for (std::size_t part = 0; part < costPartTexts.size(); ++part)
        if (found.costPart[part] > 0)
            picture.parts.push_back({captionWords(teller.text(costPartTexts[part])),
                                     teller.money(found.costPart[part]), found.costPart[part]});
    picture.total = teller.money(found.firstCost);
    return picture;
}

TowerPicture towerPicture(const WhatIfTeller& teller, const WhatIf& found, bool judgesLife) {
    TowerPicture picture;
    const TowerCurve& curve = found.tower;
    if (!curve.best) {
        picture.empty = emptyBecause(teller, found, false);
        return picture;
    }
    picture.first.assign(curve.first.begin(), curve.first.end());
    picture.tower.assign(curve.towerCost.begin(), curve.towerCost.end());
    picture.life.assign(curve.life.begin(), curve.life.end());
    picture.judgesLife = judgesLife;
    picture.best = judgesLife ? curve.best : curve.bestFirst;
    picture.heatingGoverns = curve.heatingGoverns;
    picture.currency = teller.currency;
    if (picture.best)
        picture.bestCost =
            teller.money(judgesLife ? curve.life[*picture.best] : curve.first[*picture.best]);
    return picture;
}

std::string describe(const TornadoPicture& picture, const Texts& texts) {
    if (!picture.empty.empty() || picture.bars.empty()) return picture.empty;
    std::string told =
        filledIn(texts.text(Text::whatIfTornadoTells), {groupedNumber(picture.base), picture.unit});
    for (const TornadoPicture::Bar& bar : picture.bars) {
        const auto length = [](double shown) { return shown > 0 ? groupedNumber(shown) : "-"; };
        told += ' ' + filledIn(texts.text(bar.share.empty() ? Text::whatIfBarTells
                                                            : Text::whatIfBarWithShareTells),
                               {bar.name, length(bar.low), length(bar.high), bar.share});
    }
    return told;
}

std::string describe(const SurePicture& picture, const Texts& texts) {
    if (!picture.empty.empty() || picture.curve.empty()) return picture.empty;
    const auto depth = [](double shown) { return formatNumber(std::ceil(shown), "###0"); };
    return picture.question + ' ' +
           filledIn(texts.text(Text::whatIfSureTells),
                    {depth(picture.curve.front().depth), depth(picture.curve.back().depth),
                     picture.unit, formatNumber(100 * picture.confidence, "#0"),
                     picture.confident > 0 ? depth(picture.confident) : "-"});
}

std::string describe(const LandPicture& picture, const Texts& texts) {
    if (!picture.empty.empty()) return picture.empty;
    std::string told = filledIn(texts.text(Text::whatIfLandTells),
                                {picture.area, std::to_string(picture.outline.size()),
                                 std::to_string(picture.noGo.size())});
    return picture.field.empty() ? told : told + ' ' + picture.field + '.';
}

std::string describe(const FieldsPicture& picture, const Texts& texts) {
    if (!picture.empty.empty() || picture.fields.empty()) return picture.empty;
    const auto [least, most] =
        std::minmax_element(picture.fields.begin(), picture.fields.end(),
                            [](const auto& a, const auto& b) { return a.bores < b.bores; });
    return filledIn(texts.text(Text::whatIfFieldsTell),
                    {std::to_string(picture.fields.size()), groupedNumber(least->bores),
                     groupedNumber(most->bores), picture.cheapest, picture.dearest});
}

std::string describe(const CostPicture& picture, const Texts& texts) {
    if (!picture.empty.empty()) return picture.empty;
    std::string parts;
    for (const CostPicture::Part& part : picture.parts)
        parts += (parts.empty() ? "" : ", ") + part.name + ' ' + part.cost;
    return filledIn(texts.text(Text::whatIfCostTells), {picture.total, parts});
}

std::string describe(const TowerPicture& picture, const Texts& texts) {
    if (!picture.empty.empty() || !picture.best) return picture.empty;
    std::string told = filledIn(
        texts.text(picture.judgesLife ? Text::whatIfTowerLifeTells : Text::whatIfTowerFirstTells),
        {std::to_string(*picture.best), picture.bestCost});
    if (picture.heatingGoverns)
        told += ' ' + filledIn(texts.text(Text::whatIfTowerHeating),
                               {std::to_string(*picture.heatingGoverns)});
    return told;
}

}  // namespace varnholt
