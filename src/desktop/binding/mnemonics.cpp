// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/mnemonics.h"

#include <QSet>

#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

/// Where the key is marked, -1 for nowhere.
qsizetype keyOf(const QString& caption, const QSet<QChar>& taken) {
    for (const bool startsOnly : {true, false})
        for (qsizetype i = 0; i < caption.size(); ++i) {
            const bool starts = i == 0 || !caption[i - 1].isLetterOrNumber();
            const QChar letter = caption[i].toLower();
            if (letter.isLetterOrNumber() && (starts || !startsOnly) && !taken.contains(letter))
                return i;
        }
    return -1;
}

QString escaped(const QString& text) {
    QString shown = text;
    return shown.replace(u'&', QStringLiteral("&&"));
}

}  // namespace

std::vector<QString> withMnemonics(const std::vector<std::string>& captions) {
    QSet<QChar> taken;
    std::vector<QString> marked;
    for (const std::string& text : captions) {
        const QString caption = qt(text);
        const qsizetype at = keyOf(caption, taken);
        if (at >= 0) taken.insert(caption[at].toLower());
        marked.push_back(withMark(caption, at));
    }
    return marked;
}

QString withMark(const QString& caption, qsizetype at) {
    if (at < 0) return escaped(caption);
    return escaped(caption.left(at)) + u'&' + escaped(caption.mid(at));
}

std::string withoutMnemonic(const QString& text) {
    QString caption;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&') ++i;
        if (i < text.size()) caption += text[i];
    }
    return plain(caption);
}

}  // namespace varnholt
