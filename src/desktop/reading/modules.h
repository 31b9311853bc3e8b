// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QPluginLoader>

namespace varnholt {

/// The library of the program of that name which implements the interface; null where it is
/// missing.
template <class Module>
Module* findModule(const char* name) {
    const QString program = QCoreApplication::applicationDirPath();
    for (const char* folder : {"/", "/../lib/varnholt/modules/"}) {
        QPluginLoader loader(program + QLatin1String(folder) + QLatin1String(name));
        if (auto* module = qobject_cast<Module*>(loader.instance())) return module;
    }
    return nullptr;
}

}  // namespace varnholt
