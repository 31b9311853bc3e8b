// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "reports/report_definition.h"

namespace varnholt {

// Texts of project reports that follow a rule of their own.

/// "50% Methanol"
std::string fluidOf(const FillContext& context);
/// Wall of the pipe and flow in it: "SDR 11 - Turbulent".
std::string flowTypeOf(const FillContext& context);
/// The size of a straight pipe with its flow: `1" (25 mm) - Turbulent`.
std::string pipeSizeWithFlowOf(const FillContext& context);
/// Captions of the chosen options.
std::string configurationOf(const FillContext& context);
std::string placementOf(const FillContext& context);
std::string loopStyleOf(const FillContext& context);
/// "6 x 4"
std::string arrangementOf(const FillContext& context);
/// The ground's temperature at the end of the prediction time, as the window's ground temperature
/// is shown: the undisturbed temperature and the penalty of the last run.
std::string longTermCoolingOf(const FillContext& context);
std::string longTermHeatingOf(const FillContext& context);

// Of the linked loads window; empty without a link.
std::string manufacturerOf(const FillContext& context);
std::string seriesOf(const FillContext& context);
std::string airCoolingOf(const FillContext& context);
std::string airHeatingOf(const FillContext& context);
std::string waterCoolingOf(const FillContext& context);
std::string waterHeatingOf(const FillContext& context);

std::string loadsFileOf(const FillContext& context);
/// "Input Parameters (Cont.)"
std::string inputParametersContOf(const FillContext& context);

}  // namespace varnholt
