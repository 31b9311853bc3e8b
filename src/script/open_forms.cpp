// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/open_forms.h"

#include <fmt/format.h>

#include <algorithm>

namespace varnholt {

void OpenForms::add(Form& form) {
    if (!isOpen(&form)) forms_.push_back(&form);
}

void OpenForms::addMain(Form& form) {
    remove(form);
    forms_.insert(forms_.begin(), &form);
    main_ = &form;
}

void OpenForms::remove(Form& form) {
    forms_.erase(std::remove(forms_.begin(), forms_.end(), &form), forms_.end());
}

std::vector<Form*> OpenForms::named(const std::string& formName) const {
    std::vector<Form*> found;
    for (Form* form : forms_)
        if (form->formName() == formName) found.push_back(form);
    return found;
}

bool OpenForms::isOpen(const Form* form) const {
    return std::find(forms_.begin(), forms_.end(), form) != forms_.end();
}

std::string OpenForms::nameOf(const Form& form) const {
    if (isMain(form)) return form.formName();
    const std::vector<Form*> same = named(form.formName());
    const auto place = std::find(same.begin(), same.end(), &form) - same.begin();
    return fmt::format("{}#{}", form.formName(), place + 1);
}

}  // namespace varnholt
