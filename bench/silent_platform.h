// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "forms/platform.h"

namespace varnholt {

/// A platform on which nobody watches and every question is answered with no.
class SilentPlatform : public Platform {
 public:
    void message(MessageIcon, const std::string&, const std::string&) override {}
    Answer question(Buttons, const std::string&, const std::string&) override { return Answer::no; }
    std::optional<std::string> chooseFile(const FileDialog&) override { return std::nullopt; }
    void opened(Form&) override {}
    void closed(Form&) override {}
    void activated(Form&) override {}
    void runModal(Form&) override {}
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
};

}  // namespace varnholt
