// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "basis/mode.h"
#include "design/bore_drawing.h"
#include "design/circuit_plan.h"
#include "design/field_plan.h"
#include "design/ground_temp_curves.h"
#include "design/length_summary.h"
#include "design/loop_curves.h"
#include "design/trench_drawing.h"
#include "design/trench_plan.h"
#include "forms/texts.h"

namespace varnholt {

// What the pictures of the designs show, in the sentences that screen readers and scripts read, and
// the words that stand in the pictures themselves.

std::string describe(const BoreDrawing& bore, const Texts& texts);
std::string describe(const FieldPlan& field, const Texts& texts);
std::string describe(const TrenchDrawing& trench, const Texts& texts);
std::string describe(const TrenchPlan& plan, const Texts& texts);
std::string describe(const CircuitPlan& plan, const Texts& texts);
std::string describe(const GroundTempCurves& curves, const Texts& texts);
std::string describe(const LoopCurves& curves, const Texts& texts);
/// What stands in the place of the parts: how to come to them.
std::string wordsWithoutParts(const LengthSummary& lengths, const Texts& texts);
/// Each mode's length with its parts.
std::string describe(const LengthSummary& lengths, const Texts& texts);

/// Bores of a field with so many neighbours, in words with their number.
struct FieldClass {
    int neighbours;
    std::string words;
};
/// The classes that the field has, those with most neighbours first.
std::vector<FieldClass> fieldClasses(const FieldPlan& field, const Texts& texts);

/// Its rows and their separation, in one line.
std::string fieldMeasures(const FieldPlan& field, const Texts& texts);

/// Whether lengths are those of the inputs.
std::string stateWords(LengthSummary::State state, const Texts& texts);
/// Both lengths and that, in a sentence.
std::string stripSentence(const LengthSummary& lengths, const Texts& texts);

/// What stands below a part of a circuit's diagram; empty where there is nothing to tell.
struct CircuitCaption {
    std::string name;
    ByMode<std::string> flows;
    std::string inSoil, inWater;
};
std::vector<CircuitCaption> circuitCaptions(const CircuitPlan& plan, const Texts& texts);

/// That not all trenches are drawn.
std::string trenchesCutNote(const TrenchPlan& plan, const Texts& texts);

}  // namespace varnholt
