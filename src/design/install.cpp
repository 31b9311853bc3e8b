// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/install.h"

#include <memory>
#include <utility>

#include "design/frmBHDesign.h"
#include "design/frmHZDesign.h"
#include "design/frmSWDesign.h"

namespace varnholt {

namespace {

template <class Window>
Window* openNew(Varnmain& main, DesignKind kind,
                const std::function<DesignFiles(Window&)>& filesOf = {}) {
    const std::int16_t slot = main.takeSlot(kind);
    if (slot == 0) return nullptr;
    auto window = std::make_unique<Window>(main, slot);
    Window* design = window.get();
    if (filesOf) design->files = filesOf(*design);
    main.open(std::move(window));
    return main.isOpen(design) ? design : nullptr;
}

}  // namespace

frmBHDesign* newBorehole(Varnmain& main, const std::function<DesignFiles(frmBHDesign&)>& filesOf) {
    return openNew(main, DesignKind::borehole, filesOf);
}

frmHZDesign* newHorizontal(Varnmain& main) {
    return openNew<frmHZDesign>(main, DesignKind::horizontal);
}

frmSWDesign* newSurfaceWater(Varnmain& main) {
    return openNew<frmSWDesign>(main, DesignKind::surfaceWater);
}

void installDesign(Varnmain& main) {
    main.setCommand("NewBorehole", CommandNeeds::nothing, [&main] { newBorehole(main); });
    main.setCommand("NewHorizontal", CommandNeeds::nothing, [&main] { newHorizontal(main); });
    main.setCommand("NewSurfaceWater", CommandNeeds::nothing, [&main] { newSurfaceWater(main); });
}

}  // namespace varnholt
