// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/simulation_dialog.h"

#include "basis/file_system.h"
#include "forms/text_numbers/import.h"
#include "forms/text_numbers/main.h"
#include "frame/varnmain.h"

namespace varnholt {

FileDialog simulationDialog(const Varnmain& main) {
    return {.title = main.text(Text::openSimulationTitle),
            .folder = joinPath(main.MainDirectory, "zones"),
            .proposedName = {},
            .filter = main.text(Text::simulationFileFilter)};
}

void tellNoSimulation(const Varnmain& main, const std::string& path) {
    main.platform().message(MessageIcon::plain, main.text(Text::programTitle),
                            filledIn(main.text(Text::noSimulationFile), {fileNameOf(path)}));
}

}  // namespace varnholt
