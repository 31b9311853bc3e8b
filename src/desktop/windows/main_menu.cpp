// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/main_menu.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>
#include <vector>

#include "desktop/binding/mnemonics.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/tool_keys.h"
#include "frame/menu_table.h"
#include "frame/varnmain.h"
#include "script/properties.h"

namespace varnholt {
namespace {

struct CommandLook {
    const char* shortcut;
    const char* icon;
};

// clang-format off
const std::map<std::string, CommandLook> commandLooks{
    {"NewBorehole",           {"Ctrl+N", "new-borehole"}},
    {"NewHorizontal",         {"Ctrl+Shift+N", "new-horizontal"}},
    {"NewSurfaceWater",       {"Ctrl+Alt+N", "new-surface-water"}},
    {"mnuFileOpen",           {"Ctrl+O", "open"}},
    {"OpenProject",           {"Ctrl+Shift+O", ""}},
    {"mnuFileSave",           {"Ctrl+S", "save"}},
    {"mnuFileSaveAs",         {"Ctrl+Shift+S", ""}},
    {"SaveProject",           {"Ctrl+Alt+S", ""}},
    {"mnuFilePrint",          {"Ctrl+P", "print"}},
    {"mnuFilePrintSetup",     {"Ctrl+Shift+P", ""}},
    {"mnuFileExit",           {"Ctrl+Q", ""}},
    {"mnuUndo",               {"Ctrl+Z", ""}},
    {"mnuRedo",               {"Ctrl+Shift+Z", ""}},
    {"mnuCut",                {"Ctrl+X", ""}},
    {"mnuCopy",               {"Ctrl+C", ""}},
    {"mnuPaste",              {"Ctrl+V", ""}},
    {"mnuSelectAll",          {"Ctrl+A", ""}},
    {"mnuShowToolbar",        {"Ctrl+Shift+B", ""}},
    {"mnuAvgBlock",           {"Ctrl+B", "average-block"}},
    {"mnuZoneManage",         {"Ctrl+M", "zones"}},
    {"mnuLink",               {"Ctrl+L", "link"}},
    {"mnuUnlink",             {"Ctrl+Shift+L", "unlink"}},
    {"mnuMonthlyLoadsImport", {"Ctrl+I", ""}},
    {"EditAdd",               {"Ctrl+H", "heat-pump"}},
    {"mnuDiffCalc",           {"Ctrl+1", "calculator"}},
    {"mnuEqvHours",           {"Ctrl+2", "calculator"}},
    {"mnuPumpPowerCalc",      {"Ctrl+3", "calculator"}},
    {"Metric",                {"Ctrl+Shift+M", ""}},
    {"English",               {"Ctrl+Shift+E", ""}},
    {"FluidProperties",       {"Ctrl+4", ""}},
    {"SoilProperties",        {"Ctrl+5", ""}},
    {"PipeProperties",        {"Ctrl+6", ""}},
    {"Conversions",           {"Ctrl+7", ""}},
    {"mnuHelp",               {"F1", "help"}},
    {"mnuWhatsThis",          {"Shift+F1", ""}},
    {"mnuAbout",              {"Ctrl+F1", ""}},
};
// clang-format on

QString toolIcon(const std::string& command) {
    // The one button for both units.
    if (command == "Metric") return QStringLiteral("units");
    if (command == "OpenProject") return QStringLiteral("open");
    if (command == "SaveProject") return QStringLiteral("save");
    return QString::fromLatin1(commandLooks.at(command).icon);
}

/// They work on what is being typed, and leave it unfinished.
bool isEditCommand(const std::string& name) {
    const auto rows = menuTable();
    return std::any_of(rows.begin(), rows.end(), [&](const MenuRow& row) {
        return row.menu != nullptr && name == row.control && row.menu == std::string("mnuEdit");
    });
}

std::string toolName(std::size_t index) { return "tbrMain(" + std::to_string(index) + ")"; }

}  // namespace

MainMenu::MainMenu(Varnmain& main, QMenuBar& bar, QToolBar& toolbar, Guard guard)
    : main_(main), toolbar_(toolbar), guard_(std::move(guard)) {
    addMenus(bar);
    addTools(toolbar);
    markKeys();
    main_.addObserver(this);
    for (const auto& control : main_.controls()) show(*control);
}

MainMenu::~MainMenu() { main_.removeObserver(this); }

void MainMenu::addMenus(QMenuBar& bar) {
    for (const MenuRow& row : menuTable()) {
        const std::string name = row.control;
        if (row.menu == nullptr) {
            menus_[name] = bar.addMenu(QString());
            actions_[name] = menus_[name]->menuAction();
        } else if (row.captionText == 0) {
            actions_[name] = menus_.at(row.menu)->addSeparator();
        } else {
            QAction* action = menus_.at(row.menu)->addAction(QString());
            actions_[name] = action;
            connectAction(action, name);
            const CommandLook& look = commandLooks.at(name);
            action->setShortcut(QKeySequence(QString::fromLatin1(look.shortcut)));
            if (*look.icon != '\0') action->setIcon(houseIcon(QString::fromLatin1(look.icon)));
        }
        actions_[name]->setObjectName(qt(name));
    }
}

void MainMenu::addTools(QToolBar& toolbar) {
    std::size_t index = 0;
    for (const ToolRow& row : toolTable()) {
        if (row.dividerBefore) toolbar.addSeparator();
        const std::string name = toolName(index++);
        QAction* action = toolbar.addAction(houseIcon(toolIcon(row.command)), QString());
        action->setObjectName(qt(name));
        actions_[name] = action;
        connectAction(action, name);
        const auto look = commandLooks.find(row.command);
        action->setProperty("keys", QKeySequence(QString::fromLatin1(look->second.shortcut))
                                        .toString(QKeySequence::NativeText));
        if (QWidget* button = toolbar.widgetForAction(action)) button->setObjectName(qt(name));
        workByKeyboard(toolbar, action);
    }
}

void MainMenu::connectAction(QAction* action, const std::string& name) {
    connect(action, &QAction::triggered, this, [this, name] {
        // What keeps a person's keys and mouse from the menus while a box waits for its answer
        // keeps no screen reader from them.
        if (!scripted_ && QApplication::activeModalWidget() != nullptr)
            return show(main_.control(name));
        ++commands_;
        guard_([&] {
            if (beforeCommand && !isEditCommand(name)) beforeCommand();
            main_.click(name);
        });
        // Whatever the toolkit has toggled, the control decides.
        show(main_.control(name));
    });
}

QMenu* MainMenu::menu(const std::string& name) const {
    const auto found = menus_.find(name);
    return found == menus_.end() ? nullptr : found->second;
}

QAction* MainMenu::action(const std::string& name) const {
    const auto found = actions_.find(name);
    return found == actions_.end() ? nullptr : found->second;
}

void MainMenu::show(const Control& control) {
    if (control.name() == "tbrMain") return toolbar_.setVisible(control.visible());
    QAction* action = this->action(control.name());
    if (action == nullptr) return;
    action->setEnabled(control.enabled());
    action->setVisible(control.visible());
    // Entries that can be checked show their mark from then on.
    if (control.checked() && !action->isCheckable()) action->setCheckable(true);
    if (action->isCheckable()) action->setChecked(control.checked());
    const QString tip = qt(control.tooltip());
    if (control.kind() == ControlKind::menu) {
        action->setStatusTip(tip);
        return;
    }
    const QString keys = action->property("keys").toString();
    action->setText(tip);
    action->setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1  (%2)").arg(tip, keys));
    action->setStatusTip(tip);
    if (QWidget* button = toolbar_.widgetForAction(action)) button->setAccessibleName(tip);
}

/// Gives every menu its keys again.
void MainMenu::markKeys() {
    std::map<std::string, std::vector<std::string>> entries;
    for (const MenuRow& row : menuTable())
        if (row.captionText != 0)
            entries[row.menu == nullptr ? std::string() : row.menu].emplace_back(row.control);
    // Alt and H is the help everywhere: no menu before it takes the letter.
    std::vector<std::string>& bar = entries[{}];
    std::rotate(bar.begin(), std::find(bar.begin(), bar.end(), "Help"), bar.end());
    for (const auto& [menu, names] : entries) {
        std::vector<std::string> captions;
        for (const std::string& name : names) captions.push_back(main_.control(name).caption());
        const std::vector<QString> marked = withMnemonics(captions);
        for (std::size_t i = 0; i < names.size(); ++i) actions_.at(names[i])->setText(marked[i]);
    }
}

Shown MainMenu::shown(const Control& control, Property property) const {
    const QAction* action = this->action(control.name());
    if (action == nullptr && control.name() != "tbrMain")
        return propertyOf(main_, control, property);
    if (action == nullptr) {
        if (property == Property::visible) return !toolbar_.isHidden();
        if (property == Property::enabled) return toolbar_.isEnabled();
        return propertyOf(main_, control, property);
    }
    switch (property) {
        case Property::caption:
            return control.kind() == ControlKind::menu ? withoutMnemonic(action->text())
                                                       : std::string();
        case Property::tooltip:
            return plain(control.kind() == ControlKind::menu ? action->statusTip()
                                                             : action->text());
        case Property::enabled:
            return action->isEnabled();
        case Property::visible:
            return action->isVisible() &&
                   (control.kind() == ControlKind::menu || !toolbar_.isHidden());
        case Property::checked:
            return action->isChecked();
        case Property::backcolor:
            return control.backcolor();
        case Property::forecolor:
            return control.forecolor();
        default:
            return propertyOf(main_, control, property);
    }
}

void MainMenu::propertyChanged(Control& control, Property property) {
    if (property == Property::caption) markKeys();
    show(control);
    if (onChange) onChange();
}

void MainMenu::captionChanged(Form&) {
    if (onChange) onChange();
}

void MainMenu::settled(Form&) {
    if (afterCommand) afterCommand();
}

}  // namespace varnholt
