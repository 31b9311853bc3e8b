// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/fitting/pump_fit.h"
#include "desktop/binding/binder.h"

namespace varnholt {

// The pages of a pump in the heat pump editor.

QWidget* pumpDetailsPage(Binder& bind);
QWidget* ratingPageOf(Binder& bind, Mode mode);
QWidget* correctionPageOf(Binder& bind, CorrectionKind kind);
QWidget* pumpTestPage(Binder& bind);

}  // namespace varnholt
