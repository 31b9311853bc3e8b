// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace varnholt {

/// The title of a block that stands behind the body of a project's file.
struct BlockTitle {
    std::string_view name;  ///< of the block, whatever its version
    std::string_view line;  ///< the title as it is written, with the version

    /// Whether the text begins with a title of the block, of whatever version, or with what a cut
    /// has left of one.
    constexpr bool begins(std::string_view text) const {
        const std::string_view first = text.substr(0, text.find_first_of("\r\n"));
        return first.starts_with(name) || (!first.empty() && line.starts_with(first));
    }
};

}  // namespace varnholt
