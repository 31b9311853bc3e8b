// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/field_finder.h"

#include <utility>

namespace varnholt {
namespace {

/// Windows that are tried in one slice, and how many of them other work takes as long as.
constexpr std::size_t workPerStep = 400'000;
constexpr std::size_t workOfSide = 4;    // of the land, measured from one place
constexpr std::size_t workOfShape = 10;  // begun
constexpr std::size_t workOfBore = 40;   // of a field that is kept

std::size_t sidesOf(const Land& land) {
    std::size_t sides = land.outline.size();
    for (const Polygon& area : land.noGo) sides += area.size();
    return sides;
}

}  // namespace

FieldFinder::FieldFinder(Land land, const LayoutValues& layout)
    : land_(std::move(land)),
      sides_(sidesOf(land_)),
      layout_(layout),
      mostBores_(static_cast<std::size_t>(layout.mostBores)),
      spacingStep_(layout.spacingStep) {}

double FieldFinder::separation() const {
    return layout_.spacingFrom + static_cast<double>(index_) * spacingStep_;
}

bool FieldFinder::step() {
    for (work_ = 0; !done_ && work_ < workPerStep;) goOn();
    return done_;
}

void FieldFinder::goOn() {
    if (closing_) return closeRow();
    if (!lattice_) return startLattice();
    if (!lattice_->isLaid()) return layRow();
    if (!lattice_->hasPlace()) return nextLattice();
    hasPlace_ = true;
    if (!search_) return startShape();
    lookOn();
}

void FieldFinder::startLattice() {
    work_ += workOfShape;
    if (separation() > layout_.spacingTo + placeGive) {
        done_ = true;
        return;
    }
    lattice_.emplace(land_, separation(), offset_ / latticeQuarters, offset_ % latticeQuarters);
    rows_ = 1;
    columns_ = 0;
    if (lattice_->isTooLarge())
        done_ = tooMany_ = true;
    else if (lattice_->across() == 0 || lattice_->down() == 0)
        nextLattice();
}

void FieldFinder::layRow() {
    work_ += workOfSide * sides_ * (lattice_->across() + 1);
    lattice_->layRow(land_);
}

/// One more bore down, as long as there may be so many.
void FieldFinder::startShape() {
    work_ += workOfShape;
    ++columns_;
    if (columns_ > lattice_->down() || (isWhole() && rows_ * columns_ > mostBores_))
        return nextRow();
    if (++shapes_ > mostShapes) return startAgain();
    search_.emplace(rows_, columns_);
}

void FieldFinder::lookOn() {
    work_ += search_->tryRow(*lattice_);
    if (!search_->isDone()) return;
    const Lattice::Window window = search_->best();
    const std::size_t bores = search_->mostPlaces();
    search_.reset();
    // A longer window holds no fewer places, and is full only where the shorter one is.
    if (bores > mostBores_ || (isWhole() && bores < rows_ * columns_)) return nextRow();
    if (bores > 0 && lattice_->fillsEdges(window)) keep(window, bores);
}

void FieldFinder::keep(const Lattice::Window& window, std::size_t bores) {
    if (best_.size() < rows_) best_.resize(rows_);
    std::vector<LatticeField>& ofRow = best_[rows_ - 1];
    if (ofRow.size() < columns_) ofRow.resize(columns_);
    LatticeField& best = ofRow[columns_ - 1];
    if (bores <= best.bores) return;
    best = lattice_->fieldOf(window);
    work_ += workOfBore * (best.isWhole() ? 1 : bores);
}

/// One more bore across.
void FieldFinder::nextRow() {
    columns_ = 0;
    if (++rows_ > lattice_->across()) nextLattice();
}

void FieldFinder::nextLattice() {
    search_.reset();
    lattice_.reset();
    closing_ = ++offset_ == latticeQuarters * latticeQuarters;
}

/// The shapes of one row go to the fields. A full rectangle that also fits turned round stands for
/// both.
void FieldFinder::closeRow() {
    const auto isWholeAt = [&](std::size_t rows, std::size_t columns) {
        if (rows > best_.size() || columns > best_[rows - 1].size()) return false;
        const LatticeField& field = best_[rows - 1][columns - 1];
        return field.bores > 0 && field.isWhole();
    };
    if (closed_ < best_.size()) {
        for (const LatticeField& field : best_[closed_]) {
            if (field.bores == 0) continue;
            const bool standsTwice = field.rows < field.columns && field.isWhole() &&
                                     isWholeAt(field.columns, field.rows);
            if (!standsTwice) fields_.push_back(field);
        }
        work_ += workOfShape * (1 + best_[closed_].size());
        ++closed_;
        return;
    }
    best_.clear();
    closing_ = false;
    closed_ = 0;
    offset_ = 0;
    ++index_;
}

void FieldFinder::startAgain() {
    // One separation alone cannot be thinned out.
    done_ = tooMany_ = layout_.spacingFrom + spacingStep_ > layout_.spacingTo + placeGive;
    spacingStep_ *= 2;
    index_ = 0;
    offset_ = 0;
    shapes_ = 0;
    search_.reset();
    lattice_.reset();
    best_.clear();
    fields_.clear();
}

}  // namespace varnholt
