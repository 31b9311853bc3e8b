// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/trench_layout.h"

#include <array>
#include <cmath>

#include "basis/run_time_error.h"
#include "basis/units.h"

namespace varnholt::modCalculations {

namespace {

constexpr double mostPipesComputed = 1000;  // a million pairs, a tenth of a second
constexpr std::array<int, 5> columnsByArrangement{1, 2, 3, 1, 1};

double coilDepth(const TrenchLayout& layout) {
    if (layout.arrangement != standingCoil) return layout.depth;
    return (layout.depth * inchesPerFoot + layout.coilDiameter / 2) / inchesPerFoot;
}

/// The rows as a number to count with.
int wholeRows(const TrenchLayout& layout) {
    const double rows = rowsOf(layout);
    const bool sound = rows >= 0 && layout.pipes <= mostPipesComputed && std::floor(rows) == rows;
    if (!sound) throw RunTimeError(9);
    return static_cast<int>(rows);
}

/// Sideways place of a pipe, ft.
double acrossTrench(const TrenchLayout& layout, int columns, int column, int row) {
    const double x = column * layout.columnStep / inchesPerFoot;
    if (!layout.offset || row % 2 == 0) return x;
    return columns == 1 ? layout.columnStep / inchesPerFoot
                        : x + 0.5 * layout.columnStep / inchesPerFoot;
}

}  // namespace

bool isCoil(std::int16_t arrangement) {
    return arrangement == lyingCoil || arrangement == standingCoil;
}

int columnsOf(std::int16_t arrangement) { return at(columnsByArrangement, arrangement); }

double rowsOf(const TrenchLayout& layout) { return layout.pipes / columnsOf(layout.arrangement); }

bool usesRowStep(const TrenchLayout& layout) { return offsetIsOffered(layout); }

bool usesColumnStep(const TrenchLayout& layout) {
    return columnsOf(layout.arrangement) > 1 || (layout.offset && offsetIsOffered(layout));
}

bool offsetIsOffered(const TrenchLayout& layout) {
    return !isCoil(layout.arrangement) && rowsOf(layout) >= 2;
}

std::vector<PipePosition> buildPipePositions(const TrenchLayout& layout) {
    const int columns = columnsOf(layout.arrangement);
    const int rows = wholeRows(layout);
    const double surface = coilDepth(layout);
    std::vector<PipePosition> positions;
    positions.reserve(2 * static_cast<std::size_t>(columns * rows));
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < rows; ++row) {
            const double x = acrossTrench(layout, columns, column, row);
            const double y = row * layout.rowStep / inchesPerFoot;
            positions.push_back({x, y});
            positions.push_back({x, 2 * surface - y});
        }
    }
    return positions;
}

double meanPipeDepth(const TrenchLayout& layout) {
    if (isCoil(layout.arrangement)) return coilDepth(layout);
    return layout.depth - ((rowsOf(layout) - 1) * layout.rowStep / inchesPerFoot) / 2;
}

}  // namespace varnholt::modCalculations
