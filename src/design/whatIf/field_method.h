// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>

#include "design/whatIf/case_method.h"
#include "design/whatIf/field_case.h"

namespace varnholt {

/// What the method by g-functions takes from the second opinion's window.
struct OpinionSettings {
    SecondOpinionInputs window;
    std::optional<ByMode<MonthlyLoads>> imported;
};

/// Cases by the g-functions of the field.
class FieldMethod : public CaseMethod {
 public:
    /// @param memory  outlives the method
    FieldMethod(OpinionSettings settings, FieldMemory& memory)
        : settings_(std::move(settings)), memory_(memory) {}

    std::optional<CaseFigures> figures(const MeasuredDesign& design,
                                       const CaseFactors& factors) override;
    void computeMore() override;
    std::size_t casesPerSlice() const override { return 16; }
    Reason reasonAgainst(const MeasuredDesign& design) override;
    Reason reasonOf(const MeasuredDesign& design, Mode mode) override;

 private:
    struct Opened;
    Opened& open(const BoreholeInputs& design);

    OpinionSettings settings_;
    FieldMemory& memory_;
    std::shared_ptr<Opened> opened_;
    std::shared_ptr<GTable> waitsFor_;
};

/// The need of any field of one design, in slices.
class FieldSizer {
 public:
    FieldSizer(OpinionSettings settings, const BoreholeInputs& design);

    /// ft, however deep the bores would have to be; noLength where there is none. None while a
    /// g-function is missing: asked again, it works on that for some milliseconds.
    /// @param separation  of the bores, at the least, ft
    /// @param startDepth  a guess, ft
    std::optional<double> need(const std::vector<secondOpinion::BorePosition>& bores,
                               double separation, double startDepth);

 private:
    OpinionSettings settings_;
    BoreholeInputs design_;
    PreparedField field_;
    std::unique_ptr<GTable> table_;
};

}  // namespace varnholt
