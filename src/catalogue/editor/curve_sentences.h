// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "catalogue/editor/editor_pictures.h"
#include "forms/texts.h"

namespace varnholt {

/// What the curves of a pump show, in sentences: how well each meets its points, that it is older
/// than they are, or what it gives where the pump is tried.
std::string describe(const FitCurvesPicture& picture, const Texts& texts);

}  // namespace varnholt
