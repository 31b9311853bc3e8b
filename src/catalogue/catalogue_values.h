// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "catalogue/pump_catalogue.h"
#include "forms/values.h"

namespace varnholt {

/// Registers a window's catalogue among its public values: `vhtMfgCount`, `vhtTotalSeriesCount`,
/// `activeSeries`, "size(0)" the models of slot 0, every member of "PumpList(0,2)", the third model
/// of slot 0, and of "vhtPumpNames(1)", the second manufacturer of the index. Members and tables
/// are named as in `pump` and `PumpList`: "PumpList(0,2).ewt(3).flowRate(1).HeatMode(0).capacity",
/// "PumpList(0,2).coefficients.watts(1,0)", "vhtPumpNames(1).seriesInfo(0).FileName". In English
/// units. The catalogue must outlive the values.
void addCatalogueValues(Values& values, const PumpCatalogue& catalogue);

/// The parts of them that others have too: "vhtMfgCount" and "vhtPumpNames(1)" of an index, and
/// "PumpList(...)" of models that are found by so many indices.
void addIndexValues(Values& values,
                    const std::function<const std::vector<varnholt::PumpList>&()>& index);
void addModelValues(Values& values, std::size_t indices,
                    const std::function<const pump&(const Values::Indices&)>& find);

}  // namespace varnholt
