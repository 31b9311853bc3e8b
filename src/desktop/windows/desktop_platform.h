// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <memory>
#include <optional>
#include <string>

#include "desktop/windows/window_shelf.h"
#include "forms/platform.h"

class QProgressDialog;

namespace varnholt {

/// How long an operation runs before its progress is shown, ms.
constexpr int quietTime = 250;

/// The platform of a person at a desktop: message boxes, file dialogs, windows, the clipboard.
class DesktopPlatform : public Platform {
 public:
    /// @param today  the day to take for today; the computer's without one
    explicit DesktopPlatform(WindowShelf& shelf, const std::optional<Date>& today = {});
    ~DesktopPlatform() override;

    void message(MessageIcon icon, const std::string& title, const std::string& text) override;
    Answer question(Buttons buttons, const std::string& title, const std::string& text) override;
    Answer confirm(Buttons buttons, const std::string& title, const std::string& text) override;
    std::optional<std::string> chooseFile(const FileDialog& dialog) override;
    void opened(Form& form) override { shelf_.opened(form); }
    void closed(Form& form) override { shelf_.closed(form); }
    void activated(Form& form) override { shelf_.activated(form); }
    void runModal(Form& form) override { shelf_.runModal(form); }
    std::string clipboard() override;
    void setClipboard(const std::string& text) override;
    char decimalMark() override;
    void tell(const std::string& sentence) override;
    Date today() override { return today_.value_or(dateOfToday()); }
    void edit(EditCommand command) override;
    void progress(const std::string& what, std::size_t done, std::size_t total) override;
    bool waitFor(const std::string& path, std::chrono::milliseconds waited) override;
    void waitingEnded() override;
    void openOutside(const std::string& address) override;
    std::optional<std::string> GetKeyValue(const std::string&, const std::string&) override {
        return std::nullopt;
    }
    void quit(Form& mainWindow) override;

 private:
    Answer ask(MessageIcon icon, Buttons buttons, const std::string& title,
               const std::string& text);

    WindowShelf& shelf_;
    std::optional<Date> today_;
    std::unique_ptr<QProgressDialog> progress_, waiting_;
    QElapsedTimer started_, painted_;
};

/// Whether an address may be handed to the desktop: web pages and files, nothing that runs.
bool mayOpenOutside(const std::string& address);

/// One pair of a file dialog's filter: "Zone Files (*.zon)" with its patterns "*.zon".
struct FileFilter {
    std::string caption;
    std::string patterns;
};
/// "All Files (*.*)|*.*|Zone Files (*.zon)|*.zon" as its pairs.
std::vector<FileFilter> fileFilters(const std::string& filter);
/// A pair as the toolkit's dialogs write it: "Zone Files (*.zon)".
std::string nameFilter(const FileFilter& filter);
/// The extension that a saved file gets when its name has none: "zon"; empty when any will do.
std::string extensionOf(const FileFilter& filter);

}  // namespace varnholt
