// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/form_dialog.h"

#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

/// The room that its title takes, in the heavier letters of a title bar and beside its buttons.
int widthOfTitle(const QDialog& dialog) {
    constexpr int icons = 120;
    constexpr double heavier = 1.2;
    const int words = dialog.fontMetrics().horizontalAdvance(dialog.windowTitle());
    return icons + static_cast<int>(heavier * words);
}

/// What a dialog would like, as far as the screen has room.
QSize firstSizeOf(const QDialog& dialog) {
    const QSize room = dialog.screen()->availableSize() * 0.9;
    QSize size = dialog.sizeHint().expandedTo({widthOfTitle(dialog), 0}).boundedTo(room);
    // A view that is narrower than it would like stacks its columns, and needs more height.
    if (dialog.hasHeightForWidth())
        size.setHeight(
            std::clamp(dialog.heightForWidth(size.width()), size.height(), room.height()));
    return size;
}

}  // namespace

FormDialog::FormDialog(FormWindow* content, QWidget* parent) : QDialog(parent), content_(content) {
    // It stops the program's windows and not the help, which F1 opens beside it.
    setWindowModality(Qt::WindowModal);
    setWindowTitle(qt(content->binder().form()->caption()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    resize(firstSizeOf(*this));
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
