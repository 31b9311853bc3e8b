// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/bore_field.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numeric>
#include <optional>
#include <utility>

namespace varnholt::secondOpinion {
namespace {

constexpr int keptBits = 10;  // of a square's mantissa: steps of a thousandth
constexpr std::size_t keyCount = std::size_t{1} << 16;
constexpr double leastSquare = 1.0e-6;     // ft^2
constexpr double greatestSquare = 1.0e13;  // ft^2, less than 64 octaves above the least
constexpr std::size_t pairsPerSlice = 500'000;

/// The leading bits of a double are its octave and its place in it.
std::uint64_t leadingBits(double square) {
    return std::bit_cast<std::uint64_t>(square) >> (52 - keptBits);
}

std::size_t keyOf(double square) {
    return leadingBits(std::clamp(square, leastSquare, greatestSquare)) - leadingBits(leastSquare);
}

/// x and y after a reflection or a quarter turn are +-x and +-y, or these exchanged.
struct Motion {
    bool exchanged;
    double signX, signY;

    BorePosition operator()(const BorePosition& p) const {
        return exchanged ? BorePosition{signX * p.y, signY * p.x}
                         : BorePosition{signX * p.x, signY * p.y};
    }
};

constexpr std::array<Motion, 7> motions{{{false, -1, 1},
                                         {false, 1, -1},
                                         {false, -1, -1},
                                         {true, 1, 1},
                                         {true, -1, 1},
                                         {true, 1, -1},
                                         {true, -1, -1}}};

/// The bores as seen from their middle, so that each is found by its place.
class PlacesOfBores {
 public:
    explicit PlacesOfBores(const std::vector<BorePosition>& bores) : centred_(bores) {
        BorePosition middle;
        for (const BorePosition& bore : bores) {
            middle.x += bore.x / static_cast<double>(bores.size());
            middle.y += bore.y / static_cast<double>(bores.size());
        }
        double extent = 0;
        for (BorePosition& bore : centred_) {
            bore.x -= middle.x;
            bore.y -= middle.y;
            extent = std::max({extent, std::abs(bore.x), std::abs(bore.y)});
        }
        // No layout has bores that lie on the borders of such steps.
        step_ = extent > 0 ? extent * 1.2345678e-8 : 1;
        for (std::size_t i = 0; i < centred_.size(); ++i)
            sorted_.emplace_back(cellOf(centred_[i]), i);
        std::sort(sorted_.begin(), sorted_.end());
    }

    /// Which bore each one comes upon; none when some come upon none.
    std::optional<std::vector<std::size_t>> moved(const Motion& motion) const {
        std::vector<std::size_t> image;
        image.reserve(centred_.size());
        for (const BorePosition& bore : centred_) {
            const Cell cell = cellOf(motion(bore));
            const auto found =
                std::lower_bound(sorted_.begin(), sorted_.end(), std::pair{cell, std::size_t{0}});
            if (found == sorted_.end() || found->first != cell) return std::nullopt;
            image.push_back(found->second);
        }
        return image;
    }

 private:
    using Cell = std::pair<long long, long long>;
    Cell cellOf(const BorePosition& p) const {
        return {std::llround(p.x / step_), std::llround(p.y / step_)};
    }

    std::vector<BorePosition> centred_;
    double step_ = 1;
    std::vector<std::pair<Cell, std::size_t>> sorted_;
};

/// The first bore of those that are linked with this one.
std::size_t firstOf(std::vector<std::size_t>& linkedTo, std::size_t bore) {
    while (linkedTo[bore] != bore) bore = linkedTo[bore] = linkedTo[linkedTo[bore]];
    return bore;
}

}  // namespace

std::vector<BorePosition> rectangularField(int across, int down, double separation) {
    std::vector<BorePosition> bores;
    bores.reserve(static_cast<std::size_t>(across) * static_cast<std::size_t>(down));
    for (int row = 0; row < down; ++row)
        for (int column = 0; column < across; ++column)
            bores.push_back({column * separation, row * separation});
    return bores;
}

BoreField::BoreField(std::vector<BorePosition> bores)
    : bores_(std::move(bores)), placeOfKey_(keyCount, 0) {
    findClasses();
    indices_.resize(classCount() * size());
}

void BoreField::findClasses() {
    std::vector<std::size_t> linkedTo(size());
    std::iota(linkedTo.begin(), linkedTo.end(), std::size_t{0});
    const PlacesOfBores places(bores_);
    for (const Motion& motion : motions) {
        const auto image = places.moved(motion);
        if (!image) continue;
        for (std::size_t i = 0; i < size(); ++i) {
            const std::size_t a = firstOf(linkedTo, i);
            const std::size_t b = firstOf(linkedTo, (*image)[i]);
            linkedTo[std::max(a, b)] = std::min(a, b);
        }
    }
    classOf_.resize(size());
    for (std::size_t i = 0; i < size(); ++i) {
        const std::size_t first = firstOf(linkedTo, i);
        if (first == i) {
            classOf_[i] = firstOf_.size();
            firstOf_.push_back(i);
            classSize_.push_back(0);
        }
        classOf_[i] = classOf_[first];
        classSize_[classOf_[i]] += 1;
    }
}

bool BoreField::measureMore() {
    const std::size_t rows = std::max<std::size_t>(1, pairsPerSlice / size());
    const std::size_t last = std::min(classCount(), measured_ + rows);
    const bool finishing = measured_ < last && last == classCount();
    for (; measured_ < last; ++measured_) measure(measured_);
    if (finishing) sortSquares();
    return measured_ == classCount();
}

void BoreField::measure(std::size_t boreClass) {
    const std::size_t from = firstOf_[boreClass];
    std::uint16_t* row = &indices_[boreClass * size()];
    for (std::size_t to = 0; to < size(); ++to) {
        if (to == from) continue;
        const double dx = bores_[to].x - bores_[from].x;
        const double dy = bores_[to].y - bores_[from].y;
        const double square = dx * dx + dy * dy;
        std::uint16_t& place = placeOfKey_[keyOf(square)];
        if (place == 0) {
            place = static_cast<std::uint16_t>(squares_.size());
            squares_.push_back(0);
            counts_.push_back(0);
        }
        squares_[place] += square;
        counts_[place] += 1;
        row[to] = place;
    }
}

void BoreField::sortSquares() {
    for (std::size_t i = 1; i < squares_.size(); ++i) squares_[i] /= counts_[i];
    std::vector<std::uint16_t> order(squares_.size());
    std::iota(order.begin(), order.end(), std::uint16_t{0});
    std::sort(order.begin(), order.end(),
              [this](std::uint16_t a, std::uint16_t b) { return squares_[a] < squares_[b]; });
    std::vector<double> sorted;
    sorted.reserve(order.size());
    std::vector<std::uint16_t> placeOf(order.size());
    for (const std::uint16_t old : order) {
        placeOf[old] = static_cast<std::uint16_t>(sorted.size());
        sorted.push_back(squares_[old]);
    }
    squares_ = std::move(sorted);
    for (std::uint16_t& index : indices_) index = placeOf[index];
    placeOfKey_ = {};
    counts_ = {};
}

}  // namespace varnholt::secondOpinion
