// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/layout_run.h"

#include <memory>

#include "design/whatIf/field_method.h"
#include "design/whatIf/what_if_values.h"

namespace varnholt {

LayoutSearch layoutSearchOf(const WhatIfCase& theCase) {
    const WhatIfInputs inputs = withinLimits(theCase.inputs);
    const auto sizer = std::make_shared<FieldSizer>(
        OpinionSettings{theCase.secondOpinion, theCase.imported}, theCase.design);
    const auto byGFunctions = [sizer](const std::vector<Point>& bores, const LatticeField& field,
                                      double startDepth) {
        std::vector<secondOpinion::BorePosition> places;
        places.reserve(bores.size());
        for (const Point& bore : bores) places.push_back({bore.x, bore.y});
        return sizer->need(places, field.separation, startDepth);
    };
    return LayoutSearch({theCase.design, inputs.land, inputs.layout, inputs.prices,
                         static_cast<WhatIfMeasure>(inputs.measure)},
                        byGFunctions);
}

}  // namespace varnholt
