// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "design/whatIf/lattice_fields.h"
#include "design/whatIf/what_if_inputs.h"

namespace varnholt {

/// Finds the fields that a land allows, in slices.
///
/// Lattices lie along the axes, for each separation, moved by quarters of it in x (outer) and y
/// (inner). Of the offsets that give a shape the first with most bores is kept; of a full rectangle
/// and its mirror image the one with more rows across, where it fits. More than `mostShapes`
/// windows are never tried: the step between separations is doubled until they are fewer.
class FieldFinder {
 public:
    /// @param layout  within the limits of its fields
    FieldFinder(Land land, const LayoutValues& layout);

    /// A few milliseconds of work at most, however large the land is. True when all is done.
    bool step();
    /// Once done, in the order of separation, rows, columns.
    const std::vector<LatticeField>& fields() const { return fields_; }
    bool hasPlace() const { return hasPlace_; }  ///< for one bore
    double spacingStep() const { return spacingStep_; }
    /// Even one separation has more shapes than are tried.
    bool tooManyShapes() const { return tooMany_; }

    static constexpr std::size_t mostShapes = 200'000;

 private:
    double separation() const;
    bool isWhole() const { return layout_.layoutKind == wholeRectangles; }
    void goOn();
    void startLattice();
    void layRow();
    void startShape();
    void lookOn();
    void keep(const Lattice::Window& window, std::size_t bores);
    void nextRow();
    void nextLattice();
    void closeRow();
    void startAgain();

    Land land_;
    std::size_t sides_;  ///< of all its polygons
    LayoutValues layout_;
    std::size_t mostBores_;
    double spacingStep_;
    std::size_t index_ = 0;  ///< of the separation
    int offset_ = 0;         ///< 0 to 15
    std::optional<Lattice> lattice_;
    std::optional<WindowSearch> search_;  ///< for the shape of `rows_` and `columns_`
    std::size_t rows_ = 1, columns_ = 0;
    std::size_t shapes_ = 0;
    std::size_t work_ = 0;  ///< of this slice, as so many windows tried
    bool hasPlace_ = false, tooMany_ = false, done_ = false;
    /// The best field of each shape at this separation, by rows less one, then columns less one.
    std::vector<std::vector<LatticeField>> best_;
    bool closing_ = false;    ///< the separation has been tried
    std::size_t closed_ = 0;  ///< rows of `best_`
    std::vector<LatticeField> fields_;
};

}  // namespace varnholt
