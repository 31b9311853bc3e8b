// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace varnholt::modCalculations {

/// How pipes lie in a trench: side by side in columns, or as one coil of overlapping loops.
enum TrenchArrangement : std::int16_t {
    singleColumn = 0,
    twoColumns = 1,
    threeColumns = 2,
    lyingCoil = 3,
    standingCoil = 4
};

constexpr double mostPipesPerTrench = 24;
constexpr double mostTrenches = 1000;

/// The pipes of one trench. Numbers are doubles where a file may hold any.
struct TrenchLayout {
    std::int16_t arrangement = singleColumn;  ///< a TrenchArrangement
    double pipes = 1;                         ///< in one trench
    bool offset = false;      ///< every second row is moved sideways, so that rows are staggered
    double depth = 0;         ///< of the trench, ft
    double rowStep = 0;       ///< from pipe to pipe within a column, in
    double columnStep = 0;    ///< from column to column, in
    double coilDiameter = 0;  ///< in

    friend bool operator==(const TrenchLayout&, const TrenchLayout&) = default;
};

bool isCoil(std::int16_t arrangement);

/// Columns of an arrangement: also the step and the least value of its number of pipes. A coil
/// counts as one. Throws RunTimeError 9 for no arrangement.
int columnsOf(std::int16_t arrangement);

/// Rows of pipes, one above the other.
double rowsOf(const TrenchLayout& layout);

/// Whether the step within a column counts: from the second row on. Coils have none.
bool usesRowStep(const TrenchLayout& layout);

/// Whether the step between columns counts: always where there are two or three, and in a single
/// column when it is offset.
bool usesColumnStep(const TrenchLayout& layout);

/// Rows can be staggered from the second one on. Coils have none.
bool offsetIsOffered(const TrenchLayout& layout);

/// A pipe, or its mirror image above the ground, in a cut across the trench. x is counted from the
/// first column and y from the deepest pipe upward, ft.
struct PipePosition {
    double x = 0, y = 0;

    friend bool operator==(const PipePosition&, const PipePosition&) = default;
};

/// Every pipe, column by column from the deepest up, each followed by its image across the ground
/// surface: even elements are pipes, odd ones images.
///
/// The surface lies at the depth of the trench above the deepest pipe. For a standing coil it is
/// half the coil's diameter higher, which counts the trench's depth to the coil's upper edge.
/// With an offset the pipes of every second row are moved by half a column's step; a single column
/// is staggered by the whole step.
///
/// Throws RunTimeError 9 for no arrangement, and for a number of pipes that does not fill its rows
/// or that no trench has (a file may hold any; 1000 are computed).
std::vector<PipePosition> buildPipePositions(const TrenchLayout& layout);

/// Mean depth of the pipes below the surface, ft; that of a coil's middle line.
double meanPipeDepth(const TrenchLayout& layout);

}  // namespace varnholt::modCalculations
