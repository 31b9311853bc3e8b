// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/case_method.h"

#include "basis/run_time_error.h"

namespace varnholt {

CaseFigures figuresWithoutLength() { return {{noLength, noLength}, {}}; }

std::optional<CaseFigures> ClassicalMethod::figures(const MeasuredDesign& design,
                                                    const CaseFactors& factors) {
    try {
        return classicalFigures(design.zones, design.inputs, factors, design.drawnLength);
    } catch (const RunTimeError&) {
        return figuresWithoutLength();
    }
}

}  // namespace varnholt
