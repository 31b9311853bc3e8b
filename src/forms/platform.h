// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "basis/date.h"

namespace varnholt {

class Form;

enum class MessageIcon { plain, information, exclamation, question, critical };
enum class Buttons { yesNoCancel, yesNo, okCancel };
/// The numbers are those that the save questions return.
enum class Answer { ok = 1, cancel = 2, yes = 6, no = 7 };

/// What the Edit menu does with the field that has the focus.
enum class EditCommand { cut, copy, paste, selectAll };

/// A file dialog, open or save.
struct FileDialog {
    bool saving = false;
    std::string title;
    std::string folder;        ///< where it starts
    std::string proposedName;  ///< may be empty
    std::string filter;        ///< "All Files (*.*)|*.*|Zone Files (*.zon)|*.zon"
    int filterIndex = 1;       ///< preselected pair of the filter, from 1
    bool overwritePrompt = false;
};

/// What the program asks of the machine it runs on: boxes, dialogs, windows, clipboard, clock.
/// The windows' program and the script runner each implement it.
class Platform {
 public:
    virtual ~Platform() = default;

    /// A message box with one button.
    virtual void message(MessageIcon icon, const std::string& title, const std::string& text) = 0;
    virtual Answer question(Buttons buttons, const std::string& title, const std::string& text) = 0;
    /// The same under the exclamation icon, before something is taken away.
    virtual Answer confirm(Buttons buttons, const std::string& title, const std::string& text) {
        return question(buttons, title, text);
    }
    /// The chosen path, or nothing when the dialog was cancelled.
    virtual std::optional<std::string> chooseFile(const FileDialog& dialog) = 0;

    /// The form's window has been opened; it is on show from now on.
    virtual void opened(Form& form) = 0;
    /// The form's window is gone; the form itself ends after this call.
    virtual void closed(Form& form) = 0;
    /// The form's window came to the front.
    virtual void activated(Form& form) = 0;
    /// Shows the form and returns when it has closed itself.
    virtual void runModal(Form& form) = 0;

    virtual std::string clipboard() = 0;
    virtual void setClipboard(const std::string& text) = 0;
    /// What parts the fraction from the whole in numbers that the user writes elsewhere.
    virtual char decimalMark() { return '.'; }
    /// Says in a line what came of a command, or why it did nothing; it stands there until
    /// something else is done. A program without such a line says nothing.
    virtual void tell(const std::string& /*sentence*/) {}
    virtual Date today() = 0;
    /// Does it with the field that has the focus, if any has.
    virtual void edit(EditCommand command) = 0;
    /// How far a long operation has come; done equal to total ends it.
    virtual void progress(const std::string& what, std::size_t done, std::size_t total) = 0;
    /// A file does not come at once. False gives it up; waitingEnded follows in either case. A
    /// program that nobody watches waits a little more than a second.
    virtual bool waitFor(const std::string& /*path*/, std::chrono::milliseconds waited) {
        return waited < std::chrono::milliseconds(1'200);
    }
    virtual void waitingEnded() {}
    /// A moment, ns since 1970, as a person reads it.
    virtual std::string timeText(std::int64_t moment) { return localTimeText(moment); }
    /// Opens a page or a program outside.
    virtual void openOutside(const std::string& address) = 0;
    /// A value of the platform's registry of installed tools; nothing where there is no such
    /// registry.
    virtual std::optional<std::string> GetKeyValue(const std::string& key,
                                                   const std::string& value) = 0;
    /// Closes the main window as its close box does, after the handler at hand has ended.
    virtual void quit(Form& mainWindow) = 0;
};

}  // namespace varnholt
