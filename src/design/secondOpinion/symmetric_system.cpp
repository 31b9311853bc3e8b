// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/symmetric_system.h"

#include <cmath>

namespace varnholt::secondOpinion {

namespace {

/// column[i] -= sum over k of factor(k) * earlier(k)[i], four earlier columns at a time so that
/// each element is fetched and stored once for the four.
void subtractColumns(const double* columns, std::size_t n, std::size_t j, double* column) {
    std::size_t k = 0;
    for (; k + 3 < j; k += 4) {
        const double* e0 = columns + k * n;
        const double* e1 = e0 + n;
        const double* e2 = e1 + n;
        const double* e3 = e2 + n;
        const double f0 = e0[j], f1 = e1[j], f2 = e2[j], f3 = e3[j];
        for (std::size_t i = j; i < n; ++i)
            column[i] -= (f0 * e0[i] + f1 * e1[i]) + (f2 * e2[i] + f3 * e3[i]);
    }
    for (; k < j; ++k) {
        const double* earlier = columns + k * n;
        const double factor = earlier[j];
        for (std::size_t i = j; i < n; ++i) column[i] -= factor * earlier[i];
    }
}

}  // namespace

bool SymmetricSystem::factorize() {
    const std::size_t n = unknowns_;
    for (std::size_t j = 0; j < n; ++j) {
        double* column = &columns_[j * n];
        subtractColumns(columns_.data(), n, j, column);
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
