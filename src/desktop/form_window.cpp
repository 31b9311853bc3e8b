// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/form_window.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/icons.h"
#include "desktop/layout.h"
#include "desktop/qt_text.h"
#include "desktop/view_registry.h"

namespace varnholt {
namespace {

QIcon iconOf(const std::string& formName) {
    static const std::map<std::string, const char*> icons{
        {"frmBHDesign", "new-borehole"},      {"frmHZDesign", "new-horizontal"},
        {"frmSWDesign", "new-surface-water"}, {"frmZoneManage", "zones"},
        {"frmAvgBlock", "average-block"},     {"frmHPEdit", "heat-pump"},
    };
    const auto found = icons.find(formName);
    return houseIcon(QString::fromLatin1(found == icons.end() ? "window" : found->second));
}

void fill(QWidget* around, QWidget* content) {
    auto* layout = new QVBoxLayout(around);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
}

}  // namespace

FormWindow::FormWindow(Form& form, const ViewRegistry& views, const FaultTaker& faults)
    : binder_(form) {
    binder_.setWindow(this);
    binder_.setFaultTaker(faults);
    view_ = views.make(binder_);
    fill(this, view_);
    setWindowTitle(qt(form.caption()));
    setWindowIcon(iconOf(form.formName()));
    setReadingOrder(view_);
    binder_.nameTheNameless();
}

FormWindow::~FormWindow() {
    // The widgets outlive the binder by a moment and must not call it.
    binder_.detach();
}

ChildFrame::ChildFrame() { setAttribute(Qt::WA_DeleteOnClose, false); }

void ChildFrame::setContent(FormWindow* content) {
    content_ = content;
    setWidget(content);
    setWindowIcon(content->windowIcon());
}

void ChildFrame::closeEvent(QCloseEvent* event) {
    // The main window takes the frame away, after the form's question.
    event->ignore();
    if (onCloseBox) onCloseBox();
}

FormDialog::FormDialog(FormWindow* content, QWidget* parent) : QDialog(parent), content_(content) {
    setModal(true);
    setWindowTitle(content->windowTitle());
    fill(this, content);
    resize(sizeHint().boundedTo(screen()->availableSize() * 0.9));
    makeFirstButtonDefault();
    content_->binder().onSettled([this] { endWithForm(); });
}

/// Enter presses the form's first button.
void FormDialog::makeFirstButtonDefault() {
    for (const auto& control : content_->binder().form()->controls()) {
        if (control->kind() != ControlKind::button) continue;
        const BoundControl* bound = content_->binder().find(control->name());
        auto* button = bound == nullptr ? nullptr : qobject_cast<QPushButton*>(bound->widget());
        if (button == nullptr) continue;
        button->setDefault(true);
        return;
    }
}

void FormDialog::endWithForm() {
    const Form* form = content_->binder().form();
    if (form == nullptr || form->modalEnded()) done(Accepted);
}

void FormDialog::reject() {
    Form* form = content_->binder().form();
    if (form == nullptr || form->modalEnded()) return QDialog::reject();
    if (!form->queryClose()) return;
    form->endModal();
    QDialog::reject();
}

}  // namespace varnholt
