// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/line_file.h"
#include "design/secondOpinion/second_opinion_inputs.h"

namespace varnholt {

// The second opinion's inputs stand behind the body of a borehole design's file, under a title of
// their own, and only where one of them differs from its default. So a project that never had a
// second opinion is written as it always was, and a program that does not know the block reads on
// past it.

/// Writes the block, or nothing.
void describeSecondOpinion(LineFileWriter& file, const SecondOpinionInputs& values);

/// Reads the block whole, or leaves the file before it with the defaults in the values: where there
/// is none, where it is of a newer version, cut, or holds what is no value of it. The file then
/// names the block as unread, as far as its title can be told. What stands behind it is not harmed:
/// it is found by a title of its own.
void describeSecondOpinion(LineFileReader& file, SecondOpinionInputs& values);

}  // namespace varnholt
