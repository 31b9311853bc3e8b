// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "loads/modLoads/zone_window.h"

namespace varnholt {

/// The Average Block window: the whole building as one block with one representative pump.
class frmAvgBlock : public ZoneWindow {
 public:
    explicit frmAvgBlock(Varnmain& main);

    void LOUpdatePumpsCommand_Click() override;

 protected:
    MiniPump evaluated(const pump& model, std::int16_t units, const Zone& zone) const override;
    std::string zoneFrameCaption(const Zone& zone) const override;
};

}  // namespace varnholt
