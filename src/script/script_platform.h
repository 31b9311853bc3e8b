// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <optional>
#include <string>

#include "forms/platform.h"
#include "script/open_forms.h"
#include "script/script_fault.h"
#include "script/transcript.h"

namespace varnholt {

/// Whoever shows real windows while a script runs. Nothing of it may wait for a person.
class WindowStage {
 public:
    virtual ~WindowStage() = default;
    virtual void opened(Form& form) = 0;
    virtual void closed(Form& form) = 0;
    virtual void activated(Form& form) = 0;
    /// A dialog has come up; the call returns at once.
    virtual void modalOpened(Form& form) = 0;
    virtual void modalClosed(Form& form) = 0;
};

/// What the platform asks of the script that is running.
class ScriptHost {
 public:
    virtual ~ScriptHost() = default;
    /// Runs the script's next lines until the modal form has ended.
    virtual void runModal(Form& form) = 0;
    /// The script cannot go on. Does not return.
    virtual void fail(const ScriptFault& fault) = 0;
};

/// The platform of a program that a script works: message boxes, questions, dialogs and windows
/// become lines of the transcript, the answers come from queues, nothing waits for a person.
class ScriptPlatform : public Platform {
 public:
    /// @param today the day that new documents take
    ScriptPlatform(Transcript& transcript, std::string programFolder, const Date& today);

    /// From now on windows that open are told in the transcript.
    void begin(ScriptHost& host) { host_ = &host; }
    void setStage(WindowStage* stage) { stage_ = stage; }

    OpenForms& forms() { return forms_; }
    void queueAnswer(Answer answer) { answers_.push_back(answer); }
    /// A path as the script gives it; nothing for a cancelled dialog.
    void queuePick(std::optional<std::string> path) { picks_.push_back(std::move(path)); }
    bool answersLeft() const { return !answers_.empty() || !picks_.empty(); }
    /// Whether the program has asked to be closed since the last call.
    bool takeQuit();

    void message(MessageIcon icon, const std::string& title, const std::string& text) override;
    Answer question(Buttons buttons, const std::string& title, const std::string& text) override;
    std::optional<std::string> chooseFile(const FileDialog& dialog) override;
    void opened(Form& form) override;
    void closed(Form& form) override;
    void activated(Form& form) override;
    void runModal(Form& form) override;
    std::string clipboard() override { return clipboard_; }
    void setClipboard(const std::string& text) override { clipboard_ = text; }
    Date today() override { return today_; }
    /// The same on every run.
    std::string timeText(std::int64_t) override { return "TIME"; }
    void edit(EditCommand command) override;
    void progress(const std::string&, std::size_t, std::size_t) override {}
    void openOutside(const std::string&) override {}
    std::optional<std::string> GetKeyValue(const std::string&, const std::string&) override {
        return std::nullopt;
    }
    void quit(Form&) override { quit_ = true; }

 private:
    [[noreturn]] void failAnswer(const std::string& what);
    void tellShown(const Form& form);

    Transcript& transcript_;
    std::string programFolder_;
    Date today_;
    OpenForms forms_;
    ScriptHost* host_ = nullptr;
    Form* active_ = nullptr;
    WindowStage* stage_ = nullptr;
    std::deque<Answer> answers_;
    std::deque<std::optional<std::string>> picks_;
    std::string clipboard_;
    bool quit_ = false;
};

}  // namespace varnholt
