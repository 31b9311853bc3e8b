// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/help_places.h"

#include <QCryptographicHash>
#include <QStandardPaths>

#include "basis/file_system.h"
#include "desktop/reading/page_browser.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/windows/main_window.h"

namespace varnholt {
namespace {

/// Where what the help's engine makes for itself is kept: a folder a program folder, since each has
/// a help file of its own.
std::string helpCacheFolder(const std::string& programFolder) {
    const QByteArray name =
        QCryptographicHash::hash(QByteArray::fromStdString(programFolder), QCryptographicHash::Sha1)
            .toHex()
            .left(12);
    return plain(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                 QStringLiteral("/help-") + QString::fromLatin1(name));
}

}  // namespace

HelpPlaces helpPlacesOf(Application& program, MainWindow& window) {
    const std::string folder = program.main().MainDirectory;
    HelpPlaces places;
    places.texts = &program.texts();
    places.newDisplay = [](QWidget* parent) { return new PageBrowser(parent); };
    places.icon = houseIcon;
    places.cacheFolder = helpCacheFolder(folder);
    places.openExample = [folder, &window](const std::string& file) {
        // A page names a file of the program's folder and no other.
        const std::string name = fileNameOf(file);
        const char* place = name.ends_with(".zon") ? "zones" : "work files";
        window.openFiles({joinPath(joinPath(folder, place), name)});
        window.activateWindow();
    };
    places.showPage = [&program, &window](const std::string& path) {
        window.guarded([&] { program.browse(path); });
    };
    return places;
}

}  // namespace varnholt
