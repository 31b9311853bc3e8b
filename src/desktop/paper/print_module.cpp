// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/print_module.h"

#include "desktop/widgets/modules.h"

namespace varnholt {

PrintModule* findPrintModule() { return findModule<PrintModule>("varnholt_printing"); }

}  // namespace varnholt
