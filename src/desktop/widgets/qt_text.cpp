// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

bool marksKey(const QString& text, qsizetype at) {
    const bool wordStarts = at == 0 || text[at - 1].isSpace();
    return wordStarts && at + 1 < text.size() && text[at + 1].isLetterOrNumber();
}

}  // namespace

QString buttonCaption(const std::string& caption) {
    const QString text = qt(caption);
    QString shown;
    for (qsizetype i = 0; i < text.size(); ++i) {
        shown += text[i];
        if (text[i] == u'&' && !marksKey(text, i)) shown += u'&';
    }
    return shown;
}

std::string captionOfButton(const QString& text) {
    QString caption = text;
    return plain(caption.replace(QLatin1String("&&"), QLatin1String("&")));
}

}  // namespace varnholt
