// SPDX-License-Identifier: GPL-3.0-or-later
// Lists every caption of every window with the page of the help that explains it, one a line,
// parted by a tab: what the index of the help is made of. list_captions FILE
#include <algorithm>
#include <cctype>
#include <iostream>
#include <set>
#include <string>

#include "app/application.h"
#include "basis/file_system.h"
#include "basis/system/folders.h"
#include "basis/system/process.h"
#include "frame/menu_table.h"
#include "loads/frmLinkOptions.h"
#include "loads/import/frmImportTable.h"
#include "reports/frmPROptions.h"
#include "reports/frmZNOptions.h"
#include "tools/frmTransferOptions.h"
#include "tools/help_topics.h"
#include "tools/program_folder.h"

namespace varnholt {
namespace {

/// Captions by the page that explains them.
class Captions {
 public:
    void take(const Form& form) {
        std::set<std::string> units;
        for (const auto& control : form.controls()) units.insert(control->unitLabel());
        if (hasWords(form.caption())) note(form.caption(), helpPageOf(form, {}));
        for (const auto& control : form.controls()) {
            if (units.count(control->name()) > 0) continue;
            const std::string page = helpPageOf(form, control->name());
            for (const std::string& words :
                 {control->caption(), control->tooltip(), control->accessibleName()})
                if (hasWords(words)) note(words, page);
            if (control->label().empty() || !form.has(control->label())) continue;
            const std::string& label = form.control(control->label()).caption();
            if (hasWords(label)) note(label, page);
        }
    }

    std::string text() const {
        std::string all;
        for (const auto& [caption, page] : found_) all += caption + '\t' + page + '\n';
        return all;
    }

 private:
    /// Figures and units are nothing to look up.
    static bool hasWords(const std::string& text) {
        const auto letters = std::count_if(text.begin(), text.end(), [](unsigned char c) {
            return std::isalpha(c) != 0 || c >= 0x80;
        });
        return letters > 1 && text[0] != '(' && text.find('\n') == std::string::npos &&
               text.size() < 60;
    }
    void note(const std::string& caption, const std::string& page) {
        const std::string words = captionWords(caption);
        if (!words.empty()) found_.emplace(words, page);
    }

    std::set<std::pair<std::string, std::string>> found_;
};

/// A machine on which nobody sits: every window is noted, every dialog is cancelled.
class NotingPlatform : public Platform {
 public:
    explicit NotingPlatform(Captions& captions) : captions_(captions) {}

    void message(MessageIcon, const std::string&, const std::string&) override {}
    Answer question(Buttons buttons, const std::string&, const std::string&) override {
        return buttons == Buttons::yesNo ? Answer::no : Answer::cancel;
    }
    std::optional<std::string> chooseFile(const FileDialog&) override { return std::nullopt; }
    void opened(Form& form) override { captions_.take(form); }
    void closed(Form& form) override { captions_.take(form); }
    void activated(Form&) override {}
    void runModal(Form& form) override { captions_.take(form); }
    std::string clipboard() override { return {}; }
    void setClipboard(const std::string&) override {}
    Date today() override { return {2026, 1, 15}; }
    void edit(EditCommand) override {}
    void progress(const std::string&, std::size_t, std::size_t) override {}
    void openOutside(const std::string&) override {}
    std::optional<std::string> GetKeyValue(const std::string&, const std::string&) override {
        return std::nullopt;
    }
    void quit(Form&) override {}

 private:
    Captions& captions_;
};

/// Dialogs that need data before a command raises them.
void takeDialogs(Varnmain& main, Captions& captions) {
    captions.take(frmPROptions(main));
    captions.take(frmZNOptions(main));
    captions.take(frmLinkOptions(main));
    captions.take(frmTransferOptions(main));
    captions.take(frmImportTable(main, {}, UnitSystem::english));
}

/// Opens every window that a command of the menu opens, twice for the questions that two windows
/// raise, and presses what opens a dialog.
void openAll(Varnmain& main, Captions& captions) {
    for (int round = 0; round < 2; ++round)
        for (const MenuRow& row : menuTable()) {
            if (row.menu == nullptr || row.captionText == 0) continue;
            const std::string entry = row.control;
            if (entry == "mnuFileExit" || !main.control(entry).enabled()) continue;
            main.click(entry);
        }
    for (ChildWindow* window : main.windows())
        for (const char* command : {"CASecondOpinionCommand", "CAWhatIfCommand"})
            if (window->has(command)) window->click(command);
    for (ChildWindow* window : main.windows()) {
        main.activate(*window);
        main.click("mnuLink");
        captions.take(*window);
    }
    takeDialogs(main, captions);
    captions.take(main);
}

void list(const std::string& file) {
    const InstalledFiles files = installedFiles();
    const std::string folder = file + ".folder-" + std::to_string(processNumber());
    fillProgramFolder(folder, files);
    Captions captions;
    NotingPlatform platform(captions);
    {
        Application program(platform, {folder, files.resources, 0x409});
        program.start();
        openAll(program.main(), captions);
    }
    removeFolder(folder);
    replaceWholeFile(file, captions.text());
}

}  // namespace
}  // namespace varnholt

int main(int count, char** arguments) {
    try {
        if (count != 2) throw std::runtime_error("list_captions FILE");
        varnholt::list(arguments[1]);
        return 0;
    } catch (const std::exception& exception) {
        std::cerr << exception.what() << '\n';
        return 1;
    }
}
