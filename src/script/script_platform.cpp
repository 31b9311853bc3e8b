// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/script_platform.h"

#include <fmt/format.h>

#include <array>
#include <stdexcept>
#include <utility>

#include "basis/file_system.h"

namespace varnholt {
namespace {

const char* wordOf(MessageIcon icon) {
    constexpr std::array<const char*, 5> words{"plain", "information", "exclamation", "question",
                                               "critical"};
    return words[static_cast<std::size_t>(icon)];
}

const char* wordOf(Buttons buttons) {
    constexpr std::array<const char*, 3> words{"yes-no-cancel", "yes-no", "ok-cancel"};
    return words[static_cast<std::size_t>(buttons)];
}

const char* wordOf(Answer answer) {
    switch (answer) {
        case Answer::ok:
            return "ok";
        case Answer::cancel:
            return "cancel";
        case Answer::yes:
            return "yes";
        case Answer::no:
            return "no";
    }
    return "";
}

bool has(Buttons buttons, Answer answer) {
    switch (answer) {
        case Answer::ok:
            return buttons == Buttons::okCancel;
        case Answer::cancel:
            return buttons != Buttons::yesNo;
        case Answer::yes:
        case Answer::no:
            return buttons != Buttons::okCancel;
    }
    return false;
}

/// A modal form stands among the open windows as long as it is on show, however it ends.
class ModalShow {
 public:
    ModalShow(OpenForms& forms, WindowStage* stage, Form& form)
        : forms_(forms), stage_(stage), form_(form) {
        forms_.add(form_);
        if (stage_ != nullptr) stage_->modalOpened(form_);
    }
    ModalShow(const ModalShow&) = delete;
    ModalShow& operator=(const ModalShow&) = delete;
    ~ModalShow() {
        forms_.remove(form_);
        if (stage_ != nullptr) stage_->modalClosed(form_);
    }

 private:
    OpenForms& forms_;
    WindowStage* stage_;
    Form& form_;
};

}  // namespace

ScriptPlatform::ScriptPlatform(Transcript& transcript, std::string programFolder, const Date& today)
    : transcript_(transcript), programFolder_(std::move(programFolder)), today_(today) {}

bool ScriptPlatform::takeQuit() { return std::exchange(quit_, false); }

void ScriptPlatform::failAnswer(const std::string& what) {
    if (host_ == nullptr) throw std::logic_error("a question was asked before the script began");
    host_->fail(ScriptFault(what, ScriptStatus::badAnswer));
    throw ScriptOver{};
}

void ScriptPlatform::message(MessageIcon icon, const std::string& title, const std::string& text) {
    transcript_.line(
        fmt::format("message {} {} {}", wordOf(icon), quotedText(title), quotedText(text)));
}

Answer ScriptPlatform::question(Buttons buttons, const std::string& title,
                                const std::string& text) {
    const std::string asked =
        fmt::format("question {} {} {}", wordOf(buttons), quotedText(title), quotedText(text));
    if (answers_.empty()) failAnswer("no answer is queued for: " + asked);
    const Answer answer = answers_.front();
    if (!has(buttons, answer))
        failAnswer(fmt::format("the queued answer {} does not fit: {}", wordOf(answer), asked));
    answers_.pop_front();
    transcript_.line(fmt::format("{} -> {}", asked, wordOf(answer)));
    return answer;
}

/// The dialog is told by where it starts: its folder, with the proposed name where there is one.
std::optional<std::string> ScriptPlatform::chooseFile(const FileDialog& dialog) {
    const std::string start =
        dialog.proposedName.empty() ? dialog.folder : joinPath(dialog.folder, dialog.proposedName);
    const std::string asked =
        fmt::format("dialog {} {}", dialog.saving ? "save" : "open", quotedText(start));
    if (picks_.empty()) failAnswer("no pick is queued for: " + asked);
    std::optional<std::string> pick = std::move(picks_.front());
    picks_.pop_front();
    transcript_.line(fmt::format("{} -> {}", asked, pick ? quotedText(*pick) : "cancel"));
    if (!pick || pick->front() == '/') return pick;
    return joinPath(programFolder_, *pick);
}

void ScriptPlatform::tellShown(const Form& form) {
    if (host_ != nullptr)
        transcript_.line(
            fmt::format("show {} {}", forms_.nameOf(form), quotedText(form.caption())));
}

void ScriptPlatform::opened(Form& form) {
    forms_.add(form);
    if (stage_ != nullptr) stage_->opened(form);
    tellShown(form);
}

void ScriptPlatform::closed(Form& form) {
    if (active_ == &form) active_ = nullptr;
    forms_.remove(form);
    if (stage_ != nullptr) stage_->closed(form);
}

void ScriptPlatform::activated(Form& form) {
    active_ = &form;
    if (stage_ != nullptr) stage_->activated(form);
}

/// The field in which the script has typed last has the focus, with its whole text selected.
void ScriptPlatform::edit(EditCommand command) {
    if (active_ == nullptr || active_->visitedField().empty()) return;
    const std::string field = active_->visitedField();
    if (command == EditCommand::cut || command == EditCommand::copy)
        setClipboard(active_->control(field).text());
    if (command == EditCommand::cut) active_->type(field, {});
    if (command == EditCommand::paste) active_->key(field, "Ctrl+V");
}

void ScriptPlatform::runModal(Form& form) {
    if (host_ == nullptr) throw std::logic_error("a dialog came up before the script began");
    const ModalShow onShow(forms_, stage_, form);
    tellShown(form);
    host_->runModal(form);
}

}  // namespace varnholt
