// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/beside_design.h"

#include "basis/raised_flag.h"
#include "design/frmBHDesign.h"

namespace varnholt {

BesideDesign::BesideDesign(const std::string& formName, int title, frmBHDesign& design)
    : ChildWindow(formName, design.main()), title_(title), design_(design) {
    fields().setManner({[this] { return settingUnits; }, [this] { return units(); }, {}});
}

void BesideDesign::load() {
    setCaption(titleNow());
    showInUnits();
    lookAgain();
}

ChildWindow& BesideDesign::owner() { return design_; }
UnitSystem BesideDesign::units() const { return design_.units(); }

/// What is done here is a step of the design.
void BesideDesign::actionBegins() {
    ChildWindow::actionBegins();
    design_.touch();
    pasteFault_.clear();
}

void BesideDesign::actionDone() {
    setCaption(titleNow());
    lookAgain();
}

/// Before it has a file or a name, a project is called as its window is.
std::string BesideDesign::titleNow() const {
    const std::string& project = design_.information().projectName;
    const std::string& name = !design_.FileName.empty() ? design_.FileName
                              : !project.empty()        ? project
                                                        : design_.caption();
    return text(title_) + " - " + name;
}

void BesideDesign::showInUnits() {
    const RaisedFlag setting(settingUnits);
    showCaptions();
    showInputs();
    showFigures();
}

void BesideDesign::showDocument() {
    endVisit();
    fields().forgetRefused();
    showInUnits();
    lookAgain();
    refreshNotice();
}

void BesideDesign::showCaptions() {
    for (const UnitCaption& each : unitCaptions_)
        control(each.control).setCaption(text(each.caption.in(units())));
    fields().showCaptions();
}

void BesideDesign::followUnits(const std::string& name, UnitTexts caption) {
    unitCaptions_.push_back({name, caption});
}

void BesideDesign::addUnitLabel(const std::string& name, const std::string& frame,
                                UnitTexts caption) {
    followUnits(name, caption);
    add(name, ControlKind::label).in(frame);
}

Control& BesideDesign::addOutput(const std::string& name, const std::string& frame) {
    return add(name, ControlKind::label).in(frame).foundLate();
}

}  // namespace varnholt
