// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

#include "design/frmBHDesign.h"
#include "design/frmHZDesign.h"
#include "design/frmSWDesign.h"

namespace varnholt {

/// Puts a project into the window as a file would, with some values of it changed.
template <class Window>
void change(Window& design, const std::function<void(typename Window::Project&)>& change) {
    typename Window::Project project = design.project();
    change(project);
    design.setProject(std::move(project));
}

}  // namespace varnholt
