// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/ground_design.h"
#include "reports/printing_facts.h"
#include "reports/project_report_definition.h"
#include "reports/report.h"

namespace varnholt {

/// The report of a design window as it stands: its captions, figures, units and rounding, results
/// that are out of date included. Nothing is computed anew but two temperatures of the ground.
/// @throws RunTimeError
Report FillProjectReport(const ProjectReportDefinition& definition, const GroundDesign& window,
                         const PrintingFacts& facts);

}  // namespace varnholt
