// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/program.h"

#include <QMessageBox>
#include <QTimer>
#include <iostream>
#include <memory>

#include "app/application.h"
#include "app/script_keeper.h"
#include "basis/date.h"
#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "desktop/binding/widget_driver.h"
#include "desktop/reading/desktop_help.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/theme.h"
#include "desktop/windows/desktop_pages.h"
#include "desktop/windows/desktop_platform.h"
#include "desktop/windows/help_places.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/report_windows.h"
#include "desktop/windows/window_shelf.h"
#include "desktop/windows/work_keeper.h"
#include "forms/text_numbers/desktop.h"
#include "forms/text_numbers/language.h"
#include "forms/text_numbers/main.h"
#include "script/script_runner.h"
#include "tools/locales.h"
#include "tools/program_folder.h"

namespace varnholt {
namespace {

/// The program's folder, filled on first start; one that is named is used as it stands.
std::string programFolderOf(const CommandLine& line, const InstalledFiles& installed) {
    if (line.programFolder) return *line.programFolder;
    std::string folder = userProgramFolder();
    fillProgramFolder(folder, installed);
    return folder;
}

/// Tells a person of a failure that no command has told.
void tellFault(Platform& platform, const Texts& texts, const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const RunTimeError& error) {
        platform.message(MessageIcon::exclamation, texts.text(Text::programTitle), error.message());
    } catch (const std::exception& error) {
        platform.message(MessageIcon::critical, texts.text(Text::programTitle),
                         texts.text(Text::programFault) + "\n\n" + error.what());
    }
}

unsigned localeOf(const CommandLine& line) { return line.localeNumber.value_or(platformLocale()); }

int runPrepared(QApplication& application, const CommandLine& line) {
    const InstalledFiles installed = installedFiles();
    const std::string folder = programFolderOf(line, installed);
    WindowPlaces windowPlaces(joinPath(folder, "window places.ini"));
    WindowShelf shelf(false);
    DesktopPlatform platform(shelf, line.today);
    DesktopPages pages(line.browser);
    DesktopHelp help;
    Application program(platform,
                        {folder, installed.resources, localeOf(line), line.today.has_value(), true},
                        {&pages, &help});
    Varnmain& main = program.main();
    applyTheme(application, Scheme::followDesktop, qt(main.text(Text::languageFont)));

    const FaultTaker faults = [&](const std::exception_ptr& fault) {
        tellFault(platform, program.texts(), fault);
    };
    shelf.setFaultTaker(faults);
    MainWindow window(main, faults, joinPath(folder, "recent files.txt"));
    shelf.rememberPlaces(windowPlaces);
    shelf.setMain(window, main);
    ReportWindows reports(window, platform, program.reports(), program.texts(), localeOf(line));
    reports.rememberPlaces(windowPlaces);
    const HelpPlaces places = helpPlacesOf(program, window);
    help.setPlaces(places);
    pages.openExamplesBy(places.openExample);
    window.guarded([&] { program.start(); });
    window.show();
    const WorkKeeper keeper(application, *program.recovery());
    QTimer::singleShot(0, &window, [&] {
        window.guarded([&] { program.recovery()->offer(); });
        window.openFiles(line.files);
    });
    const int status = QApplication::exec();
    shelf.keepMainPlace();
    return status;
}

int runReading(QApplication& application, const CommandLine& line, std::istream& input) {
    const InstalledFiles installed = installedFiles();
    const std::string folder = programFolderOf(line, installed);
    QApplication::setQuitOnLastWindowClosed(false);

    Transcript transcript(std::cout);
    WindowShelf shelf(true);
    ScriptPlatform platform(transcript, folder, line.today.value_or(dateOfToday()));
    DesktopPages pages(line.browser.empty() ? "text" : line.browser);
    DesktopHelp help;
    help.setQuiet();
    Application program(
        platform,
        {folder, installed.resources, localeOf(line), line.today.has_value(), line.recovery},
        {&pages, &help});
    Varnmain& main = program.main();
    applyTheme(application, Scheme::followDesktop, qt(main.text(Text::languageFont)));
    // A script reads reports and saves them; a preview would stand in the way of its pictures.
    writePdfWith(program.reports(), program.texts(), localeOf(line));
    program.reports().onShown = [&transcript](const auto& report) {
        transcript.line(toldReport(report->object, report->caption));
    };

    WidgetDriver driver(main, shelf);
    shelf.setFaultTaker(driver.faultTaker());
    MainWindow window(main, driver.faultTaker(), {});
    shelf.setMain(window, main);
    platform.setStage(&shelf);
    const HelpPlaces places = helpPlacesOf(program, window);
    help.setPlaces(places);
    pages.openExamplesBy(places.openExample);
    program.start();
    // Pictures are the same whatever screen there is, and none at all.
    window.resize(MainWindow::usualSize());
    window.show();
    // A script finds the window as a person does, painted.
    QCoreApplication::processEvents();

    ScriptReader reader(input, *line.script);
    ScriptRunner runner(main, platform, driver, transcript, reader, std::cerr);
    runner.setReports(&program.reports());
    std::unique_ptr<ScriptKeeper> keeper;
    if (program.recovery() != nullptr)
        keeper = std::make_unique<ScriptKeeper>(*program.recovery(), runner, reader);
    runner.setAfterLine([&] {
        program.settlePages();
        if (keeper) keeper->lineEnded();
    });
    int status = 0;
    QTimer::singleShot(0, &window, [&] {
        status = runner.run();
        QCoreApplication::exit();
    });
    QApplication::exec();
    return status;
}

int usageFault(const std::string& what) {
    std::cerr << "varnholt: " << what << '\n';
    return static_cast<int>(ScriptStatus::badLine);
}

}  // namespace

int runForPerson(QApplication& application, const CommandLine& line) {
    try {
        return runPrepared(application, line);
    } catch (const std::exception& error) {
        QMessageBox::critical(nullptr, QStringLiteral("Varnholt"), QString::fromUtf8(error.what()));
        return static_cast<int>(ScriptStatus::programFault);
    }
}

void prepareForScript() {
    // Standard error belongs to the script's faults: the toolkit's remarks stay out of it.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << plain(text) << '\n';
    });
    // Windows are drawn in memory where there is no display.
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") ||
                            qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                            qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (!hasDisplay) qputenv("QT_QPA_PLATFORM", "offscreen");
}

int runScriptInWindows(QApplication& application, const CommandLine& line) {
    if (*line.script == "-") return runReading(application, line, std::cin);
    const std::unique_ptr<std::istream> file = openInput(*line.script);
    return file ? runReading(application, line, *file)
                : usageFault(*line.script + " cannot be read");
}

}  // namespace varnholt
