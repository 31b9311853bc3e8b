// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>

#include "design/whatIf/reason.h"
#include "design/whatIf/settled_length.h"

namespace varnholt {

/// A design whose cases are asked for.
struct MeasuredDesign {
    const RolledZones& zones;
    const BoreholeInputs& inputs;
    double drawnLength = 0;  ///< of all bores, for the entering water, ft
    /// Depth about which the cases lie, ft; 0 while it is not known.
    double about = 0;
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
    virtual void computeMore() = 0;
    /// Cases that take about a millisecond.
    virtual std::size_t casesPerSlice() const = 0;
    /// What stands against the method for a design that the other method may well measure.
    virtual Reason reasonAgainst(const MeasuredDesign& design) = 0;
    /// Why a loaded mode of the design has no length, where its limit is on the right side.
    virtual Reason reasonOf(const MeasuredDesign& design, Mode mode) = 0;
};

/// Cases by the length equation and its penalty.
class ClassicalMethod : public CaseMethod {
 public:
    std::optional<CaseFigures> figures(const MeasuredDesign& design,
                                       const CaseFactors& factors) override;
    void computeMore() override {}
    std::size_t casesPerSlice() const override { return std::size_t{1} << 11; }
    Reason reasonAgainst(const MeasuredDesign&) override { return {}; }
    Reason reasonOf(const MeasuredDesign& design, Mode mode) override;
};

/// The figures of a case that could not be computed.
CaseFigures figuresWithoutLength();

/// Classical need of a design over its bores, as a first guess of a depth, ft; 250 without one.
double guessedDepth(const RolledZones& zones, const BoreholeInputs& design);

}  // namespace varnholt
