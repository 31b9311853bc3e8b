// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/install.h"

#include <memory>
#include <utility>

#include "design/frmBHDesign.h"

namespace varnholt {

frmBHDesign* newBorehole(Varnmain& main, const std::function<DesignFiles(frmBHDesign&)>& filesOf) {
    const std::int16_t slot = main.takeSlot(DesignKind::borehole);
    if (slot == 0) return nullptr;
    auto window = std::make_unique<frmBHDesign>(main, slot);
    frmBHDesign* design = window.get();
    if (filesOf) design->files = filesOf(*design);
    main.open(std::move(window));
    return main.isOpen(design) ? design : nullptr;
}

void installDesign(Varnmain& main) {
    main.setCommand("NewBorehole", CommandNeeds::nothing, [&main] { newBorehole(main); });
}

}  // namespace varnholt
