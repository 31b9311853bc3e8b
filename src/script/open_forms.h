// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "forms/form.h"

namespace varnholt {

/// The windows on show, in the order in which they were opened, and the names by which scripts
/// call them: "frmBHDesign#2", the main window without a number.
class OpenForms {
 public:
    void add(Form& form);
    /// The main window stands first, whenever it is told.
    void addMain(Form& form);
    void remove(Form& form);

    const std::vector<Form*>& all() const { return forms_; }
    std::vector<Form*> named(const std::string& formName) const;
    bool isOpen(const Form* form) const;
    bool isMain(const Form& form) const { return &form == main_; }
    std::string nameOf(const Form& form) const;

 private:
    std::vector<Form*> forms_;
    const Form* main_ = nullptr;
};

}  // namespace varnholt
