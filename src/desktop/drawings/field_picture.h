// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/field_plan.h"
#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// The field of bores from above. A bore's mark tells how many neighbours it has, by form and by
/// tone: the more neighbours, the darker. Where bores lie too close to be told apart, their classes
/// are shown as areas.
void paintField(const Canvas& canvas, const FieldPlan& field, const Texts& texts);

}  // namespace varnholt
