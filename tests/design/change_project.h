// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

#include "design/frmBHDesign.h"

namespace varnholt {

/// Puts a project into the window as a file would, with some values of it changed.
inline void change(frmBHDesign& design, const std::function<void(BoreholeProject&)>& change) {
    BoreholeProject project = design.project();
    change(project);
    design.setProject(std::move(project));
}

}  // namespace varnholt
