// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "design/whatIf/settled_length.h"

namespace varnholt {

/// A design whose cases are asked for.
struct MeasuredDesign {
    const RolledZones& zones;
    const BoreholeInputs& inputs;
    double drawnLength = 0;  ///< of all bores, for the entering water, ft
};

/// One of the methods by which cases are measured.
class CaseMethod {
 public:
    CaseMethod() = default;
    CaseMethod(const CaseMethod&) = delete;
    CaseMethod& operator=(const CaseMethod&) = delete;
    virtual ~CaseMethod() = default;

    /// A case; none while something has to be computed first, by computeMore. It never throws for
    /// the sake of the numbers: a case that cannot be computed has no length.
    virtual std::optional<CaseFigures> figures(const MeasuredDesign& design,
                                               const CaseFactors& factors) = 0;
    /// Works on what is missing for some milliseconds at most.
    virtual void computeMore() {}
    /// Cases that take about a millisecond.
    virtual std::size_t casesPerSlice() const = 0;
};

class ClassicalMethod : public CaseMethod {
 public:
    std::optional<CaseFigures> figures(const MeasuredDesign& design,
                                       const CaseFactors& factors) override;
    std::size_t casesPerSlice() const override { return std::size_t{1} << 11; }
};

/// The figures of a case that could not be computed.
CaseFigures figuresWithoutLength();

}  // namespace varnholt
