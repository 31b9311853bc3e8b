// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/form_window.h"

#include <QVBoxLayout>

#include "desktop/widgets/icons.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

QIcon iconOf(const std::string& formName) {
    static const std::map<std::string, const char*> icons{
        {"frmBHDesign", "new-borehole"},      {"frmHZDesign", "new-horizontal"},
        {"frmSWDesign", "new-surface-water"}, {"frmZoneManage", "zones"},
        {"frmAvgBlock", "average-block"},     {"frmHPEdit", "heat-pump"},
        {"frmDiffusivityCalc", "calculator"}, {"frmPumpPowerCalc", "calculator"},
        {"frmEqvHoursCalc", "calculator"},    {"frmImport1", "import"},
    };
    const auto found = icons.find(formName);
    return houseIcon(QString::fromLatin1(found == icons.end() ? "window" : found->second));
}

}  // namespace

FormWindow::FormWindow(Form& form, const ViewMaker& makeView, const FaultTaker& faults)
    : binder_(form) {
    binder_.setWindow(this);
    binder_.setFaultTaker(faults);
    binder_.build([&] { view_ = makeView(binder_); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setWindowIcon(iconOf(form.formName()));
    finish();
    binder_.onBuilt = [this] { finish(); };
}

/// What can only be told once the widgets stand in their places.
void FormWindow::finish() {
    setReadingOrder(view_);
    binder_.nameTheNameless();
}

FormWindow::~FormWindow() {
    // The widgets outlive the binder by a moment and must not call it.
    binder_.detach();
}

}  // namespace varnholt
