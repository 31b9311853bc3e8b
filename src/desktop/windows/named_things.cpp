// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/named_things.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <set>

#include "basis/file_system.h"
#include "desktop/binding/form_window.h"
#include "desktop/binding/mnemonics.h"
#include "desktop/widgets/pages.h"
#include "desktop/widgets/qt_text.h"
#include "forms/texts.h"

namespace varnholt {
namespace {

void addEntries(const QMenu& menu, const QString& place, std::vector<NamedThing>& things) {
    for (QAction* action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible()) continue;
        const QString name = qt(withoutMnemonic(action->text()));
        if (action->menu() != nullptr) {
            addEntries(*action->menu(), place + QStringLiteral(" > ") + name, things);
            continue;
        }
        things.push_back({NamedThing::Kind::command, name, place,
                          action->shortcut().toString(QKeySequence::NativeText),
                          action->isEnabled(), [kept = QPointer(action)] {
                              if (kept != nullptr) kept->trigger();
                          }});
    }
}

bool isField(ControlKind kind) {
    static const std::set<ControlKind> kinds{
        ControlKind::text,  ControlKind::richText, ControlKind::combo, ControlKind::list,
        ControlKind::check, ControlKind::option,   ControlKind::date,  ControlKind::slider};
    return kinds.count(kind) > 0;
}

/// What a person would call the control.
std::string nameOf(const Form& form, const Control& control) {
    if (!control.accessibleName().empty()) return control.accessibleName();
    if (!control.caption().empty()) return captionWords(control.caption());
    if (form.has(control.label())) return captionWords(form.control(control.label()).caption());
    return control.kind() == ControlKind::button ? control.tooltip() : std::string();
}

}  // namespace

std::vector<ExampleFile> exampleFiles(const std::string& programFolder) {
    std::vector<ExampleFile> files;
    const QDir folder(qt(joinPath(programFolder, "work files")), QStringLiteral("*.vht"),
                      QDir::Name | QDir::IgnoreCase, QDir::Files);
    for (const QFileInfo& file : folder.entryInfoList())
        files.push_back({plain(file.absoluteFilePath()), file.completeBaseName()});
    return files;
}

void addMenuCommands(const QMenuBar& bar, std::vector<NamedThing>& things) {
    for (const QAction* action : bar.actions())
        if (action->menu() != nullptr)
            addEntries(*action->menu(), qt(withoutMnemonic(action->text())), things);
}

void goTo(FormWindow& window, const std::string& control) {
    BoundControl* bound = window.binder().require(control);
    if (bound == nullptr) return;
    bringToSight(bound->widget());
    bound->widget()->setFocus(Qt::ShortcutFocusReason);
    if (auto* edit = qobject_cast<QLineEdit*>(bound->widget())) edit->selectAll();
}

void addControls(FormWindow& window, std::vector<NamedThing>& things) {
    const Form* form = window.binder().form();
    if (form == nullptr) return;
    for (const auto& control : form->controls()) {
        const bool command = control->kind() == ControlKind::button;
        const QString name = qt(nameOf(*form, *control));
        if ((!command && !isField(control->kind())) || name.isEmpty() || !form->isShown(*control))
            continue;
        const auto run = [kept = QPointer(&window), command, id = control->name()] {
            if (kept == nullptr) return;
            goTo(*kept, id);
            const BoundControl* bound = kept->binder().find(id);
            auto* button =
                bound == nullptr ? nullptr : qobject_cast<QAbstractButton*>(bound->widget());
            if (command && button != nullptr) button->click();
        };
        things.push_back({command ? NamedThing::Kind::command : NamedThing::Kind::field,
                          name,
                          qt(form->caption()),
                          {},
                          control->enabled(),
                          run});
    }
}

}  // namespace varnholt
