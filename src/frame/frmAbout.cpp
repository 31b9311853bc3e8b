// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmAbout.h"

#include <string>

#include "basis/file_system.h"
#include "forms/text_numbers/files.h"
#include "forms/text_numbers/main.h"
#include "frame/program_version.h"

namespace varnholt {

frmAbout::frmAbout(Platform& platform, const Texts& texts) : Form("frmAbout", platform, texts) {
    setCaption(text(Text::aboutTitle));
    add("lblTitle", ControlKind::label, Text::programTitle).setBold(true);
    add("lblVersion", ControlKind::label).setCaption(text(Text::version) + " " + programVersion);
    add("lblDescription", ControlKind::label, Text::programDescription);
    add("cmdOK", ControlKind::button, Text::ok);
    add("cmdSysInfo", ControlKind::button, Text::systemInformation);
    onClick("cmdOK", [this] { cmdOK_Click(); });
    onClick("cmdSysInfo", [this] { cmdSysInfo_Click(); });
}

/// Starts the platform's tool for system information where one is registered.
void frmAbout::StartSysInfo() {
    std::optional<std::string> tool =
        platform().GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
    if (!tool) {
        const std::optional<std::string> folder =
            platform().GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
        if (folder && fileExists(*folder + "\\MSINFO32.EXE")) tool = *folder + "\\MSINFO32.EXE";
    }
    if (tool)
        platform().openOutside(*tool);
    else
        show(MessageIcon::plain, text(Text::systemInformationUnavailable));
}

}  // namespace varnholt
