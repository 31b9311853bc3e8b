// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <variant>

#include "borehole_window.h"
#include "design/frmSecondOpinion.h"

namespace varnholt {

/// A borehole design with its second opinion open in front of it.
class SecondOpinionWindow : public BoreholeWindow {
 public:
    SecondOpinionWindow() {
        texts.known.insert({{1081, "Undo"},
                            {1082, "Redo"},
                            {2630, "Second Opinion"},
                            {2747, "only %1 lines"},
                            {2748, "line %1 is bad"}});
        opinion = open();
    }

    frmSecondOpinion* open() {
        design->click("CASecondOpinionCommand");
        return dynamic_cast<frmSecondOpinion*>(main.find("frmSecondOpinion"));
    }
    void enter(const std::string& field, const std::string& text) {
        opinion->type(field, text);
        opinion->leave(field);
    }
    std::string shown(const std::string& field) const { return opinion->control(field).text(); }
    std::string captioned(const std::string& label) {
        opinion->catchUp();
        return opinion->control(label).caption();
    }
    double held(const std::string& name) const {
        return std::get<double>(opinion->values().read(name));
    }
    const SecondOpinionInputs& inputs() const { return design->project().secondOpinion; }

    frmSecondOpinion* opinion = nullptr;
};

}  // namespace varnholt
