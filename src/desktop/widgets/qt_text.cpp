// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr QChar byteOrderMark(0xFEFF);

/// A character that would end a paragraph of a document, with its stand-in among those that
/// Unicode leaves to private use and no font draws.
struct StandIn {
    QChar character;
    char32_t shown;
};
constexpr StandIn standIns[] = {
    {QChar(0x2029), 0x10F029}, {QChar(0xFDD0), 0x10F0D0}, {QChar(0xFDD1), 0x10F0D1}};

bool marksKey(const QString& text, qsizetype at) {
    const bool wordStarts = at == 0 || text[at - 1].isSpace();
    return wordStarts && at + 1 < text.size() && text[at + 1].isLetterOrNumber();
}

}  // namespace

QString qt(const std::string& text) {
    QString shown = QString::fromStdString(text);
    if (text.starts_with("\xEF\xBB\xBF")) shown.prepend(byteOrderMark);
    return shown;
}

QString documentText(const std::string& text) {
    QString shown = qt(text);
    for (const StandIn& each : standIns)
        shown.replace(QString(each.character), QString::fromUcs4(&each.shown, 1));
    return shown;
}

std::string textOfDocument(const QString& raw) {
    QString text = raw;
    text.replace(QChar::ParagraphSeparator, QLatin1String("\r\n"));
    for (const StandIn& each : standIns)
        text.replace(QString::fromUcs4(&each.shown, 1), QString(each.character));
    return plain(text);
}

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
