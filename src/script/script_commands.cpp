// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/script_commands.h"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/folders.h"
#include "script/properties.h"
#include "script/script_fault.h"

namespace varnholt {
namespace {

using Kind = ControlKind;

/// A file named on a line of a script, from the folder in which the program was started.
std::string pathFrom(const std::string& folder, const std::string& rest) {
    const std::string path = trimmed(rest);
    if (path.empty()) throw ScriptFault("the line ends too early");
    return path.front() == '/' ? path : joinPath(folder, path);
}

std::string_view withoutEndBlanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

Answer answerOf(const std::string& word) {
    if (word == "yes") return Answer::yes;
    if (word == "no") return Answer::no;
    if (word == "cancel") return Answer::cancel;
    if (word == "ok") return Answer::ok;
    throw ScriptFault(fmt::format("{} is no answer: yes, no, cancel or ok", word));
}

/// A control and everything around it can be used.
bool isEnabled(const Form& form, const Control& control) {
    if (!control.enabled()) return false;
    return control.container().empty() || isEnabled(form, form.control(control.container()));
}

}  // namespace

struct ScriptCommands::CommandRow {
    const char* word;
    Command run;
};

const ScriptCommands::CommandRow ScriptCommands::commands[] = {
    {"type", &ScriptCommands::type},
    {"leave", &ScriptCommands::leave},
    {"key", &ScriptCommands::key},
    {"click", &ScriptCommands::click},
    {"choose", &ScriptCommands::choose},
    {"select", &ScriptCommands::select},
    {"slide", &ScriptCommands::slide},
    {"date", &ScriptCommands::date},
    {"activate", &ScriptCommands::activate},
    {"close", &ScriptCommands::close},
    {"answer", &ScriptCommands::answer},
    {"pick", &ScriptCommands::pick},
    {"clipboard", &ScriptCommands::clipboard},
    {"print", &ScriptCommands::print},
    {"value", &ScriptCommands::value},
    {"save", &ScriptCommands::save},
    {"shot", &ScriptCommands::shot},
    {"forms", &ScriptCommands::forms},
    {"controls", &ScriptCommands::controls},
};

ScriptCommands::ScriptCommands(Varnmain& main, ScriptPlatform& platform, Driver& driver,
                               Transcript& transcript)
    : main_(main),
      platform_(platform),
      driver_(driver),
      transcript_(transcript),
      startFolder_(currentFolder()) {}

void ScriptCommands::execute(const ScriptLine& line) {
    std::string rest = line.rest;
    for (const CommandRow& row : commands)
        if (row.word == line.command) return (this->*row.run)(rest);
    throw ScriptFault(fmt::format("{} is no command", line.command));
}

// What the person does.

void ScriptCommands::type(std::string& rest) {
    const Target target = unlocked(rest, {Kind::text, Kind::richText, Kind::combo});
    if (target.control.kind() == Kind::combo && !target.control.editable())
        throw ScriptFault(fmt::format("nothing can be typed in {}", target.control.name()));
    driver_.type(target.form, target.control, rest);
}

void ScriptCommands::leave(std::string& rest) {
    const Target target =
        workable(rest, {Kind::text, Kind::richText, Kind::combo, Kind::list, Kind::date,
                        Kind::slider, Kind::upDown, Kind::button, Kind::check, Kind::option});
    requireEnd(rest);
    driver_.leave(target.form, target.control);
}

void ScriptCommands::key(std::string& rest) {
    const Target target =
        workable(rest, {Kind::text, Kind::richText, Kind::combo, Kind::list, Kind::date,
                        Kind::slider, Kind::upDown, Kind::button, Kind::check, Kind::option});
    const std::string key = onlyWord(rest);
    if (key != "Enter" && key != "Ctrl+V" && key != "F1")
        throw ScriptFault(fmt::format("{} is no key: Enter, Ctrl+V or F1", key));
    driver_.key(target.form, target.control, key);
}

void ScriptCommands::click(std::string& rest) {
    const Target target =
        workable(rest, {Kind::button, Kind::option, Kind::menu, Kind::check, Kind::label});
    requireEnd(rest);
    if (target.control.kind() == Kind::label && !target.form.takesClicks(target.control.name()))
        throw ScriptFault(
            fmt::format("{} is a label and cannot be worked in this way", target.control.name()));
    if (target.control.kind() == Kind::menu && target.control.caption().empty())
        throw ScriptFault(fmt::format("{} is a line between entries", target.control.name()));
    driver_.click(target.form, target.control);
}

void ScriptCommands::choose(std::string& rest) {
    const Target target = unlocked(rest, {Kind::combo, Kind::list, Kind::tabs});
    if (const std::string index = trimmed(rest); isIndex(index)) {
        driver_.choose(target.form, target.control, rowIn(target, readIndex(index)));
        return;
    }
    const std::vector<std::string>& items = target.control.items();
    // Nobody sees the blanks at an entry's end; an entry that is the text to the letter goes first.
    auto found = std::find(items.begin(), items.end(), rest);
    if (found == items.end())
        found = std::find_if(items.begin(), items.end(), [&](const std::string& item) {
            return withoutEndBlanks(item) == withoutEndBlanks(rest);
        });
    if (found == items.end())
        throw ScriptFault(
            fmt::format("{} has no entry {}", target.control.name(), quotedText(rest)));
    driver_.choose(target.form, target.control, static_cast<int>(found - items.begin()));
}

void ScriptCommands::select(std::string& rest) {
    const Target target = unlocked(rest, {Kind::list});
    std::vector<int> rows;
    for (const int row : readIndices(rest)) rows.push_back(rowIn(target, row));
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (!target.control.multiple() && rows.size() != 1)
        throw ScriptFault(fmt::format("{} selects one row", target.control.name()));
    driver_.select(target.form, target.control, rows);
}

void ScriptCommands::slide(std::string& rest) {
    const Target target = unlocked(rest, {Kind::slider, Kind::upDown});
    driver_.slide(target.form, target.control, readNumber(onlyWord(rest)));
}

void ScriptCommands::date(std::string& rest) {
    const Target target = unlocked(rest, {Kind::date});
    driver_.pickDate(target.form, target.control, readDay(onlyWord(rest)));
}

void ScriptCommands::activate(std::string& rest) {
    Form& form = onlyWindow(rest);
    requireReachable(form);
    driver_.activate(form);
}

void ScriptCommands::close(std::string& rest) {
    Form& form = onlyWindow(rest);
    requireReachable(form);
    driver_.close(form);
}

void ScriptCommands::answer(std::string& rest) { platform_.queueAnswer(answerOf(onlyWord(rest))); }

void ScriptCommands::pick(std::string& rest) {
    std::string path = trimmed(rest);
    if (path.empty()) throw ScriptFault("pick needs a path, or cancel");
    if (path == "cancel")
        platform_.queuePick(std::nullopt);
    else
        platform_.queuePick(std::move(path));
}

void ScriptCommands::clipboard(std::string& rest) { platform_.setClipboard(unescaped(rest)); }

// What the person sees.

void ScriptCommands::print(std::string& rest) {
    const std::string word = onlyWord(rest);
    if (word == "report") return printReport();
    if (word == "clipboard")
        return transcript_.line("clipboard = " + quotedText(platform_.clipboard()));
    TargetName name = readTarget(word);
    std::optional<Property> property;
    if (const std::size_t dot = name.member.rfind('.'); dot != std::string::npos) {
        property = propertyNamed(std::string_view(name.member).substr(dot + 1));
        if (!property) throw ScriptFault(fmt::format("{} ends in no property", word));
        name.member.erase(dot);
    }
    const Target target = findControl(name);
    const ControlKind kind = target.control.kind();
    const Property usual = defaultProperty(kind);
    const Property wanted = property.value_or(usual);
    if (!hasProperty(kind, wanted))
        throw ScriptFault(fmt::format("a {} has no {}", varnholt::nameOf(kind), nameOf(wanted)));
    if (target.control.isLate()) target.form.catchUp(target.control);
    const std::string suffix = wanted == usual ? "" : std::string(".") + nameOf(wanted);
    transcript_.line(fmt::format("{}.{}{} = {}", platform_.forms().nameOf(target.form),
                                 target.control.name(), suffix,
                                 shownText(driver_.read(target.form, target.control, wanted))));
}

void ScriptCommands::value(std::string& rest) {
    const std::string word = onlyWord(rest);
    const TargetName name = readTarget(word);
    const Form& form = find(name.window);
    const auto unknown = [&] {
        return ScriptFault(fmt::format("{} has no value {}", form.formName(), name.member));
    };
    Shown shown;
    try {
        if (!form.values().has(name.member)) throw unknown();
        std::visit([&](const auto& held) { shown = held; }, form.values().read(name.member));
    } catch (const std::invalid_argument&) {
        throw unknown();
    } catch (const RunTimeError&) {
        throw unknown();
    }
    transcript_.line(fmt::format("value {}.{} = {}", platform_.forms().nameOf(form), name.member,
                                 shownText(shown)));
}

void ScriptCommands::forms(std::string& rest) {
    requireEnd(rest);
    const Form* front = active();
    for (const Form* form : platform_.forms().all())
        transcript_.line(fmt::format("{} {}{}", platform_.forms().nameOf(*form),
                                     quotedText(driver_.caption(*form)),
                                     form == front ? " active" : ""));
}

void ScriptCommands::controls(std::string& rest) {
    const Form& form = onlyWindow(rest);
    for (const auto& control : form.controls())
        transcript_.line(fmt::format("{}.{} {}", platform_.forms().nameOf(form), control->name(),
                                     varnholt::nameOf(control->kind())));
}

void ScriptCommands::shot(std::string& rest) {
    Form& form = find(readWindowName(takeWord(rest)));
    form.catchUp();
    if (!driver_.picture(form, pathFrom(startFolder_, rest)) && notes_)
        notes_(fmt::format("no picture of {}: skipped, there are no windows",
                           platform_.forms().nameOf(form)));
}

const ReportSource& ScriptCommands::report() const {
    if (reports_ == nullptr || !reports_->hasReport())
        throw ScriptFault("no report has been shown");
    return *reports_;
}

void ScriptCommands::printReport() {
    for (const ReportEntry& entry : report().entries())
        transcript_.line(
            fmt::format("{}.{} = {}", entry.section, entry.control, quotedText(entry.text)));
}

void ScriptCommands::save(std::string& rest) {
    if (takeWord(rest) != "report")
        throw ScriptFault("only a report can be saved: save report PATH");
    const std::string path = pathFrom(startFolder_, rest);
    try {
        if (!report().save(path))
            throw ScriptFault(fmt::format("{} is no .pdf, .html or .csv", rest));
    } catch (const RunTimeError& error) {
        throw ScriptFault(
            fmt::format("{} cannot be written: {}", rest, describeRunTimeError(error.number())));
    }
}

// Windows and controls by their names.

Form& ScriptCommands::find(const WindowName& name) const {
    const std::vector<Form*> named = platform_.forms().named(name.form);
    if (named.empty()) throw ScriptFault(fmt::format("no window {} is open", name.form));
    if (name.number) {
        const auto place = static_cast<std::size_t>(*name.number);
        if (place < 1 || place > named.size())
            throw ScriptFault(fmt::format("no window {}#{} is open", name.form, *name.number));
        return *named[place - 1];
    }
    const auto front = std::find(named.begin(), named.end(), active());
    return front == named.end() ? *named.back() : **front;
}

Form& ScriptCommands::onlyWindow(const std::string& rest) const {
    return find(readWindowName(onlyWord(rest)));
}

ScriptCommands::Target ScriptCommands::findControl(const TargetName& name) const {
    Form& form = find(name.window);
    if (!form.has(name.member))
        throw ScriptFault(fmt::format("{} has no control {}", form.formName(), name.member));
    return {form, form.control(name.member)};
}

/// The control that a verb works, once its window is in front as it is under a person's hands.
/// Takes its name off the line.
ScriptCommands::Target ScriptCommands::workable(std::string& rest,
                                                std::initializer_list<ControlKind> kinds) {
    const Target target = findControl(readTarget(takeWord(rest)));
    const Control& control = target.control;
    if (std::find(kinds.begin(), kinds.end(), control.kind()) == kinds.end())
        throw ScriptFault(fmt::format("{} is a {} and cannot be worked in this way", control.name(),
                                      varnholt::nameOf(control.kind())));
    requireReachable(target.form);
    if (&target.form != active()) driver_.activate(target.form);
    // A person works what they see, and that is there by then.
    if (control.isLate()) target.form.catchUp(control);
    if (!target.form.isShown(control))
        throw ScriptFault(fmt::format("{} is not visible", control.name()));
    if (!isEnabled(target.form, control))
        throw ScriptFault(fmt::format("{} is not enabled", control.name()));
    return target;
}

ScriptCommands::Target ScriptCommands::unlocked(std::string& rest,
                                                std::initializer_list<ControlKind> kinds) {
    const Target target = workable(rest, kinds);
    if (target.control.locked())
        throw ScriptFault(fmt::format("{} is locked", target.control.name()));
    return target;
}

/// A modal window keeps a person from all others.
void ScriptCommands::requireReachable(const Form& form) const {
    const std::vector<Form*>& modal = main_.modalForms();
    if (!modal.empty() && modal.back() != &form)
        throw ScriptFault(fmt::format("{} cannot be used before {} is closed", form.formName(),
                                      modal.back()->formName()));
}

int ScriptCommands::rowIn(const Target& target, int row) const {
    if (static_cast<std::size_t>(row) >= target.control.items().size())
        throw ScriptFault(fmt::format("{} has no entry #{}", target.control.name(), row));
    return row;
}

const Form* ScriptCommands::active() const {
    if (!main_.modalForms().empty()) return main_.modalForms().back();
    if (main_.activeWindow() != nullptr) return main_.activeWindow();
    return &main_;
}

}  // namespace varnholt
