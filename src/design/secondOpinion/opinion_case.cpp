// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/opinion_case.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "basis/run_time_error.h"
#include "basis/units.h"

namespace varnholt::secondOpinion {
namespace {

constexpr double hoursOfLastMonth = 31 * hoursPerDay;
constexpr double mostYears = 1000;  // a design's field takes 100; a file may hold anything
constexpr double leastPulse = 1, longestPulse = 24;  // hr
constexpr std::size_t leastMonths = 12;

bool allFinite(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(), [](double x) { return std::isfinite(x); });
}

double boresOf(const ArrangementValues& arrangement) {
    const auto& [across, down] = arrangement.patternRows;
    return std::floor(across) * std::floor(down);
}

/// What the site lacks.
OpinionFailure failureOfSite(const SecondOpinionCase& theCase) {
    const BoreholeInputs& design = theCase.design;
    const ArrangementValues& field = design.arrangement;
    const auto& [across, down] = field.patternRows;
    if (!(design.soil.conductivity > 0)) return OpinionFailure::noConductivity;
    if (!(design.soil.diffusivity > 0)) return OpinionFailure::noDiffusivity;
    if (!(design.bore.boreDiameter > 0)) return OpinionFailure::noBoreDiameter;
    if (!(across >= 1 && down >= 1)) return OpinionFailure::noRows;
    if (!(field.predictionTime > 0)) return OpinionFailure::noPredictionTime;
    const double diameter = design.bore.boreDiameter / inchesPerFoot;
    if (boresOf(field) > 1 && !(field.boreSeparation > diameter))
        return OpinionFailure::boresTooClose;
    if (boresOf(field) > static_cast<double>(mostBoresOfOpinion))
        return OpinionFailure::tooManyBores;
    const bool sound =
        allFinite({design.soil.conductivity, design.soil.diffusivity, diameter,
                   field.boreSeparation, design.soil.groundTemp, design.bore.boreResistance}) &&
        field.predictionTime <= mostYears && theCase.window.buriedDepth >= 0 &&
        std::isfinite(theCase.window.buriedDepth);
    return sound ? OpinionFailure::none : OpinionFailure::notComputable;
}

FieldSite siteOf(const SecondOpinionCase& theCase) {
    const BoreholeInputs& design = theCase.design;
    const auto& [across, down] = design.arrangement.patternRows;
    FieldSite site;
    site.bores = rectangularField(static_cast<int>(across), static_cast<int>(down),
                                  design.arrangement.boreSeparation);
    site.radius = design.bore.boreDiameter / inchesPerFoot / 2;
    site.alpha = design.soil.diffusivity / hoursPerDay;
    site.buried = theCase.window.buriedDepth;
    site.lastHour =
        hoursPerYear * std::max(design.arrangement.predictionTime, opinionYears.back()) +
        hoursOfLastMonth;
    return site;
}

FieldTerms termsOf(const SecondOpinionCase& theCase, const ZonesYear& zones) {
    const BoreholeInputs& design = theCase.design;
    const double pulse = theCase.window.pulseHours;
    FieldTerms terms;
    terms.zones = zones;
    terms.groundTemp = design.soil.groundTemp;
    terms.conductivity = design.soil.conductivity;
    terms.boreResistance = design.bore.boreResistance;
    terms.pulseHours = pulse >= leastPulse && pulse <= longestPulse ? pulse : zones.pulseHours;
    terms.years = design.arrangement.predictionTime;
    terms.months = std::max(leastMonths, static_cast<std::size_t>(std::llround(12 * terms.years)));
    terms.bores = boresOf(design.arrangement);
    return terms;
}

/// The importer's year of both modes has energy in some month.
bool isEmpty(const ByMode<MonthlyLoads>& years) {
    for (const MonthlyLoads& year : years)
        for (const double energy : year.totalLoads)
            if (energy > 0) return false;
    return true;
}

std::array<double, 12> ofMode(const MonthsOfModes& months, Mode mode) {
    std::array<double, 12> values{};
    for (std::size_t m = 0; m < values.size(); ++m) values[m] = months[m][mode];
    return values;
}

YearOfMode shapeOf(const SecondOpinionCase& theCase, const ZonesYear& zones, std::int16_t shape,
                   Mode mode) {
    const SecondOpinionInputs& window = theCase.window;
    if (shape == importedYear) {
        const MonthlyLoads& year = (*theCase.imported)[mode];
        return knownYearOf(year.totalLoads, year.peakLoads);
    }
    if (shape == typedYear)
        return knownYearOf(ofMode(window.monthEnergy, mode), ofMode(window.monthTop, mode));
    return standardYearOf(mode, wantedShare(zones, mode), greatestMonthShare, window.southern);
}

OpinionYear toldYear(const YearOfMode& shape, double energy) {
    if (!shape.hasEnergy || energy == 0) return {};
    const auto greatest = std::max_element(shape.share.begin(), shape.share.end());
    return {static_cast<int>(greatest - shape.share.begin()) + 1, *greatest, shape.heldAtGreatest,
            shape.even};
}

OpinionFailure failureOfMode(const FieldTerms& terms, Mode mode) {
    if (!terms.year.hasMonths(mode)) return OpinionFailure::noLoadOfMode;
    const double difference = terms.limitDifference(mode);
    if (!std::isfinite(difference)) return OpinionFailure::notComputable;
    if (mode == cooling && !(difference < 0)) return OpinionFailure::limitNotAboveGround;
    if (mode == heating && !(difference > 0)) return OpinionFailure::limitNotBelowGround;
    return OpinionFailure::none;
}

void showZones(const PreparedCase& prepared, SecondOpinion& result) {
    const ZonesYear& zones = prepared.terms.zones;
    result.designPeak = zones.designPeak;
    result.meanLimit = zones.meanLimit;
    result.pulseHours = prepared.terms.pulseHours;
    result.monthlyLoad = prepared.terms.year.mean;
    for (Mode mode : modes) {
        const YearOfMode& shape = prepared.shape[mode];
        result.annualEnergy[mode] = shape.hasEnergy ? zones.energy[mode] : 0;
        for (std::size_t m = 0; m < shape.share.size(); ++m) {
            result.monthShare[m][mode] = shape.share[m];
            result.monthPeak[m][mode] = shape.peak[m];
        }
        result.year[mode] = toldYear(shape, zones.energy[mode]);
        result.reasonOfMode[mode].failure = failureOfMode(prepared.terms, mode);
    }
}

bool isFinite(const PreparedCase& prepared) {
    const ZonesYear& zones = prepared.terms.zones;
    bool sound = std::isfinite(zones.annualGroundLoad);
    for (const double mean : prepared.terms.year.mean) sound = sound && std::isfinite(mean);
    for (Mode mode : modes)
        sound = sound && allFinite({zones.energy[mode], zones.designPeak[mode]});
    return sound;
}

bool lacksImporter(const SecondOpinionCase& theCase) {
    const bool there = theCase.imported && !isEmpty(*theCase.imported);
    return theCase.window.shape == importedYear && !there;
}

}  // namespace

PreparedCase prepareCase(const SecondOpinionCase& theCase, SecondOpinion& result) {
    result.importerMissing = lacksImporter(theCase);
    result.shape = result.importerMissing ? std::int16_t{standardYear} : theCase.window.shape;
    const LoadsInputs& loads = theCase.design.loads;
    result.towerPercent = loads.hybridOn ? loads.hybridPercent : std::int16_t{0};
    PreparedCase prepared;
    ZonesYear zones;
    try {
        zones = rollUpZones(theCase.design);
    } catch (const RunTimeError&) {
        result.reason.failure = OpinionFailure::notComputable;
        return prepared;
    }
    result.reason.failure = zones.hasLoad ? failureOfSite(theCase) : OpinionFailure::noLoads;
    if (result.reason.holds()) return prepared;
    prepared.terms = termsOf(theCase, zones);
    for (Mode mode : modes) prepared.shape[mode] = shapeOf(theCase, zones, result.shape, mode);
    prepared.terms.year = groundYearOf(zones, prepared.shape);
    if (!isFinite(prepared)) {
        result.reason.failure = OpinionFailure::notComputable;
        return prepared;
    }
    prepared.site = siteOf(theCase);
    showZones(prepared, result);
    return prepared;
}

}  // namespace varnholt::secondOpinion
