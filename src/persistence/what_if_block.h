// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/line_file.h"
#include "design/whatIf/what_if_inputs.h"

namespace varnholt {

// The inputs of What If stand behind those of the second opinion, under a title of their own: a
// line a value that differs from its default, by its name, then the corners of the land, the no-go
// areas and the alternatives that were kept, and a line that ends them. Where all is as built in
// there is nothing, and a program that does not know the block reads on past it.

/// Writes the block, or nothing.
void describeWhatIf(LineFileWriter& file, const WhatIfInputs& values);

/// Reads the block whole, or leaves the file before it with the defaults in the values: where there
/// is none, where it is of a newer version, cut, or holds what is no value of it. The file then
/// names the block as unread, as far as its title can be told. Lines whose names are unknown are
/// kept, and written again.
///
/// Lines that stand before its title and that nobody has read, such as a block of the second
/// opinion that is damaged, are passed over. Where no unread part begins with them, the file notes
/// them as left over.
void describeWhatIf(LineFileReader& file, WhatIfInputs& values);

}  // namespace varnholt
