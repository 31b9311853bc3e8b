// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <string>

#include "desktop/form_window.h"
#include "desktop/view_registry.h"
#include "script/script_platform.h"

class QMdiSubWindow;

namespace varnholt {

class ChildWindow;
class MainWindow;
class Varnmain;

/// The real windows of the open forms, whoever works them: a person or a script.
class WindowShelf : public WindowStage {
 public:
    /// @param scripted a script works the windows: the focus alone leaves no field
    explicit WindowShelf(bool scripted);
    ~WindowShelf() override;

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

    /// The widgets of an open form; null when it has none.
    FormWindow* windowOf(const Form& form) const;
    /// The frame or dialog around them, as a picture shows it.
    QWidget* frameOf(const Form& form) const;
    /// Presses the close box of a child window.
    void pressCloseBox(Form& form);
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
    void closeByBox(Form* form);
    void userActivated(QMdiSubWindow* frame);
    void refreshTitle(const Form& form);
    Form* formOf(const QMdiSubWindow* frame) const;

    bool scripted_;
    FaultTaker faults_;
    ViewRegistry views_;
    MainWindow* window_ = nullptr;
    Varnmain* main_ = nullptr;
    std::map<const Form*, Place> places_;
    /// The frame itself moves windows to the front: not a person's doing.
    int quiet_ = 0;
};

}  // namespace varnholt
