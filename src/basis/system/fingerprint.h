// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace varnholt {

/// A number of 64 bits that goes with the bytes: other bytes have another one, but for chance. It
/// finds accidents, not forgeries. Source: the FNV-1a hash of Fowler, Noll and Vo (RFC 9923).
/// @param before  the number of what stands before these bytes; of nothing by default
constexpr std::uint64_t fingerprint(std::string_view bytes,
                                    std::uint64_t before = 0xcbf29ce484222325) {
    constexpr std::uint64_t prime = 0x100000001b3;
    std::uint64_t hash = before;
    for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * prime;
    return hash;
}

}  // namespace varnholt
