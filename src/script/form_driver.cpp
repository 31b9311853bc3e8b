// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/form_driver.h"

#include <algorithm>

#include "script/properties.h"

namespace varnholt {

// The names are copied, since a handler may take the control's window away.

void FormDriver::type(Form& form, const Control& control, const std::string& text) {
    form.type(std::string(control.name()), text);
}
void FormDriver::leave(Form& form, const Control& control) {
    form.leave(std::string(control.name()));
}
void FormDriver::key(Form& form, const Control& control, const std::string& key) {
    form.key(std::string(control.name()), key);
}
void FormDriver::click(Form& form, const Control& control) {
    form.click(std::string(control.name()));
}
void FormDriver::choose(Form& form, const Control& control, int index) {
    form.choose(std::string(control.name()), index);
}
void FormDriver::select(Form& form, const Control& control, const std::vector<int>& rows) {
    form.select(std::string(control.name()), rows);
}
void FormDriver::slide(Form& form, const Control& control, double value) {
    form.slide(std::string(control.name()), value);
}
void FormDriver::pickDate(Form& form, const Control& control, const Date& date) {
    form.pickDate(std::string(control.name()), date);
}

void FormDriver::activate(Form& form) {
    if (ChildWindow* child = childOf(form)) main_.activate(*child);
}

void FormDriver::close(Form& form) {
    if (ChildWindow* child = childOf(form)) {
        main_.close(*child);
    } else if (isModal(form)) {
        if (form.queryClose()) form.endModal();
    } else if (&form == main_.splash()) {
        main_.hideSplash();
    } else if (main_.queryClose()) {
        main_.platform().closed(main_);
    }
}

std::string FormDriver::caption(const Form& form) { return form.caption(); }

Shown FormDriver::read(Form& form, const Control& control, Property property) {
    return propertyOf(form, control, property);
}

bool FormDriver::isModal(const Form& form) const {
    const std::vector<Form*>& modal = main_.modalForms();
    return std::find(modal.begin(), modal.end(), &form) != modal.end();
}

ChildWindow* FormDriver::childOf(const Form& form) const {
    for (ChildWindow* child : main_.windows())
        if (child == &form) return child;
    return nullptr;
}

}  // namespace varnholt
