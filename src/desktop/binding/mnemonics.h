// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string>
#include <vector>

namespace varnholt {

/// The captions of one menu with a key marked in each, no key twice: the first letter of a word
/// where it is still free, else any letter. A caption without a free letter stays unmarked.
std::vector<QString> withMnemonics(const std::vector<std::string>& captions);

/// The caption with the key marked at a place of it; -1 marks none.
QString withMark(const QString& caption, qsizetype at);

/// The caption again, of a marked text.
std::string withoutMnemonic(const QString& text);

}  // namespace varnholt
