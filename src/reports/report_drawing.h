// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <variant>

#include "basis/mode.h"
#include "design/bore_drawing.h"
#include "design/circuit_plan.h"
#include "design/field_plan.h"
#include "design/trench_drawing.h"
#include "design/trench_plan.h"
#include "loads/modLoads/loads_pictures.h"

namespace varnholt {

/// The loads of a building's day, with the words around them.
struct DayDrawing {
    LoadsChart chart;
    std::array<std::string, timeBlocks> blocks;  ///< "8-12", ...
    ByMode<std::string> modeWords;
    std::string unit;
};

/// A picture of a report, described and not yet painted: on paper and screen it is painted by the
/// code that paints the windows' pictures, in a page of the web from its shapes.
struct ReportDrawing {
    std::variant<BoreDrawing, FieldPlan, TrenchDrawing, TrenchPlan, CircuitPlan, DayDrawing> what;
    std::string title;
};

}  // namespace varnholt
