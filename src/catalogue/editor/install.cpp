// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/install.h"

#include <memory>
#include <utility>

#include "catalogue/editor/frmHPEdit.h"
#include "frame/varnmain.h"

namespace varnholt {

void installPumpEditor(Varnmain& main, std::function<void()> catalogueWritten) {
    main.setCommand("EditAdd", CommandNeeds::nothing,
                    [&main, written = std::move(catalogueWritten)] {
                        if (ChildWindow* open = main.find("frmHPEdit"))
                            main.activate(*open);
                        else
                            main.open(std::make_unique<frmHPEdit>(main, written));
                    });
}

}  // namespace varnholt
