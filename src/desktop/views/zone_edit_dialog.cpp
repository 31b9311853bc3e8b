// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/zone_edit_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/binding/binder.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/feedback.h"

namespace varnholt {
namespace {

std::optional<std::string> textOf(const QLineEdit& edit) {
    if (edit.text().isEmpty()) return std::nullopt;
    return plain(edit.text());
}

/// A row that is called as the field of the window is.
QLineEdit* addRow(QFormLayout& rows, const QString& name) {
    auto* edit = new QLineEdit;
    edit->setAccessibleName(name);
    rows.addRow(name, edit);
    return edit;
}

}  // namespace

ZoneEditDialog::ZoneEditDialog(const ZoneWindow& window, QWidget* parent) : QDialog(parent) {
    const auto word = [&](int text) { return qt(window.text(text)); };
    const auto nameOf = [&](const std::string& field) {
        return qt(window.control(field).accessibleName());
    };
    setWindowTitle(word(Text::editZonesTitle));
    auto* rows = new QFormLayout(this);
    auto* keep = new QLabel(word(Text::editZonesKeep));
    rows->addRow(keep);
    for (const Mode m : modes) hours_[m] = addRow(*rows, nameOf(elementName("LOHoursText", m)));
    days_ = addRow(*rows, nameOf("LODaysperWeekText"));
    label_ = addRow(*rows, word(Text::editZonesLabel));
    numbered_ = new QCheckBox(word(Text::editZonesNumbered));
    rows->addRow(QString(), numbered_);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(word(Text::takeOver), QDialogButtonBox::AcceptRole);
    buttons->addButton(word(Text::stopEditing), QDialogButtonBox::RejectRole);
    rows->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

ZoneWindow::ZoneEdits ZoneEditDialog::edits() const {
    return {{textOf(*hours_[cooling]), textOf(*hours_[heating])},
            textOf(*days_),
            textOf(*label_),
            numbered_->isChecked()};
}

void editSelectedZones(Binder& bind) {
    auto* window = static_cast<ZoneWindow*>(bind.form());
    if (window == nullptr || window->selectedZone() < 0) return;
    ZoneEditDialog dialog(*window, bind.widget("LOZoneList")->window());
    if (dialog.exec() != QDialog::Accepted || bind.form() == nullptr) return;
    const int edited = window->editZones(window->control("LOZoneList").selected(), dialog.edits());
    window->platform().tell(filledIn(window->text(Text::editZonesDone), {std::to_string(edited)}));
}

}  // namespace varnholt
