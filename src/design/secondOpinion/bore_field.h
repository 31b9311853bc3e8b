// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace varnholt::secondOpinion {

/// Where a bore stands, ft.
struct BorePosition {
    double x = 0, y = 0;

    friend bool operator==(const BorePosition&, const BorePosition&) = default;
};

/// A rectangle of bores, `across` of them along x and `down` along y.
/// @param separation  between neighbours, ft
std::vector<BorePosition> rectangularField(int across, int down, double separation);

/// The bores of a field with the distances between them. Any layout is taken. Where a reflection or
/// a quarter turn about the middle brings the field onto itself, the bores that change places have
/// the same part in it: they form a class, of which one bore is looked at.
///
/// Equal distances are told once. Distances whose squares differ by less than a thousandth stand
/// together with their mean square, which leaves an error of 1E-8 in what they add up to.
class BoreField {
 public:
    /// The distances are found by measureMore.
    /// @param bores  no two in one place
    explicit BoreField(std::vector<BorePosition> bores);

    /// Finds the distances of some more bores. True when all are known.
    bool measureMore();

    const std::vector<BorePosition>& bores() const { return bores_; }
    std::size_t size() const { return bores_.size(); }
    std::size_t classCount() const { return classSize_.size(); }
    /// Bores of a class.
    const std::vector<double>& classSize() const { return classSize_; }
    std::size_t classOf(std::size_t bore) const { return classOf_[bore]; }

    /// Squares of the distances, ft^2, ascending; element 0 stands for a bore and itself and is 0.
    const std::vector<double>& squares() const { return squares_; }
    /// Where the square of the distance from the bore of a class to each bore stands in squares().
    const std::uint16_t* squareIndices(std::size_t boreClass) const {
        return &indices_[boreClass * size()];
    }

 private:
    void findClasses();
    void measure(std::size_t boreClass);
    void sortSquares();

    std::vector<BorePosition> bores_;
    std::vector<std::size_t> classOf_, firstOf_;
    std::vector<double> classSize_;
    std::vector<std::uint16_t> indices_;
    std::vector<double> squares_{0};

    // While the distances are being found.
    std::size_t measured_ = 0;
    std::vector<std::uint16_t> placeOfKey_;
    std::vector<double> counts_{0};
};

}  // namespace varnholt::secondOpinion
