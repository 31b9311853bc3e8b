// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace varnholt {

/// The port to the display texts and pictures of the user's language.
class Texts {
 public:
    virtual ~Texts() = default;

    /// Display text by its number; empty when the language lacks it.
    virtual std::string text(int number) const = 0;
    /// The file of a picture by its number; empty when the language lacks it.
    virtual std::string picture(int number) const = 0;
};

}  // namespace varnholt
