// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QPluginLoader>

namespace varnholt {

/// Folders that may hold a library of the program, the nearest first, each with its slash: beside
/// the program as it is built, in the folder of its modules as it is installed.
inline QStringList moduleFolders() {
    const QString program = QCoreApplication::applicationDirPath();
    return {program + QLatin1String("/"), program + QLatin1String("/../lib/varnholt/modules/")};
}

/// The library of the program of that name which implements the interface; null where it is
/// missing.
template <class Module>
Module* findModule(const char* name) {
    for (const QString& folder : moduleFolders()) {
        QPluginLoader loader(folder + QLatin1String(name));
        if (auto* module = qobject_cast<Module*>(loader.instance())) return module;
    }
    return nullptr;
}

}  // namespace varnholt
