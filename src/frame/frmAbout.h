// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/form.h"

namespace varnholt {

/// The modal box about the program.
class frmAbout : public Form {
 public:
    frmAbout(Platform& platform, const Texts& texts);

 private:
    void cmdOK_Click() { endModal(); }
    void cmdSysInfo_Click() { StartSysInfo(); }
    void StartSysInfo();
};

}  // namespace varnholt
