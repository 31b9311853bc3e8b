// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/binding/form_window.h"
#include "desktop/windows/main_menu.h"
#include "persistence/recent_files.h"

class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QStackedWidget;

namespace varnholt {

class ChildFrame;
class StartPage;
struct NamedThing;
struct StartFiles;
class Varnmain;

/// The main window: menus, toolbar, status bar, and the area of the child windows.
class MainWindow : public QMainWindow {
 public:
    /// @param recentFile where the list of recent files is kept; empty for nowhere
    MainWindow(Varnmain& main, FaultTaker faults, const std::string& recentFile);
    ~MainWindow() override;
    /// Its first size, where the screen has room for it.
    static QSize usualSize() { return {1280, 860}; }
    /// What the desktop puts around the window, its title above all, which is on the screen too.
    static QMargins frameMargins() { return {8, 40, 8, 8}; }

    QMdiArea& area() { return *area_; }
    MainMenu& menu() { return *menu_; }
    /// The child windows' area, or the page that says what to do first.
    void showArea(bool area);
    /// The frame of a child window, null for none; who keeps the frames tells.
    std::function<QMdiSubWindow*(const Form&)> frameOf;
    /// The start picture; null takes it away.
    void showStartPicture(QWidget* picture);
    /// Opens project and zone files, as named on the command line or dropped on the window.
    void openFiles(const std::vector<std::string>& paths);
    /// Runs something of the forms; what it throws goes to the taker of faults.
    void guarded(const std::function<void()>& action);
    /// Opens the help at what it says of one of the main window's commands.
    void explain(const std::string& command);
    /// Says a sentence in the status bar until something else is done; an empty one ends it.
    void tell(const std::string& sentence);
    /// What the progress of a file that comes slowly says.
    std::string reading(const std::string& file) const;
    /// Folders where somebody's files are likely to be, each once: the person's own documents, the
    /// examples, and where the last files are.
    std::vector<std::string> usualFolders() const;
    /// The widgets of the window in front; null where there is none.
    FormWindow* activeContent() const;
    /// The window that a dialog belongs to: the innermost dialog on show, else this one.
    QWidget* dialogParent();

 protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    StartFiles startFiles();
    void addGivingOutEntries();
    void addFinder();
    void findByName();
    void addControlsOf(ChildFrame& frame, std::vector<NamedThing>& things);
    void giveOut(void (*run)(const Form&, QWidget*), QWidget* (*subject)(QWidget&));
    void addWindowMenu();
    void fillWindowMenu();
    void setLoadsBesideDesign();
    void addRecentMenu();
    void fillRecentMenu();
    void refresh();
    QWidget* newNotice();
    void showNotice();
    /// A person has called a command that stands in no menu.
    void commandBegins();

    Varnmain& main_;
    FaultTaker faults_;
    RecentFiles recent_;
    QStackedWidget* pages_;
    QMdiArea* area_;
    StartPage* start_;
    QLabel* units_;
    QLabel* told_;
    QLabel* notice_;
    QWidget* noticeStrip_;
    std::unique_ptr<MainMenu> menu_;
    QMenu* recentMenu_ = nullptr;
    std::vector<QAction*> windowEntries_;
};

}  // namespace varnholt
