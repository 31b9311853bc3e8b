// SPDX-License-Identifier: GPL-3.0-or-later
// Any texts in the fields of every window: they are taken, refused or set right, and what holds in
// every window holds after each of them.
//
// The first line of an input names the window and the units, by the positions of two letters in the
// alphabet. Each further line is a letter for the field, a letter for what ends the visit and the
// text.
#include <stdlib.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "../tests/monkey/invariants.h"
#include "app/application.h"
#include "basis/text_encoding.h"
#include "script/form_driver.h"
#include "script/script_runner.h"
#include "tools/program_folder.h"

using namespace varnholt;

namespace {

constexpr std::size_t longestInput = 2'000;
constexpr int mostLines = 40;

std::string programFolder() {
    static const std::string folder = [] {
        std::string name = (std::filesystem::temp_directory_path() / "fuzz-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) std::abort();
        name += "/program";
        fillProgramFolder(name, installedFiles());
        return name;
    }();
    return folder;
}

/// Ends dialogs by their close box, and answers every question with what changes nothing.
class Hands : public ScriptPlatform {
 public:
    using ScriptPlatform::ScriptPlatform;

    Answer question(Buttons buttons, const std::string&, const std::string&) override {
        return buttons == Buttons::yesNo ? Answer::no : Answer::cancel;
    }
    std::optional<std::string> chooseFile(const FileDialog&) override { return std::nullopt; }
    void runModal(Form& form) override {
        if (form.queryClose()) form.endModal();
    }
};

struct Opening {
    const char* command;
    const char* form;
    /// What brings its fields to life, or opens a further window.
    const char* then = "";
    const char* further = "";
};

constexpr Opening openings[] = {
    {"NewBorehole", "frmBHDesign"},
    {"NewHorizontal", "frmHZDesign"},
    {"NewSurfaceWater", "frmSWDesign"},
    {"mnuZoneManage", "frmZoneManage", "LONewCommand"},
    {"mnuAvgBlock", "frmAvgBlock"},
    {"EditAdd", "frmHPEdit"},
    {"mnuMonthlyLoadsImport", "frmImport1"},
    {"mnuDiffCalc", "frmDiffusivityCalc"},
    {"mnuPumpPowerCalc", "frmPumpPowerCalc"},
    {"mnuEqvHours", "frmEqvHoursCalc"},
    {"NewBorehole", "frmBHDesign", "CASecondOpinionCommand", "frmSecondOpinion"},
};

std::size_t placeOf(char letter) { return static_cast<unsigned char>(letter) - std::size_t{'a'}; }

Form& openWindow(Varnmain& main, const std::string& line) {
    const auto letter = [&](std::size_t i) { return i < line.size() ? placeOf(line[i]) : 0; };
    const Opening& opening = openings[letter(0) % std::size(openings)];
    main.click(letter(1) % 2 == 0 ? "English" : "Metric");
    main.click(opening.command);
    Form& form = *main.find(opening.form);
    if (*opening.then != '\0') form.click(opening.then);
    if (*opening.further != '\0') return *main.find(opening.further);
    if (std::string(opening.form) == "frmHPEdit") {
        form.choose("MfgCombo", 2);
        form.choose("SeriesCombo", 1);
    }
    return form;
}

/// What a person could type into.
std::vector<std::string> fieldsOf(const Form& form) {
    std::vector<std::string> fields;
    for (const auto& control : form.controls()) {
        const bool takesText = control->kind() == ControlKind::text ||
                               control->kind() == ControlKind::richText ||
                               (control->kind() == ControlKind::combo && control->editable());
        if (takesText && control->enabled() && !control->locked())
            fields.push_back(control->name());
    }
    return fields;
}

/// One visit: typed at once or letter by letter, and then left, ended by Enter or not ended.
void visit(Form& form, const std::vector<std::string>& fields, std::string_view line) {
    const std::string& field = fields[placeOf(line[0]) % fields.size()];
    const std::size_t manner = placeOf(line.size() > 1 ? line[1] : 'a');
    const std::string text = utf8Text(line.substr(std::min<std::size_t>(2, line.size())));
    if (manner % 2 == 0) {
        form.type(field, text);
    } else {
        for (std::size_t end = 1; end <= text.size(); ++end)
            if (isValidUtf8(text.substr(0, end))) form.type(field, text.substr(0, end));
    }
    if (manner / 2 % 3 == 0) form.leave(field);
    if (manner / 2 % 3 == 1 && form.takesKeys(field)) form.key(field, "Enter");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > longestInput) return 0;
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    std::ostringstream out;
    Transcript transcript(out);
    Hands platform(transcript, programFolder(), Date{2026, 1, 15});
    Application application(platform, {programFolder(), installedFiles().resources, 0x409});
    Varnmain& main = application.main();
    application.start();
    std::string line;
    std::getline(input, line);
    Form& form = openWindow(main, line);
    const std::vector<std::string> fields = fieldsOf(form);
    if (fields.empty()) std::abort();
    for (int count = 0; count < mostLines && std::getline(input, line); ++count) {
        if (line.empty()) continue;
        visit(form, fields, line);
        checkForm(form);
    }
    if (form.has("CACalculateCommand")) form.click("CACalculateCommand");
    main.click("Metric");
    main.click("English");
    checkForm(form);
    checkFrame(main);
    return 0;
}
