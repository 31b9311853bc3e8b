// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <string>

#include "desktop/binding/open_windows.h"
#include "desktop/views/view_registry.h"
#include "desktop/windows/child_frame.h"
#include "desktop/windows/form_dialog.h"
#include "desktop/windows/window_places.h"
#include "script/script_platform.h"

class QMdiSubWindow;

namespace varnholt {

class ChildWindow;
class MainWindow;
class Varnmain;

/// The real windows of the open forms, whoever works them: a person or a script.
class WindowShelf : public WindowStage, public OpenWindows {
 public:
    /// @param scripted a script works the windows: the focus alone leaves no field
    explicit WindowShelf(bool scripted);
    ~WindowShelf() override;

    /// Windows open where a person has left them, and are remembered there.
    void rememberPlaces(WindowPlaces& places) { remembered_ = &places; }
    /// Remembers the main window's place, at the end of the session.
    void keepMainPlace();
    void setFaultTaker(FaultTaker faults) { faults_ = std::move(faults); }
    /// The main window, before anything opens.
    void setMain(MainWindow& window, Varnmain& main);
    MainWindow& mainWindow() { return *window_; }

    void opened(Form& form) override;
    void closed(Form& form) override;
    void activated(Form& form) override;
    void modalOpened(Form& form) override;
    void modalClosed(Form& form) override;
    /// Shows a modal form to a person until it ends.
    void runModal(Form& form);

    FormWindow* windowOf(const Form& form) const override;
    QWidget* frameOf(const Form& form) const override;
    void bringToFront(Form& form) override;
    void pressCloseBox(Form& form) override;
    QAction* command(const std::string& control) const override;
    Shown shownOfMain(const Control& control, Property property) const override;
    const FaultTaker& faults() const { return faults_; }

 private:
    struct Place {
        FormWindow* content = nullptr;
        ChildFrame* child = nullptr;
        FormDialog* dialog = nullptr;
    };

    FormWindow* makeContent(Form& form);
    void openChild(ChildWindow& form);
    void place(ChildFrame& frame);
    QRect usualPlace(const ChildFrame& frame) const;
    QRect freeOfOthers(QRect place, const ChildFrame& frame) const;
    void placeMain();
    void showPages(Form& form, const std::map<std::string, int>& pages);
    void keepPlace(const Form& form, const ChildFrame& frame);
    std::optional<WindowPlace> rememberedPlace(const Form& form) const;
    void closeByBox(Form* form);
    void endVisit();
    void userActivated(QMdiSubWindow* frame);
    void refreshTitle(const Form& form);
    void refreshTitles();
    Form* formOf(const QMdiSubWindow* frame) const;
    bool isMain(const Form& form) const;

    bool scripted_;
    WindowPlaces* remembered_ = nullptr;
    FaultTaker faults_;
    ViewRegistry views_;
    MainWindow* window_ = nullptr;
    Varnmain* main_ = nullptr;
    std::map<const Form*, Place> places_;
    /// The frame itself moves windows to the front: not a person's doing.
    int quiet_ = 0;
};

}  // namespace varnholt
