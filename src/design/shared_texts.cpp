// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/shared_texts.h"

namespace varnholt {

void appendSentence(std::string& sentences, const std::string& sentence) {
    if (sentence.empty()) return;
    if (!sentences.empty()) sentences += ' ';
    sentences += sentence;
}

}  // namespace varnholt
