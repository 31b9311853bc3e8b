// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/invariants.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

#include "basis/text_encoding.h"
#include "frame/design_document.h"

namespace varnholt {
namespace {

void require(bool holds, const Form& form, const std::string& what) {
    if (!holds) throw std::runtime_error(form.formName() + ": " + what);
}

bool isColour(int number) { return number >= 0 && number <= 0xFFFFFF; }

/// A number that is none has no business on a label.
bool isNoNumber(const std::string& caption) {
    return caption == "nan" || caption == "-nan" || caption == "inf" || caption == "-inf";
}

void checkEntries(const Form& form, const Control& control) {
    const int count = static_cast<int>(control.items().size());
    const auto within = [&](int row) { return row >= 0 && row < count; };
    const std::vector<int>& rows = control.selected();
    require(control.index() == -1 || within(control.index()), form,
            control.name() + " has an index outside its entries");
    require(std::all_of(rows.begin(), rows.end(), within), form,
            control.name() + " has a selected row outside its entries");
    require(std::is_sorted(rows.begin(), rows.end()), form,
            control.name() + " has its selected rows in disorder");
}

void checkPosition(const Form& form, const Control& control) {
    require(control.min() <= control.max(), form, control.name() + " has a range upside down");
    require(control.value() >= control.min() && control.value() <= control.max(), form,
            fmt::format("{} stands at {} outside {} to {}", control.name(), control.value(),
                        control.min(), control.max()));
}

void checkControl(const Form& form, const Control& control) {
    require(isValidUtf8(control.text()) && isValidUtf8(control.caption()), form,
            control.name() + " shows text that is not UTF-8");
    require(isColour(control.backcolor()) && isColour(control.forecolor()), form,
            control.name() + " has a colour beyond 24 bits");
    require(!isNoNumber(control.caption()), form, control.name() + " shows " + control.caption());
    require(control.container().empty() || form.has(control.container()), form,
            control.name() + " stands in a frame that is not there");
    checkEntries(form, control);
    if (control.kind() == ControlKind::slider || control.kind() == ControlKind::upDown)
        checkPosition(form, control);
}

void checkOptionGroups(const Form& form) {
    std::map<std::string, int> checked;
    for (const auto& control : form.controls())
        if (control->kind() == ControlKind::option && control->checked())
            require(++checked[control->group()] == 1, form,
                    "two option buttons are on in " + control->group());
}

void checkValues(const Form& form) {
    for (const std::string& name : form.values().names()) {
        if (!form.values().has(name)) continue;
        const PublicValue value = form.values().read(name);
        const double* number = std::get_if<double>(&value);
        require(number == nullptr || !std::isnan(*number), form, name + " is no number");
    }
}

}  // namespace

void checkForm(const Form& form) {
    for (const auto& control : form.controls()) checkControl(form, *control);
    checkOptionGroups(form);
    checkValues(form);
}

void checkFrame(Varnmain& main) {
    require(main.activeWindow() == nullptr || main.isOpen(main.activeWindow()), main,
            "a closed window is active");
    require((main.activeWindow() == nullptr) == main.windows().empty(), main,
            "windows are open and none is active");
    require(main.control("Metric").checked() != main.control("English").checked(), main,
            "both unit systems are on, or none");
    const ChildWindow* active = main.ownerInFront();
    require(main.control("mnuUndo").enabled() == (active != nullptr && active->history().canUndo()),
            main, "Undo does not tell whether there is something to undo");
    require(main.control("mnuRedo").enabled() == (active != nullptr && active->history().canRedo()),
            main, "Redo does not tell whether there is something to redo");
    std::size_t slots = 0;
    for (const DesignKind kind : designKinds) slots += main.slots(kind).count();
    require(slots == main.designs().size(), main,
            fmt::format("{} slots are in use for {} designs", slots, main.designs().size()));
    for (const DesignDocument* design : main.designs())
        require(main.slots(design->kind()).exists.at(static_cast<std::size_t>(design->counter)),
                main, "a design stands in a free slot");
}

}  // namespace varnholt
