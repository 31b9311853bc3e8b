// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>
#include <string>

#include "basis/date.h"

namespace varnholt {

/// Every character stays, also a byte order mark at the beginning, which the toolkit would drop.
QString qt(const std::string& text);
inline std::string plain(const QString& text) { return text.toStdString(); }
inline QDate qt(const Date& date) { return {date.year, date.month, date.day}; }
inline Date plain(const QDate& date) { return {date.year(), date.month(), date.day()}; }

/// A text of several lines as the toolkit's documents hold it: characters that would end a
/// paragraph there, though they end no line of the text, are told by stand-ins.
QString documentText(const std::string& text);
/// The text again, its lines ending in CR LF, of a document's raw text.
std::string textOfDocument(const QString& raw);

/// A caption as buttons and menus want it: an ampersand is drawn as one. Only a caption that
/// itself marks its key, an ampersand before the first letter of a word, keeps the mark.
QString buttonCaption(const std::string& caption);
/// The caption again, of a button's text.
std::string captionOfButton(const QString& text);

}  // namespace varnholt
