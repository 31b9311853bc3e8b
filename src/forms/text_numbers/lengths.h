// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/2551_lengths.txt.
namespace varnholt::Text {

// What a design comes to: the strip at the foot of its window, the page of its results.
constexpr int lengthsFresh = 2551;
constexpr int lengthsStale = 2552;
constexpr int lengthsNone = 2553;
constexpr int lengthStrip = 2554;
constexpr int coolingGovernsBores = 2555;
constexpr int heatingGovernsBores = 2556;
constexpr int coolingGovernsTrenches = 2557;
constexpr int heatingGovernsTrenches = 2558;
constexpr int coolingGovernsLoops = 2559;
constexpr int heatingGovernsLoops = 2560;
constexpr int heatingWouldNeed = 2561;
constexpr int coolingWouldNeed = 2562;
constexpr int governsAlone = 2563;
constexpr int noLengthFound = 2564;
constexpr int manyBores = 2565;
constexpr int oneBore = 2566;
constexpr int manyTrenches = 2567;
constexpr int oneTrench = 2568;
constexpr int manyLoops = 2569;
constexpr int oneLoop = 2570;
constexpr int aBore = 2571;
constexpr int aTrench = 2572;
constexpr int ofPipe = 2573;
constexpr int lengthsKept = 2574;
constexpr int lengthParts = 2575;
constexpr int longTermPart = 2576;
constexpr int monthlyPart = 2577;
constexpr int shortTermPart = 2578;
constexpr int boreResistancePart = 2579;
constexpr int pipeResistancePart = 2580;
constexpr int penaltyPart = 2581;
constexpr int tableFlowPartEnglish = 2582;
constexpr int tableFlowPartMetric = 2583;
constexpr int designFlowPart = 2584;
constexpr int lengthPartsEmpty = 2585;
constexpr int lengthPartsOfMode = 2586;
constexpr int lengthPart = 2587;
constexpr int smallField = 2588;
constexpr int smallFieldWords = 2589;
constexpr int lengthPartsNotKept = 2590;

}  // namespace varnholt::Text
