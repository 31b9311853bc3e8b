// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "frame/varnmain.h"

namespace varnholt {

/// Of some kinds of windows there is one at most: a second command brings it to the front.
template <class Window>
Window& openOnce(Varnmain& main, const std::string& formName) {
    ChildWindow* open = main.find(formName);
    if (open == nullptr) {
        auto window = std::make_unique<Window>(main);
        open = window.get();
        main.open(std::move(window));
    } else {
        main.activate(*open);
    }
    return static_cast<Window&>(*open);
}

}  // namespace varnholt
