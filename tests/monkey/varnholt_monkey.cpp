// SPDX-License-Identifier: GPL-3.0-or-later
// The random user of the forms, without a screen.
#include <sstream>

#include "app/application.h"
#include "monkey/monkey.h"
#include "monkey/session.h"
#include "script/form_driver.h"
#include "tools/program_folder.h"

namespace varnholt {
namespace {

Played playForms(const SessionToPlay& session) {
    std::ostringstream unheard;
    Transcript transcript(unheard);
    MonkeyPlatform platform(transcript, session.programFolder, session.dice, session.log);
    Application application(platform,
                            {session.programFolder, installedFiles().resources, session.locale});
    application.start();
    FormDriver driver(application.main());
    Monkey monkey(application.main(), platform, driver, session.dice, session.log);
    while (monkey.running() && monkey.presses() < session.presses) {
        monkey.press();
        unheard.str("");
    }
    return {monkey.presses(), monkey.stepsProved()};
}

}  // namespace
}  // namespace varnholt

int main(int count, char** arguments) {
    return varnholt::playAsAsked("varnholt-monkey", {arguments + 1, arguments + count},
                                 varnholt::playForms);
}
