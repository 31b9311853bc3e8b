// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/3120_what_if.txt.
namespace varnholt::Text {

// What decides the length, how sure it is, what it costs: why there are no figures.
constexpr int whatIfNoLoads = 3120;
constexpr int whatIfNoConductivity = 3121;
constexpr int whatIfNoDiffusivity = 3122;
constexpr int whatIfNoBoreDiameter = 3123;
constexpr int whatIfNoRows = 3124;
constexpr int whatIfNoSeparation = 3125;
constexpr int whatIfNoPredictionTime = 3126;
constexpr int whatIfCoolingLimit = 3127;
constexpr int whatIfHeatingLimit = 3128;
constexpr int whatIfNotComputable = 3129;
constexpr int whatIfCoolingLimitAlone = 3130;
constexpr int whatIfHeatingLimitAlone = 3131;
constexpr int whatIfBoresTooClose = 3132;
constexpr int whatIfTooManyBores = 3133;
constexpr int whatIfNoDepthHolds = 3134;
constexpr int layoutNoPlace = 3140;
constexpr int layoutOutlineCrosses = 3141;
constexpr int layoutNoGoCrosses = 3142;
constexpr int layoutTooDeep = 3143;
constexpr int layoutTooManyShapes = 3144;
constexpr int layoutSpacingSwapped = 3145;
constexpr int layoutDepthSwapped = 3146;
constexpr int layoutStepDoubled = 3147;
constexpr int alternativeWithoutLength = 3150;

}  // namespace varnholt::Text
