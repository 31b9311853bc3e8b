// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace varnholt {

/// One thing that a person must know of a window and that no box may say.
struct Notice {
    std::string text;
    std::string action{};  ///< caption of what can be done about it; empty for nothing
    std::function<void()> act{};
};

}  // namespace varnholt
