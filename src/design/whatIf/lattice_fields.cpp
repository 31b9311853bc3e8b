// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/lattice_fields.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "design/modCalculations/bore_grid.h"
#include "design/whatIf/land.h"

namespace varnholt {
namespace {

constexpr double mostPlaces = 2.5e7;  // of a lattice

double wholeWeight(std::size_t rows, std::size_t columns) {
    const modCalculations::NeighbourCount count =
        modCalculations::countNeighbours(static_cast<double>(rows), static_cast<double>(columns));
    double weight = 0;
    for (std::size_t n = 0; n < count.size(); ++n) weight += neighbourWeight(n) * count[n];
    return weight;
}

}  // namespace

std::size_t placesBetween(double from, double to, double separation) {
    const double steps = std::floor((to - from + placeGive) / separation);
    return steps < 0 ? 0 : static_cast<std::size_t>(std::min(steps, mostPlaces)) + 1;
}

double neighbourWeight(std::size_t neighbours) {
    constexpr std::array<double, 5> weights{0, 0.1, 0.25, 0.5, 1};
    return weights.at(neighbours);
}

std::vector<Point> boresOf(const Land& land, const LatticeField& field) {
    std::vector<Point> bores;
    bores.reserve(field.bores);
    for (std::size_t j = 0; j < field.columns; ++j)
        for (std::size_t i = 0; i < field.rows; ++i) {
            const Point place{field.first.x + static_cast<double>(i) * field.separation,
                              field.first.y + static_cast<double>(j) * field.separation};
            if (field.isWhole() || land.allows(place)) bores.push_back(place);
        }
    return bores;
}

Lattice::Lattice(const Land& land, double separation, int quartersX, int quartersY)
    : separation_(separation) {
    const Extent extent = extentOf(land.outline);
    const double clearance = land.boundaryClearance;
    origin_ = {extent.least.x + clearance + quartersX * separation / latticeQuarters,
               extent.least.y + clearance + quartersY * separation / latticeQuarters};
    across_ = placesBetween(origin_.x, extent.greatest.x - clearance, separation);
    down_ = placesBetween(origin_.y, extent.greatest.y - clearance, separation);
    if (isTooLarge()) return;
    // The memory is taken now and filled row by row: that of a large land takes its time.
    sums_.reserve((across_ + 1) * (down_ + 1));
    sums_.resize(across_ + 1);
}

bool Lattice::isTooLarge() const {
    return static_cast<double>(across_) * static_cast<double>(down_) > mostPlaces;
}

void Lattice::layRow(const Land& land) {
    const std::size_t width = across_ + 1;
    const std::size_t below = laid_ * width, row = below + width;
    sums_.resize(row + width);
    for (std::size_t i = 0; i < across_; ++i)
        sums_[row + i + 1] = sums_[row + i] + sums_[below + i + 1] - sums_[below + i] +
                             (land.allows(place(i, laid_)) ? 1 : 0);
    ++laid_;
}

Point Lattice::place(std::size_t i, std::size_t j) const {
    return {origin_.x + static_cast<double>(i) * separation_,
            origin_.y + static_cast<double>(j) * separation_};
}

std::size_t Lattice::countIn(const Window& window) const {
    const auto& [i, j, rows, columns] = window;
    const std::size_t low = j * (across_ + 1) + i;
    const std::size_t high = low + columns * (across_ + 1);
    return sums_[high + rows] + sums_[low] - sums_[low + rows] - sums_[high];
}

std::size_t WindowSearch::tryRow(const Lattice& lattice) {
    const std::size_t full = best_.rows * best_.columns;
    const std::size_t count = lattice.across() + 1 - best_.rows;
    std::size_t tried = 0;
    while (tried < count && most_ < full) {
        const Lattice::Window window{tried++, next_, best_.rows, best_.columns};
        const std::size_t places = lattice.countIn(window);
        if (places <= most_) continue;
        most_ = places;
        best_ = window;
    }
    ++next_;
    done_ = most_ == full || next_ + best_.columns > lattice.down();
    return tried;
}

bool Lattice::fillsEdges(const Window& window) const {
    const auto& [i, j, rows, columns] = window;
    return countIn({i, j, rows, 1}) > 0 && countIn({i, j + columns - 1, rows, 1}) > 0 &&
           countIn({i, j, 1, columns}) > 0 && countIn({i + rows - 1, j, 1, columns}) > 0;
}

template <class Take>
void Lattice::forEachAllowed(const Window& window, const Take& take) const {
    if (countIn(window) == 0) return;
    if (window.rows * window.columns == 1) return take(window.i, window.j);
    Window low = window, high = window;
    if (window.rows >= window.columns) {
        low.rows /= 2;
        high.i += low.rows;
        high.rows -= low.rows;
    } else {
        low.columns /= 2;
        high.j += low.columns;
        high.columns -= low.columns;
    }
    forEachAllowed(low, take);
    forEachAllowed(high, take);
}

double Lattice::weightIn(const Window& window) const {
    const std::size_t right = window.i + window.rows, top = window.j + window.columns;
    std::array<std::size_t, 5> bores{};  // by the number of their neighbours
    forEachAllowed(window, [&](std::size_t i, std::size_t j) {
        ++bores.at((i > window.i && allows(i - 1, j) ? 1u : 0u) +
                   (i + 1 < right && allows(i + 1, j) ? 1u : 0u) +
                   (j > window.j && allows(i, j - 1) ? 1u : 0u) +
                   (j + 1 < top && allows(i, j + 1) ? 1u : 0u));
    });
    double weight = 0;
    for (std::size_t n = 0; n < bores.size(); ++n)
        weight += neighbourWeight(n) * static_cast<double>(bores[n]);
    return weight;
}

LatticeField Lattice::fieldOf(const Window& window) const {
    LatticeField field{
        separation_, window.rows, window.columns, countIn(window), place(window.i, window.j), 0};
    field.neighbourWeight =
        field.isWhole() ? wholeWeight(window.rows, window.columns) : weightIn(window);
    return field;
}

}  // namespace varnholt
