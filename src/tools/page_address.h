// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace varnholt {

/// Where an address leads.
struct PageAddress {
    enum class Kind {
        none,     ///< nowhere: it is empty
        local,    ///< a file of this computer
        web,      ///< http or https
        refused,  ///< any other scheme, such as javascript or data
    };

    Kind kind = Kind::none;
    std::string file;      ///< of a local one, the path from the root without "." and ".."
    std::string fragment;  ///< of a local one, the place in the page, without "#"
    std::string url;       ///< of a web one, the whole address

    /// How the address list shows it.
    std::string shown() const;
};

/// Reads an address as it is typed, pasted or linked: a path, blanks and quotes and all, a file: or
/// web address, or a bare host name.
/// @param base  path of the page on show, from whose folder relative paths count; may be empty
PageAddress pageAddressOf(const std::string& typed, const std::string& base);

/// Text of a page with its characters written out and its blanks joined, none at its ends.
std::string plainTextOf(const std::string& html);

/// The title of a page, its blanks joined and its characters written out; empty when it has none.
std::string titleOf(const std::string& page);

}  // namespace varnholt
