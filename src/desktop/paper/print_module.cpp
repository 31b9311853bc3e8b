// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/print_module.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace varnholt {

PrintModule* findPrintModule() {
    const QString program = QCoreApplication::applicationDirPath();
    for (const char* folder : {"/", "/../lib/varnholt/modules/"}) {
        QPluginLoader loader(program + QLatin1String(folder) + QLatin1String("varnholt_printing"));
        if (auto* module = qobject_cast<PrintModule*>(loader.instance())) return module;
    }
    return nullptr;
}

}  // namespace varnholt
