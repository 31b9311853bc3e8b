// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "monkey/dice.h"
#include "monkey/monkey_log.h"
#include "script/script_platform.h"

namespace varnholt {

/// Answers every question and file dialog by chance, and never leaves the program's folder.
class MonkeyPlatform : public ScriptPlatform {
 public:
    MonkeyPlatform(Transcript& transcript, const std::string& programFolder, Dice& dice,
                   MonkeyLog& log)
        : ScriptPlatform(transcript, programFolder, Date{2026, 1, 15}),
          folder_(programFolder),
          dice_(dice),
          log_(log) {}

    Answer question(Buttons buttons, const std::string& title, const std::string& text) override;
    std::optional<std::string> chooseFile(const FileDialog& dialog) override;

 private:
    std::string anyFile(const FileDialog& dialog);

    std::string folder_;
    Dice& dice_;
    MonkeyLog& log_;
};

}  // namespace varnholt
