// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frame/varnmain.h"
#include "script/driver.h"

namespace varnholt {

/// Works the forms themselves, without a toolkit.
class FormDriver : public Driver {
 public:
    explicit FormDriver(Varnmain& main) : main_(main) {}

    void type(Form& form, const Control& control, const std::string& text) override;
    void leave(Form& form, const Control& control) override;
    void key(Form& form, const Control& control, const std::string& key) override;
    void click(Form& form, const Control& control) override;
    void choose(Form& form, const Control& control, int index) override;
    void select(Form& form, const Control& control, const std::vector<int>& rows) override;
    void slide(Form& form, const Control& control, double value) override;
    void pickDate(Form& form, const Control& control, const Date& date) override;
    void activate(Form& form) override;
    void close(Form& form) override;
    std::string caption(const Form& form) override;
    Shown read(Form& form, const Control& control, Property property) override;
    bool picture(Form&, const std::string&) override { return false; }

 private:
    bool isModal(const Form& form) const;
    ChildWindow* childOf(const Form& form) const;

    Varnmain& main_;
};

}  // namespace varnholt
