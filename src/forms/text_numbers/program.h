// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/0100_program.txt.
namespace varnholt::Text {

// The whole program.
constexpr int makerAddress = 108;

}  // namespace varnholt::Text
