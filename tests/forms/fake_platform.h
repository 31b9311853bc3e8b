// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "forms/platform.h"
#include "forms/texts.h"

namespace varnholt {

/// Every text is its own number, so that a test reads which one was used.
class FakeTexts : public Texts {
 public:
    std::string text(int number) const override {
        const auto found = known.find(number);
        return found == known.end() ? "[" + std::to_string(number) + "]" : found->second;
    }
    std::string picture(int number) const override { return std::to_string(number); }

    /// 1101, the font of the language, is empty: English units to start with.
    std::map<int, std::string> known{{1101, ""}};
};

/// Records what the program asks, answers from queues.
class FakePlatform : public Platform {
 public:
    struct Message {
        MessageIcon icon;
        std::string title, text;
    };

    void message(MessageIcon icon, const std::string& title, const std::string& text) override {
        messages.push_back({icon, title, text});
    }
    Answer question(Buttons, const std::string& title, const std::string& text) override {
        return ask(MessageIcon::question, title, text);
    }
    Answer confirm(Buttons, const std::string& title, const std::string& text) override {
        return ask(MessageIcon::exclamation, title, text);
    }
    Answer ask(MessageIcon icon, const std::string& title, const std::string& text) {
        questions.push_back({icon, title, text});
        if (answers.empty()) throw std::logic_error("no answer queued for: " + text);
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> chooseFile(const FileDialog& dialog) override {
        dialogs.push_back(dialog);
        if (picks.empty()) throw std::logic_error("no pick queued");
        std::optional<std::string> pick = picks.front();
        picks.pop_front();
        return pick;
    }
    void opened(Form& form) override { openedForms.push_back(form.formName()); }
    void closed(Form& form) override { closedForms.push_back(form.formName()); }
    void activated(Form&) override {}
    void runModal(Form& form) override {
        if (onModal) onModal(form);
    }
    std::string clipboard() override { return clipboardText; }
    void setClipboard(const std::string& text) override { clipboardText = text; }
    void tell(const std::string& sentence) override { told.push_back(sentence); }
    char decimalMark() override { return mark; }
    Date today() override { return day; }
    void edit(EditCommand command) override { edits.push_back(command); }
    void progress(const std::string&, std::size_t done, std::size_t) override {
        progressSteps.push_back(done);
    }
    void openOutside(const std::string& address) override { outside.push_back(address); }
    std::optional<std::string> GetKeyValue(const std::string& key,
                                           const std::string& value) override {
        const auto found = registry.find(key + "|" + value);
        if (found == registry.end()) return std::nullopt;
        return found->second;
    }
    void quit(Form& mainWindow) override { quitResult = mainWindow.queryClose(); }

    std::vector<Message> messages, questions;
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> picks;
    std::vector<FileDialog> dialogs;
    std::vector<std::string> openedForms, closedForms, outside;
    std::function<void(Form&)> onModal;
    /// What the user does while the program waits: once.
    std::string clipboardText;
    std::vector<std::string> told;
    char mark = '.';
    Date day{2026, 1, 15};
    std::vector<EditCommand> edits;
    std::vector<std::size_t> progressSteps;
    std::map<std::string, std::string> registry;
    std::optional<bool> quitResult;
};

}  // namespace varnholt
