// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/case_method.h"

#include "basis/run_time_error.h"
#include "forms/text_numbers/what_if.h"

namespace varnholt {

CaseFigures figuresWithoutLength() { return {{noLength, noLength}, {}, false}; }

std::optional<CaseFigures> ClassicalMethod::figures(const MeasuredDesign& design,
                                                    const CaseFactors& factors) {
    try {
        return classicalFigures(design.zones, design.inputs, factors, design.drawnLength);
    } catch (const RunTimeError&) {
        return figuresWithoutLength();
    }
}

Reason ClassicalMethod::reasonOf(const MeasuredDesign&, Mode) {
    return {Text::whatIfNotComputable, {}};
}

double guessedDepth(const RolledZones& zones, const BoreholeInputs& design) {
    constexpr double usual = 250;  // ft
    const CaseFigures figures = *ClassicalMethod().figures({zones, design, 0, 0}, {});
    const auto& [rows, columns] = design.arrangement.patternRows;
    return figures.hasNeed() && figures.need() > 0 ? figures.need() / (rows * columns) : usual;
}

}  // namespace varnholt
