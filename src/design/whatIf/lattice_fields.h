// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "design/whatIf/land.h"

namespace varnholt {

/// Which windows of a lattice are fields.
enum LayoutKind : std::int16_t {
    wholeRectangles = 0,  ///< every place has a bore
    rowsCutToLand = 1     ///< places that the land does not allow stay free
};

/// A field of bores on the land.
struct LatticeField {
    double separation = 0;    ///< ft
    std::size_t rows = 0;     ///< across, along x
    std::size_t columns = 0;  ///< along y
    std::size_t bores = 0;
    Point first;  ///< the corner of least x and y, whether or not it has a bore, ft
    /// Neighbours' weights of the bores together: how much of the heat the field keeps.
    double neighbourWeight = 0;

    bool isWhole() const { return bores == rows * columns; }
    friend bool operator==(const LatticeField&, const LatticeField&) = default;
};

constexpr int latticeQuarters = 4;  ///< of the separation, by which lattices are moved

/// Places of a field's bores, ft: row by row of least y first, of least x first in each.
std::vector<Point> boresOf(const Land& land, const LatticeField& field);

/// How many lattice places fit between two bounds; 0 where the second is less.
std::size_t placesBetween(double from, double to, double separation);

/// Weight of a bore with 0 to 4 neighbours at one separation: the share of the heat that they keep
/// around it. It is that of the classical penalty.
double neighbourWeight(std::size_t neighbours);

/// The places of a lattice on the land, and how many of them the land allows in any window. It is
/// laid row by row, so that a large land can be laid in slices.
class Lattice {
 public:
    /// Places along x and y, of which `rows` by `columns` stand in a window whose least corner is
    /// i, j.
    struct Window {
        std::size_t i = 0, j = 0, rows = 0, columns = 0;
    };

    /// @param quartersX,quartersY  of the separation, by which the lattice is moved, 0 to 3
    Lattice(const Land& land, double separation, int quartersX, int quartersY);

    /// It has more places than are ever laid.
    bool isTooLarge() const;
    std::size_t across() const { return across_; }
    std::size_t down() const { return down_; }
    /// Lays one more row. Nothing may be asked before `isLaid`.
    void layRow(const Land& land);
    bool isLaid() const { return laid_ == down_; }

    Point place(std::size_t i, std::size_t j) const;
    bool allows(std::size_t i, std::size_t j) const { return countIn({i, j, 1, 1}) == 1; }
    std::size_t countIn(const Window& window) const;
    bool hasPlace() const { return countIn({0, 0, across_, down_}) > 0; }

    /// Whether the outer rows and columns of a window all have an allowed place.
    bool fillsEdges(const Window& window) const;
    LatticeField fieldOf(const Window& window) const;
    /// Weights of the bores in a window, counted one by one.
    double weightIn(const Window& window) const;

 private:
    /// Calls the function with each allowed place, without a look at what is empty.
    template <class Take>
    void forEachAllowed(const Window& window, const Take& take) const;

    double separation_;
    Point origin_;
    std::size_t across_ = 0, down_ = 0, laid_ = 0;
    std::vector<std::uint32_t> sums_;  ///< of allowed places left of and below a corner
};

/// Looks for the window of a shape with most allowed places, of equal ones that of least y, then of
/// least x. It tries the windows of one row after the other, so that a large land takes slices.
class WindowSearch {
 public:
    WindowSearch(std::size_t rows, std::size_t columns) : best_{0, 0, rows, columns} {}

    /// @param lattice  the same each time, laid; the shape fits in it
    /// @return windows that were tried
    std::size_t tryRow(const Lattice& lattice);
    bool isDone() const { return done_; }
    const Lattice::Window& best() const { return best_; }
    std::size_t mostPlaces() const { return most_; }  ///< in it

 private:
    Lattice::Window best_;
    std::size_t next_ = 0, most_ = 0;
    bool done_ = false;
};

}  // namespace varnholt
