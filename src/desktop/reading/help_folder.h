// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileInfo>
#include <QUrl>

namespace varnholt {

/// Whether an address is that of a file of the help, wherever links of the file system lead.
/// @param folder  the help's folder in its canonical form; empty where there is none
inline bool isOfHelp(const QUrl& address, const QString& folder) {
    const QString path = QFileInfo(address.toLocalFile()).canonicalFilePath();
    return !folder.isEmpty() && path.startsWith(folder + u'/');
}

/// The scheme of the buttons by which pages of the help open an example: "example:school.vht".
constexpr QLatin1String exampleScheme("example");

}  // namespace varnholt
