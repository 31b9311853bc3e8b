// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/monkey_platform.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace varnholt {
namespace {

namespace fs = std::filesystem;

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

std::vector<Answer> answersOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::yesNoCancel:
            return {Answer::yes, Answer::no, Answer::no, Answer::cancel};
        case Buttons::yesNo:
            return {Answer::yes, Answer::no};
        case Buttons::okCancel:
            return {Answer::ok, Answer::cancel};
    }
    return {};
}

}  // namespace

Answer MonkeyPlatform::question(Buttons buttons, const std::string& title,
                                const std::string& text) {
    const Answer answer = dice_.among(answersOf(buttons));
    log_.answer(std::string("answer ") + wordOf(answer));
    queueAnswer(answer);
    return ScriptPlatform::question(buttons, title, text);
}

std::optional<std::string> MonkeyPlatform::chooseFile(const FileDialog& dialog) {
    std::optional<std::string> pick;
    if (!dice_.chance(20)) pick = anyFile(dialog);
    log_.answer("pick " + pick.value_or("cancel"));
    queuePick(pick);
    return ScriptPlatform::chooseFile(dialog);
}

/// A file of a few, so that files are met again; now and then one of another kind, or none.
std::string MonkeyPlatform::anyFile(const FileDialog& dialog) {
    if (!dialog.saving && dice_.chance(5)) return "work files/missing.vht";
    if (!dialog.saving && dice_.chance(5)) return "pumps/PumpList.vht";
    const auto offers = [&](const char* kind) {
        return dialog.filter.find(kind) != std::string::npos;
    };
    const bool zones = offers(".zon") || offers(".gt1") || offers(".csv");
    const std::string subfolder = zones ? "zones" : "work files";
    std::vector<std::string> there;
    for (const auto& entry : fs::directory_iterator(fs::path(folder_) / subfolder))
        there.push_back(subfolder + "/" + entry.path().filename().string());
    std::sort(there.begin(), there.end());
    if (!there.empty() && dice_.chance(dialog.saving ? 40 : 95)) return dice_.among(there);
    return subfolder + "/m" + std::to_string(dice_.below(4)) + (zones ? ".zon" : ".vht");
}

}  // namespace varnholt
