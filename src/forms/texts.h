// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
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

/// The text with what belongs in its places %1, %2, ... in their order.
std::string filledIn(const std::string& text, std::initializer_list<std::string> parts);
/// A caption as words in a sentence: without the colon and the blanks at its end.
std::string captionWords(std::string caption);
/// The unit that a label tells, as words in a sentence: over a column it stands in parentheses, as
/// in "( kWh )".
std::string unitWords(const std::string& caption);

}  // namespace varnholt
