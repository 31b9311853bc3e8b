// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/reason.h"
#include "forms/text_numbers/what_if.h"

namespace varnholt {

Reason reasonAgainst(const BoreholeInputs& design, const RolledZones& zones) {
    const ArrangementValues& field = design.arrangement;
    if (!hasLoad(zones.loads())) return {Text::whatIfNoLoads, {}};
    if (!(design.soil.conductivity > 0)) return {Text::whatIfNoConductivity, {}};
    if (!(design.soil.diffusivity > 0)) return {Text::whatIfNoDiffusivity, {}};
    if (!(design.bore.boreDiameter > 0)) return {Text::whatIfNoBoreDiameter, {}};
    if (!(field.patternRows[0] > 0) || !(field.patternRows[1] > 0)) return {Text::whatIfNoRows, {}};
    if (!(field.boreSeparation > 0)) return {Text::whatIfNoSeparation, {}};
    if (!(field.predictionTime > 0)) return {Text::whatIfNoPredictionTime, {}};
    return {};
}

Reason limitReason(const BoreholeInputs& design, const CaseLoads& loads, Mode mode) {
    if (loads.peakLoad[mode] == 0) return {};
    const double ground = design.soil.groundTemp;
    const double fluid = (design.loads.inletTemp[mode] + loads.outletTemp[mode]) / 2;
    const bool rightSide = mode == cooling ? fluid > ground : fluid < ground;
    if (rightSide) return {};
    return {mode == cooling ? Text::whatIfCoolingLimit : Text::whatIfHeatingLimit,
            {{FigureKind::fahrenheit, fluid}, {FigureKind::fahrenheit, ground}}};
}

Reason reasonOf(const OpinionReason& opinion) {
    switch (opinion.failure) {
        case OpinionFailure::none:
        case OpinionFailure::noLoadOfMode:
            return {};
        case OpinionFailure::noLoads:
            return {Text::whatIfNoLoads, {}};
        case OpinionFailure::noConductivity:
            return {Text::whatIfNoConductivity, {}};
        case OpinionFailure::noDiffusivity:
            return {Text::whatIfNoDiffusivity, {}};
        case OpinionFailure::noBoreDiameter:
            return {Text::whatIfNoBoreDiameter, {}};
        case OpinionFailure::noRows:
            return {Text::whatIfNoRows, {}};
        case OpinionFailure::noPredictionTime:
            return {Text::whatIfNoPredictionTime, {}};
        case OpinionFailure::boresTooClose:
            return {Text::whatIfBoresTooClose, {}};
        case OpinionFailure::tooManyBores:
            return {Text::whatIfTooManyBores,
                    {{FigureKind::count, static_cast<double>(mostBoresOfOpinion)}}};
        case OpinionFailure::limitNotAboveGround:
            return {Text::whatIfCoolingLimitAlone, {}};
        case OpinionFailure::limitNotBelowGround:
            return {Text::whatIfHeatingLimitAlone, {}};
        case OpinionFailure::noDepthHoldsLimit:
            return {Text::whatIfNoDepthHolds,
                    {{FigureKind::feet, greatestOpinionDepth},
                     {FigureKind::fahrenheit, opinion.waterAtGreatest}}};
        default:
            return {Text::whatIfNotComputable, {}};
    }
}

}  // namespace varnholt
