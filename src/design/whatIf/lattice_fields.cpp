// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/lattice_fields.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "design/modCalculations/bore_grid.h"
#include "design/whatIf/land.h"

namespace varnholt {
namespace {

constexpr int quarters = 4;
constexpr double mostPlaces = 2.5e7;  // of a lattice
/// Distances to sides that are measured in one slice.
constexpr std::size_t sidesPerStep = 100'000;

double wholeWeight(std::size_t rows, std::size_t columns) {
    const modCalculations::NeighbourCount count =
        modCalculations::countNeighbours(static_cast<double>(rows), static_cast<double>(columns));
    double weight = 0;
    for (std::size_t n = 0; n < count.size(); ++n) weight += neighbourWeight(n) * count[n];
    return weight;
}

std::size_t sidesOf(const Land& land) {
    std::size_t sides = land.outline.size();
    for (const Polygon& area : land.noGo) sides += area.size();
    return sides;
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
    origin_ = {extent.least.x + clearance + quartersX * separation / quarters,
               extent.least.y + clearance + quartersY * separation / quarters};
    across_ = placesBetween(origin_.x, extent.greatest.x - clearance, separation);
    down_ = placesBetween(origin_.y, extent.greatest.y - clearance, separation);
    if (static_cast<double>(across_) * static_cast<double>(down_) > mostPlaces) return;
    sums_.resize((across_ + 1) * (down_ + 1));
}

void Lattice::layRow(const Land& land) {
    const std::size_t width = across_ + 1;
    const std::size_t below = laid_ * width, row = below + width;
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

std::optional<Lattice::Window> Lattice::bestWindow(std::size_t rows, std::size_t columns) const {
    if (rows > across_ || columns > down_) return std::nullopt;
    Window best{0, 0, rows, columns};
    std::size_t most = 0;
    for (std::size_t j = 0; j + columns <= down_; ++j)
        for (std::size_t i = 0; i + rows <= across_; ++i) {
            const std::size_t count = countIn({i, j, rows, columns});
            if (count <= most) continue;
            most = count;
            best = {i, j, rows, columns};
            if (most == rows * columns) return best;
        }
    return best;
}

bool Lattice::fillsEdges(const Window& window) const {
    const auto& [i, j, rows, columns] = window;
    return countIn({i, j, rows, 1}) > 0 && countIn({i, j + columns - 1, rows, 1}) > 0 &&
           countIn({i, j, 1, columns}) > 0 && countIn({i + rows - 1, j, 1, columns}) > 0;
}

double Lattice::weightIn(const Window& window) const {
    double weight = 0;
    const std::size_t right = window.i + window.rows, top = window.j + window.columns;
    for (std::size_t j = window.j; j < top; ++j)
        for (std::size_t i = window.i; i < right; ++i) {
            if (!allows(i, j)) continue;
            weight += neighbourWeight((i > window.i && allows(i - 1, j) ? 1u : 0u) +
                                      (i + 1 < right && allows(i + 1, j) ? 1u : 0u) +
                                      (j > window.j && allows(i, j - 1) ? 1u : 0u) +
                                      (j + 1 < top && allows(i, j + 1) ? 1u : 0u));
        }
    return weight;
}

LatticeField Lattice::fieldOf(const Window& window) const {
    LatticeField field{
        separation_, window.rows, window.columns, countIn(window), place(window.i, window.j), 0};
    field.neighbourWeight =
        field.isWhole() ? wholeWeight(window.rows, window.columns) : weightIn(window);
    return field;
}

FieldFinder::FieldFinder(Land land, const LayoutValues& layout)
    : land_(std::move(land)), layout_(layout), spacingStep_(layout.spacingStep) {}

double FieldFinder::separation() const {
    return layout_.spacingFrom + static_cast<double>(index_) * spacingStep_;
}

bool FieldFinder::step() {
    if (done_) return true;
    if (!lattice_) {
        startLattice();
        return done_;
    }
    const std::size_t rowsPerStep = 1 + sidesPerStep / (sidesOf(land_) * (lattice_->across() + 1));
    for (std::size_t i = 0; i < rowsPerStep && !lattice_->isLaid(); ++i) lattice_->layRow(land_);
    if (!lattice_->isLaid()) return false;
    if (lattice_->hasPlace()) {
        hasPlace_ = true;
        for (std::size_t i = 0; i < rowsPerStep && lattice_ && rows_ < lattice_->across(); ++i)
            tryRow();
        if (done_ || !lattice_ || rows_ < lattice_->across()) return done_;
    }
    nextLattice();
    return false;
}

void FieldFinder::startLattice() {
    if (separation() > layout_.spacingTo + placeGive) {
        done_ = true;
        return;
    }
    lattice_.emplace(land_, separation(), offset_ / quarters, offset_ % quarters);
    rows_ = 0;
    const auto places =
        static_cast<double>(lattice_->across()) * static_cast<double>(lattice_->down());
    if (places > mostPlaces)
        done_ = tooMany_ = true;
    else if (places == 0)
        nextLattice();
    else if (offset_ == 0) {
        bestDown_ = lattice_->down();
        best_.assign(lattice_->across() * bestDown_, {});
    }
}

void FieldFinder::tryRow() {
    const auto most = static_cast<std::size_t>(layout_.mostBores);
    const bool whole = layout_.layoutKind == wholeRectangles;
    const std::size_t rows = ++rows_;
    for (std::size_t columns = 1; columns <= lattice_->down(); ++columns) {
        if (whole && rows * columns > most) return;
        if (++shapes_ > mostShapes) return startAgain();
        const Lattice::Window window = *lattice_->bestWindow(rows, columns);
        const std::size_t bores = lattice_->countIn(window);
        // A longer window holds no fewer places, and is full only where the shorter one is.
        if (bores > most || (whole && bores < rows * columns)) return;
        if (bores == 0 || !lattice_->fillsEdges(window)) continue;
        LatticeField& best = best_[(rows - 1) * bestDown_ + columns - 1];
        if (bores > best.bores) best = lattice_->fieldOf(window);
    }
}

void FieldFinder::nextLattice() {
    lattice_.reset();
    if (++offset_ < quarters * quarters) return;
    closeSeparation();
    offset_ = 0;
    ++index_;
}

/// A full rectangle that also fits turned round stands for both.
void FieldFinder::closeSeparation() {
    const auto wholeAt = [&](std::size_t rows, std::size_t columns) {
        const std::size_t place = (rows - 1) * bestDown_ + columns - 1;
        return columns <= bestDown_ && place < best_.size() && best_[place].bores > 0 &&
               best_[place].isWhole();
    };
    for (const LatticeField& field : best_) {
        if (field.bores == 0) continue;
        const bool standsTwice =
            field.rows < field.columns && field.isWhole() && wholeAt(field.columns, field.rows);
        if (!standsTwice) fields_.push_back(field);
    }
    best_.clear();
}

void FieldFinder::startAgain() {
    // One separation alone cannot be thinned out.
    done_ = tooMany_ = layout_.spacingFrom + spacingStep_ > layout_.spacingTo + placeGive;
    spacingStep_ *= 2;
    index_ = 0;
    offset_ = 0;
    shapes_ = 0;
    lattice_.reset();
    best_.clear();
    fields_.clear();
}

}  // namespace varnholt
