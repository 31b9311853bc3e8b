// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace varnholt::secondOpinion {

/// A positive definite system of some dozens of unknowns, solved by Cholesky's factors.
class SymmetricSystem {
 public:
    explicit SymmetricSystem(std::size_t unknowns)
        : unknowns_(unknowns), columns_(unknowns * unknowns) {}

    std::size_t unknowns() const { return unknowns_; }
    /// A column of the matrix, of which the elements from the diagonal down count. They are to be
    /// set before factorize().
    double* column(std::size_t index) { return &columns_[index * unknowns_]; }
    /// False when the system is not positive definite.
    bool factorize();
    /// Puts the solution in the place of the right side.
    void solve(std::vector<double>& side) const;

 private:
    std::size_t unknowns_;
    std::vector<double> columns_;
};

}  // namespace varnholt::secondOpinion
