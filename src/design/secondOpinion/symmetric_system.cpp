// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/symmetric_system.h"

#include <cmath>

namespace varnholt::secondOpinion {

bool SymmetricSystem::factorize() {
    const std::size_t n = unknowns_;
    for (std::size_t j = 0; j < n; ++j) {
        double* column = &columns_[j * n];
        for (std::size_t k = 0; k < j; ++k) {
            const double* earlier = &columns_[k * n];
            const double factor = earlier[j];
            for (std::size_t i = j; i < n; ++i) column[i] -= factor * earlier[i];
        }
        if (!(column[j] > 0)) return false;
        const double inverse = 1 / std::sqrt(column[j]);
        for (std::size_t i = j; i < n; ++i) column[i] *= inverse;
    }
    return true;
}

void SymmetricSystem::solve(std::vector<double>& side) const {
    const std::size_t n = unknowns_;
    for (std::size_t j = 0; j < n; ++j) {
        const double* column = &columns_[j * n];
        side[j] /= column[j];
        for (std::size_t i = j + 1; i < n; ++i) side[i] -= side[j] * column[i];
    }
    for (std::size_t j = n; j-- > 0;) {
        const double* column = &columns_[j * n];
        double sum = side[j];
        for (std::size_t i = j + 1; i < n; ++i) sum -= column[i] * side[i];
        side[j] = sum / column[j];
    }
}

}  // namespace varnholt::secondOpinion
