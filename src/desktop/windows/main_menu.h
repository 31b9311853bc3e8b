// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <string>

#include "forms/form.h"
#include "script/transcript.h"

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

namespace varnholt {

class Varnmain;

/// The menu bar and the toolbar of the main window, bound to its controls by their names. Keys in
/// the menus and shortcuts are given here: captions know none.
class MainMenu : public QObject, public FormObserver {
 public:
    using Guard = std::function<void(const std::function<void()>&)>;

    /// @param guard runs a command; nothing that it throws may pass through the toolkit
    MainMenu(Varnmain& main, QMenuBar& bar, QToolBar& toolbar, Guard guard);
    ~MainMenu() override;

    /// The menu of a control such as "File" or "Window".
    QMenu* menu(const std::string& name) const;
    /// Of a menu entry or a button of the toolbar; null for neither.
    QAction* action(const std::string& name) const;
    /// What is seen of a control's property.
    Shown shown(const Control& control, Property property) const;
    /// How many commands a person has called.
    int commands() const { return commands_; }

    /// A script gives the commands, and knows which window it has to answer first.
    void setScripted() { scripted_ = true; }

    void propertyChanged(Control& control, Property property) override;
    void captionChanged(Form& form) override;
    void settled(Form& form) override;

    /// A command that is none of the Edit menu's is about to run.
    std::function<void()> beforeCommand;
    /// A command has run to its end.
    std::function<void()> afterCommand;
    /// The main window's caption has changed, or its units.
    std::function<void()> onChange;

 private:
    void addMenus(QMenuBar& bar);
    void addTools(QToolBar& toolbar);
    void connectAction(QAction* action, const std::string& name);
    void show(const Control& control);
    void markKeys();

    Varnmain& main_;
    QToolBar& toolbar_;
    Guard guard_;
    std::map<std::string, QAction*> actions_;
    std::map<std::string, QMenu*> menus_;
    int commands_ = 0;
    bool scripted_ = false;
};

}  // namespace varnholt
