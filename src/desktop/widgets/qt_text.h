// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>
#include <string>

#include "basis/date.h"

namespace varnholt {

inline QString qt(const std::string& text) { return QString::fromStdString(text); }
inline std::string plain(const QString& text) { return text.toStdString(); }
inline QDate qt(const Date& date) { return {date.year, date.month, date.day}; }
inline Date plain(const QDate& date) { return {date.year(), date.month(), date.day()}; }

/// A caption as buttons and menus want it: an ampersand is drawn as one. Only a caption that
/// itself marks its key, an ampersand before the first letter of a word, keeps the mark.
QString buttonCaption(const std::string& caption);
/// The caption again, of a button's text.
std::string captionOfButton(const QString& text);

}  // namespace varnholt
