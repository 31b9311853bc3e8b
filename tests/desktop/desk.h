// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QWhatsThis>
#include <filesystem>
#include <memory>
#include <string>

#include "app/application.h"
#include "desktop/binding/typing.h"
#include "desktop/reading/desktop_help.h"
#include "desktop/widgets/theme.h"
#include "desktop/windows/desktop_pages.h"
#include "desktop/windows/help_places.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/window_shelf.h"
#include "forms/fake_platform.h"
#include "tools/program_folder.h"

namespace varnholt {

/// A platform with real windows and fake boxes: questions are answered from queues, file dialogs
/// without a queued pick are cancelled.
class DeskPlatform : public FakePlatform {
 public:
    explicit DeskPlatform(WindowShelf& shelf) : shelf_(shelf) {}

    void opened(Form& form) override {
        FakePlatform::opened(form);
        shelf_.opened(form);
    }
    void closed(Form& form) override {
        FakePlatform::closed(form);
        shelf_.closed(form);
    }
    void activated(Form& form) override { shelf_.activated(form); }
    void edit(EditCommand command) override { editFocusedField(command); }
    std::optional<std::string> chooseFile(const FileDialog& dialog) override {
        if (picks.empty()) return std::nullopt;
        return FakePlatform::chooseFile(dialog);
    }
    Answer question(Buttons buttons, const std::string& title, const std::string& text) override {
        if (answers.empty())
            answers.push_back(buttons == Buttons::okCancel ? Answer::ok : Answer::no);
        return FakePlatform::question(buttons, title, text);
    }

 private:
    WindowShelf& shelf_;
};

/// The whole program with its real windows, in a program folder of its own.
class Desk {
 public:
    /// @param browser  the engine of the browser windows
    explicit Desk(const std::string& browser = "text")
        : folder_(freshFolder()),
          shelf(false),
          platform(shelf),
          pages(browser),
          program(platform, {folder_, installedFiles().resources, 0x409}, {&pages, &help}) {
        applyTheme(*qApp, Scheme::light);
        shelf.setFaultTaker([this](const std::exception_ptr& fault) { faults.push_back(fault); });
        window = std::make_unique<MainWindow>(main(), shelf.faults(), folder_ + "/recent.txt");
        shelf.setMain(*window, main());
        help.setPlaces(helpPlaces());
        pages.openExamplesBy(helpPlaces().openExample);
        window->resize(MainWindow::usualSize());
        window->show();
        program.start();
    }
    ~Desk() {
        // The question mark would take the first press of the mouse of the next desk.
        QWhatsThis::leaveWhatsThisMode();
        for (ChildWindow* child : main().windows()) shelf.closed(*child);
        window.reset();
        settle();
        std::filesystem::remove_all(folder_);
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    Varnmain& main() { return program.main(); }
    /// Those of the program, with a cache of the test's own.
    HelpPlaces helpPlaces() {
        HelpPlaces places = helpPlacesOf(program, *window);
        places.cacheFolder = folder_ + "/help cache";
        return places;
    }
    const std::string& folder() const { return folder_; }
    /// Gives the command to open a window, and a person the keyboard of that window.
    ChildWindow& opened(const std::string& command) {
        main().click(command);
        window->activateWindow();
        settle();
        return *main().activeWindow();
    }
    /// Lets the toolkit do what it has put off.
    static void settle() {
        for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

 private:
    static std::string freshFolder() {
        const std::string place =
            (std::filesystem::temp_directory_path() / "varnholt-desk-XXXXXX").string();
        std::string name = place;
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for the test");
        const std::string folder = name + "/program";
        fillProgramFolder(folder, installedFiles());
        return folder;
    }

    std::string folder_;

 public:
    WindowShelf shelf;
    DeskPlatform platform;
    DesktopPages pages;
    DesktopHelp help;
    Application program;
    std::unique_ptr<MainWindow> window;
    std::vector<std::exception_ptr> faults;
};

}  // namespace varnholt
