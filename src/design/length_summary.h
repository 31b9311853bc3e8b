// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "basis/mode.h"
#include "design/modCalculations/length_shares.h"

namespace varnholt {

class GroundDesign;

/// A part of both modes' lengths.
struct LengthSegment {
    std::string name;
    ByMode<double> feet{};         ///< negative where it makes the length shorter
    ByMode<std::string> length{};  ///< the same in the active units, with the unit's word

    friend bool operator==(const LengthSegment&, const LengthSegment&) = default;
};

/// What a design comes to: how long the loop must be in each mode, which mode governs, and where
/// the lengths come from. Texts are in the active units.
struct LengthSummary {
    /// Stale where the inputs have changed since. Kept where the lengths come from a file, which
    /// holds neither their parts nor whether they were found with its own inputs.
    enum class State { none, fresh, stale, kept };

    State state = State::none;
    Mode governing = heating;
    ByMode<double> feet{};         ///< in all
    ByMode<std::string> length{};  ///< the same with the unit's word
    ByMode<std::string> each{};    ///< of one bore or trench; of loops, which differ, all of them
    std::string eachWord;          ///< "a bore"
    std::string sentence;          ///< what governs; empty before a run
    std::vector<LengthSegment> parts;  ///< none before a run of this session

    bool found() const { return state != State::none; }
    /// Whether a mode has a length: a run may find none for either.
    bool hasLength() const { return feet[cooling] > 0 || feet[heating] > 0; }
    friend bool operator==(const LengthSummary&, const LengthSummary&) = default;
};

/// The texts in which a kind of loop is spoken of.
struct LoopWords {
    ByMode<int> governs;  ///< "Cooling governs: %1 a bore, %2"
    int many, one;        ///< "%1 bores", "1 bore"
    int each;             ///< "a bore"
};

/// What a kind's run has found, ft.
struct FoundLengths {
    ByMode<double> total{}, each{};
    ByMode<double> number{};  ///< of bores, trenches or loops
    Mode governing = heating;
    LengthSummary::State state = LengthSummary::State::none;
};

/// The summary without its parts.
LengthSummary summaryOf(const GroundDesign& design, const FoundLengths& found,
                        const LoopWords& words);

/// The summary with the parts of its lengths: none tell that the lengths come from a file, as every
/// run that finds a length leaves parts.
LengthSummary withParts(LengthSummary summary, std::vector<LengthSegment> parts);

/// A part by the text of its name, ft.
LengthSegment partOf(const GroundDesign& design, int name, const ByMode<double>& feet);

/// The parts of lengths in the ground.
/// @param shares          of lengths of bore or pipe, ft
/// @param total           lengths that the parts shall add up to: for coils the trenches that take
///                        the place of the pipe, ft
/// @param resistanceName  text of what lies between fluid and ground
/// @return                none where there are no shares
std::vector<LengthSegment> groundParts(const GroundDesign& design,
                                       const ByMode<modCalculations::LengthShares>& shares,
                                       const ByMode<double>& total, int resistanceName);

}  // namespace varnholt
