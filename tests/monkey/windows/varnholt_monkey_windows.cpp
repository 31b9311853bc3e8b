// SPDX-License-Identifier: GPL-3.0-or-later
// The random user of the real windows: every press goes through the widgets.
#include <QApplication>
#include <QTimer>
#include <sstream>

#include "app/application.h"
#include "desktop/binding/widget_driver.h"
#include "desktop/reading/desktop_help.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/theme.h"
#include "desktop/windows/desktop_pages.h"
#include "desktop/windows/help_places.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/program.h"
#include "desktop/windows/window_shelf.h"
#include "forms/text_numbers/language.h"
#include "monkey/monkey.h"
#include "monkey/session.h"
#include "tools/program_folder.h"

namespace varnholt {
namespace {

Played playWindows(const SessionToPlay& session) {
    std::ostringstream unheard;
    Transcript transcript(unheard);
    WindowShelf shelf(true);
    MonkeyPlatform platform(transcript, session.programFolder, session.dice, session.log);
    DesktopPages pages("text");
    DesktopHelp help;
    help.setQuiet();
    Application application(
        platform, {session.programFolder, installedFiles().resources, session.locale, true},
        {&pages, &help});
    Varnmain& main = application.main();
    applyTheme(*qApp, Scheme::light, qt(main.text(Text::languageFont)));
    WidgetDriver driver(main, shelf);
    shelf.setFaultTaker(driver.faultTaker());
    MainWindow window(main, driver.faultTaker(), {});
    shelf.setMain(window, main);
    platform.setStage(&shelf);
    help.setPlaces(helpPlacesOf(application, window));
    application.start();
    window.resize(MainWindow::usualSize());
    window.show();
    Monkey monkey(main, platform, driver, session.dice, session.log);
    while (monkey.running() && monkey.presses() < session.presses) {
        // What a press has changed is painted before the next one.
        QCoreApplication::processEvents();
        monkey.press();
        unheard.str("");
    }
    return {monkey.presses(), monkey.stepsProved()};
}

}  // namespace
}  // namespace varnholt

int main(int count, char** arguments) {
    using namespace varnholt;
    prepareForScript();
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    const std::vector<std::string> asked(arguments + 1, arguments + count);
    int status = 0;
    QTimer::singleShot(0, &application, [&] {
        status = playAsAsked("varnholt-monkey-windows", asked, playWindows);
        QCoreApplication::exit();
    });
    QApplication::exec();
    return status;
}
