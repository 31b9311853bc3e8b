// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/monkey.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "monkey/invariants.h"
#include "script/properties.h"
#include "script/transcript.h"

namespace varnholt {
namespace {

using Kind = ControlKind;

constexpr std::size_t manyWindows = 8;
constexpr int pressesInADialog = 30;
constexpr int closesOfADialog = 100;
constexpr int looks = 3;
constexpr std::size_t proofsInAHundred = 2;

bool isEnabled(const Form& form, const Control& control) {
    if (!control.enabled()) return false;
    return control.container().empty() || isEnabled(form, form.control(control.container()));
}

bool takesHands(const Form& form, const Control& control) {
    switch (control.kind()) {
        case Kind::label:
            return form.takesClicks(control.name());
        case Kind::frame:
        case Kind::image:
            return false;
        case Kind::menu:
            return !control.container().empty() && !control.caption().empty();
        case Kind::combo:
        case Kind::list:
        case Kind::tabs:
            return !control.items().empty() || control.editable();
        default:
            return true;
    }
}

std::vector<const Control*> workableOf(const Form& form) {
    std::vector<const Control*> workable;
    for (const auto& control : form.controls())
        if (takesHands(form, *control) && !control->locked() && isEnabled(form, *control) &&
            form.isShown(*control))
            workable.push_back(control.get());
    return workable;
}

/// A window with little to work, as that of a page, is soon left: else it takes the presses that
/// the designs need.
std::size_t chanceToStay(const Form& form) {
    constexpr std::size_t most = 85;
    constexpr std::size_t aControl = 4;
    return std::min(most, aControl * workableOf(form).size());
}

ChildWindow& withMoreToWork(ChildWindow& one, ChildWindow& other) {
    return workableOf(one).size() < workableOf(other).size() ? other : one;
}

}  // namespace

Monkey::Monkey(Varnmain& main, MonkeyPlatform& platform, Driver& driver, Dice& dice, MonkeyLog& log)
    : main_(main), platform_(platform), driver_(driver), dice_(dice), log_(log), undo_(main) {
    platform_.forms().addMain(main_);
    platform_.begin(*this);
}

void Monkey::press() {
    act();
    if (!running()) return;
    checkFrame(main_);
    if (!main_.modalForms().empty()) throw std::runtime_error("a dialog has been left behind");
    undo_.follow();
    if (dice_.chance(proofsInAHundred)) proveUndo();
}

void Monkey::proveUndo() {
    undo_.prove([this](const char* entry) {
        const Control& control = main_.control(entry);
        log("click", main_, control);
        driver_.click(main_, control);
    });
    checkFrame(main_);
    if (ChildWindow* window = main_.activeWindow()) worked(window);
}

void Monkey::runModal(Form& form) {
    for (int i = 0; i < pressesInADialog && !form.modalEnded(); ++i) act();
    for (int i = 0; i < closesOfADialog && !form.modalEnded(); ++i) {
        log_.action("close " + platform_.forms().nameOf(form));
        driver_.close(form);
    }
    if (!form.modalEnded()) throw std::runtime_error(form.formName() + " cannot be closed");
}

void Monkey::fail(const ScriptFault& fault) { throw std::runtime_error(fault.what); }

void Monkey::act() {
    ++presses_;
    const bool inDialog = !main_.modalForms().empty();
    if (!inDialog && dice_.chance(main_.windows().size() > manyWindows ? 30 : 2))
        return closeSome();
    Form& form = inDialog ? *main_.modalForms().back() : anyForm();
    const std::vector<const Control*> workable = workableOf(form);
    if (workable.empty()) return;
    const Control& control = anyControl(workable);
    // Else few sessions would come far.
    if (control.name() == "mnuFileExit" && !dice_.chance(10)) return;
    work(form, control);
    if (platform_.takeQuit()) driver_.close(main_);
    worked(&form);
}

/// Fields stand in the majority, and buttons lead further.
const Control& Monkey::anyControl(const std::vector<const Control*>& workable) {
    const Control* control = dice_.among(workable);
    for (int i = 0; i < 3 && control->kind() == Kind::text; ++i) control = dice_.among(workable);
    return *control;
}

/// Reads what some controls show, so that a replay is compared.
void Monkey::look(Form& form) {
    constexpr int properties = static_cast<int>(Property::tooltip) + 1;
    for (int i = 0; i < looks; ++i) {
        const Control& control = *form.controls()[dice_.below(form.controls().size())];
        const auto property = static_cast<Property>(dice_.below(properties));
        if (!hasProperty(control.kind(), property)) continue;
        log_.action(fmt::format("print {}.{}.{}", platform_.forms().nameOf(form), control.name(),
                                nameOf(property)));
        driver_.read(form, control, property);
    }
}

/// Mostly the window in front, for a person keeps to what he sees.
Form& Monkey::anyForm() {
    const std::vector<ChildWindow*> windows = main_.windows();
    if (windows.empty() || dice_.chance(10)) return main_;
    if (dice_.chance(chanceToStay(*main_.activeWindow()))) return *main_.activeWindow();
    ChildWindow* drawn = dice_.among(windows);
    ChildWindow& window = withMoreToWork(*drawn, *dice_.among(windows));
    log_.action("activate " + platform_.forms().nameOf(window));
    driver_.activate(window);
    undo_.follow();  // it may have taken over loads that have changed
    return window;
}

void Monkey::closeSome() {
    if (main_.windows().empty()) return;
    ChildWindow& window = *dice_.among(main_.windows());
    log_.action("close " + platform_.forms().nameOf(window));
    driver_.close(window);
}

/// The handler may have taken the window away.
void Monkey::worked(Form* form) {
    if (platform_.forms().isOpen(form)) {
        checkForm(*form);
        if (!form->modalEnded()) look(*form);
    }
    for (const ChildWindow* window : main_.windows())
        if (window != form && dice_.chance(10)) checkForm(*window);
}

void Monkey::log(const std::string& verb, const Form& form, const Control& control,
                 const std::string& rest) {
    log_.action(fmt::format("{} {}.{}{}{}", verb, platform_.forms().nameOf(form), control.name(),
                            rest.empty() ? "" : " ", rest));
}

void Monkey::work(Form& form, const Control& control) {
    switch (control.kind()) {
        case Kind::text:
        case Kind::richText:
            return type(form, control);
        case Kind::combo:
            if (control.editable() && (control.items().empty() || dice_.chance(50)))
                return type(form, control);
            return choose(form, control);
        case Kind::list:
            if (control.multiple() && dice_.chance(50)) return select(form, control);
            return choose(form, control);
        case Kind::tabs:
            return choose(form, control);
        case Kind::slider:
        case Kind::upDown:
            return slide(form, control);
        case Kind::date: {
            const Date date{1990 + static_cast<int>(dice_.below(60)),
                            1 + static_cast<int>(dice_.below(12)),
                            1 + static_cast<int>(dice_.below(28))};
            log("date", form, control, isoText(date));
            return driver_.pickDate(form, control, date);
        }
        default:
            log("click", form, control);
            return driver_.click(form, control);
    }
}

void Monkey::type(Form& form, const Control& control) {
    if (dice_.chance(5)) {
        log_.action("clipboard 1\\t2\\r\\n3.5\\t-4\\r\\nabc\\r\\n");
        platform_.setClipboard("1\t2\r\n3.5\t-4\r\nabc\r\n");
        log("key", form, control, "Ctrl+V");
        driver_.key(form, control, "Ctrl+V");
    } else {
        const std::string text = anyText(control);
        log("type", form, control, text);
        driver_.type(form, control, text);
    }
    if (!platform_.forms().isOpen(&form) || !form.isShown(control) || !isEnabled(form, control))
        return;
    if (dice_.chance(10)) {
        log("key", form, control, "Enter");
        driver_.key(form, control, "Enter");
    }
    if (!platform_.forms().isOpen(&form) || !dice_.chance(70)) return;
    log("leave", form, control);
    driver_.leave(form, control);
}

void Monkey::choose(Form& form, const Control& control) {
    const std::size_t row = dice_.below(control.items().size());
    log("choose", form, control, "#" + std::to_string(row));
    driver_.choose(form, control, static_cast<int>(row));
}

void Monkey::select(Form& form, const Control& control) {
    std::vector<int> rows;
    std::string words;
    for (std::size_t row = 0; row < control.items().size(); ++row) {
        if (!dice_.chance(30)) continue;
        rows.push_back(static_cast<int>(row));
        words += (words.empty() ? "#" : " #") + std::to_string(row);
    }
    log("select", form, control, words);
    driver_.select(form, control, rows);
}

void Monkey::slide(Form& form, const Control& control) {
    const double range = control.max() - control.min();
    const double position = std::round((control.min() - 0.1 * range) + 1.2 * range * dice_.share());
    log("slide", form, control, numberText(position));
    driver_.slide(form, control, position);
}

/// Sensible numbers most of the time, for refused ones lead nowhere new.
std::string Monkey::anyText(const Control& control) {
    static const std::vector<std::string> odd{"",
                                              "-",
                                              ".",
                                              "0",
                                              "-0",
                                              "abc",
                                              "12abc",
                                              "1e308",
                                              "-1e308",
                                              "1e400",
                                              "1e-320",
                                              "nan",
                                              "32767",
                                              "32768",
                                              "-32769",
                                              "1,5",
                                              "  7  ",
                                              "+5",
                                              "1.2.3",
                                              "\xC3\xA4\xE2\x82\xAC",
                                              "\"q\"",
                                              "0.000001",
                                              "-17.8",
                                              "99999999999999999999",
                                              "a name with blanks"};
    if (dice_.chance(15)) return dice_.among(odd);
    if (control.kind() == Kind::richText) return "Notes " + std::to_string(dice_.below(100));
    const double scale = std::pow(10.0, static_cast<double>(dice_.below(4)));
    return numberText(std::round(dice_.share() * scale * 10) / 10);
}

}  // namespace varnholt
