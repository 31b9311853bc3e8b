// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "basis/pasted_block.h"
#include "forms/form.h"

namespace varnholt {

/// Which cell of a pasted block goes into which field.
struct PastedPlaces {
    std::vector<Form::TypedCell> cells;
    int beyond = 0;  ///< cells with something in them that have no field
};

/// Lays a block over rows of fields, from one field on down and across. Nothing when the field is
/// none of them.
std::optional<PastedPlaces> placesOf(const std::vector<std::vector<std::string>>& rows,
                                     const std::string& field, const PastedBlock& block);

/// What came of it, in a line.
std::string toldOf(const Form& form, const Form::FilledCells& filled, int beyond);

}  // namespace varnholt
