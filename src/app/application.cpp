// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/application.h"

#include "basis/file_system.h"
#include "catalogue/editor/install.h"
#include "design/install.h"
#include "loads/install.h"
#include "loads/links.h"
#include "persistence/project_commands.h"
#include "reports/install.h"
#include "tools/install.h"

namespace varnholt {

Application::Application(Platform& platform, const Setup& setup, const Engines& engines)
    : pages_(engines.pages != nullptr ? *engines.pages : readPages_) {
    language_.LoadSatellite(joinPath(setup.resourceFolder, "language"), setup.localeNumber);
    reports_ = std::make_unique<ReportShelf>(joinPath(setup.programFolder, "Data/vht.db"));
    reports_->dayIsGiven = setup.dayIsGiven;
    main_ = std::make_unique<Varnmain>(platform, language_, setup.programFolder);
    installTools(*main_);
    HelpEngine& help = engines.help != nullptr ? *engines.help : unseenHelp_;
    tools_ = std::make_unique<ReferenceTools>(*main_, pages_, help);
    installLoads(*main_);
    installLinks(*main_);
    installPumpEditor(*main_, [this] { refreshPumpLists(*main_); });
    installDesign(*main_);
    installPersistence(*main_);
    installReports(*main_, *reports_);
}

}  // namespace varnholt
