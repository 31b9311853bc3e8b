// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/chart_module.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace varnholt {

ChartModule* findChartModule() {
    const QString program = QCoreApplication::applicationDirPath();
    for (const char* folder : {"/", "/../lib/varnholt/modules/"}) {
        QPluginLoader loader(program + QLatin1String(folder) + QLatin1String("varnholt_charts"));
        if (auto* module = qobject_cast<ChartModule*>(loader.instance())) return module;
    }
    return nullptr;
}

}  // namespace varnholt
