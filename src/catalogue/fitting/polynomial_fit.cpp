// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/fitting/polynomial_fit.h"

#include <cmath>
#include <utility>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

/// The row from k on with the greatest magnitude in column k; -1 where all are zero.
std::ptrdiff_t pivotRow(const NormalMatrix& matrix, std::size_t k, std::size_t size) {
    double largest = 0;
    std::ptrdiff_t row = -1;
    for (std::size_t r = k; r < size; ++r)
        if (std::fabs(matrix[r][k]) > largest) {
            largest = std::fabs(matrix[r][k]);
            row = static_cast<std::ptrdiff_t>(r);
        }
    return row;
}

void checkOverflow(const FittedTerms& terms) {
    for (const double term : terms)
        if (!std::isfinite(term)) throw RunTimeError(6);
}

}  // namespace

void SolveLinearSystem(NormalMatrix& matrix, FittedTerms& right, std::size_t size) {
    for (std::size_t k = 0; k < size; ++k) {
        const auto pivot =
            static_cast<std::size_t>(&at(matrix, pivotRow(matrix, k, size)) - matrix.data());
        if (pivot != k) {
            for (std::size_t c = k; c < size; ++c) std::swap(matrix[pivot][c], matrix[k][c]);
            std::swap(right[pivot], right[k]);
        }
        const double divisor = matrix[k][k];
        for (std::size_t c = k; c < size; ++c) matrix[k][c] = matrix[k][c] / divisor;
        right[k] = right[k] / divisor;
        for (std::size_t r = 0; r < size; ++r) {
            if (r == k) continue;
            const double factor = matrix[r][k];
            for (std::size_t c = k; c < size; ++c) matrix[r][c] -= factor * matrix[k][c];
            right[r] -= factor * right[k];
        }
    }
    checkOverflow(right);
}

FittedTerms FitPolynomial(std::span<const double> x, std::span<const double> y,
                          std::size_t degree) {
    const std::size_t terms = degree + 1;
    std::array<std::array<double, mostTerms>, mostFitPoints> design{};
    for (std::size_t j = 0; j < x.size(); ++j) {
        design[j][0] = 1;
        for (std::size_t i = 1; i < terms; ++i) design[j][i] = design[j][i - 1] * x[j];
    }
    NormalMatrix normal{};
    for (std::size_t i = 0; i < terms; ++i)
        for (std::size_t j = 0; j <= i; ++j) {
            double sum = 0;
            for (std::size_t k = 0; k < x.size(); ++k) sum += design[k][j] * design[k][i];
            if (!std::isfinite(sum)) throw RunTimeError(6);
            normal[j][i] = normal[i][j] = sum;
        }
    FittedTerms right{};
    for (std::size_t j = 0; j < terms; ++j)
        for (std::size_t k = 0; k < x.size(); ++k) right[j] += design[k][j] * y[k];
    checkOverflow(right);
    SolveLinearSystem(normal, right, terms);
    return right;
}

FitPointCount CountFitPoints(std::span<const double> x, std::span<const double> y) {
    constexpr std::size_t needed = 3;  // rows that have to be whole
    FitPointCount rows;
    for (std::size_t row = 0; row < y.size(); ++row) {
        if (row < needed && (x[row] <= 0 || y[row] <= 0)) {
            rows.fault = std::nearbyint(x[row]) == 0 ? FitFault::noPlace : FitFault::badRow;
            return rows;
        }
        if (y[row] <= 0) return rows;
        rows.count = row + 1;
        rows.enough = row >= needed;
    }
    return rows;
}

}  // namespace varnholt
