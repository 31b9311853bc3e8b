// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QMdiSubWindow>
#include <QWidget>
#include <exception>
#include <functional>

#include "desktop/binder.h"

namespace varnholt {

class ViewRegistry;

/// Takes the failures of handlers, which must not pass through the toolkit.
using FaultTaker = std::function<void(std::exception_ptr)>;

/// The widgets of one form.
class FormWindow : public QWidget {
 public:
    FormWindow(Form& form, const ViewRegistry& views, const FaultTaker& faults);
    ~FormWindow() override;

    Binder& binder() { return binder_; }
    QWidget* view() const { return view_; }

 private:
    Binder binder_;
    QWidget* view_;
};

/// The window of a child form inside the main window.
class ChildFrame : public QMdiSubWindow {
 public:
    ChildFrame();

    /// Takes what it shows, once it stands in its area: then all of it is dressed at once.
    void setContent(FormWindow* content);
    FormWindow& content() { return *content_; }
    /// A person presses the close box.
    std::function<void()> onCloseBox;

 protected:
    void closeEvent(QCloseEvent* event) override;

 private:
    FormWindow* content_ = nullptr;
};

/// The window of a modal form.
class FormDialog : public QDialog {
 public:
    FormDialog(FormWindow* content, QWidget* parent);

    FormWindow& content() { return *content_; }
    /// Ends itself once the form has ended.
    void endWithForm();
    /// A person presses the close box or Escape.
    void reject() override;

 private:
    void makeFirstButtonDefault();

    FormWindow* content_;
};

}  // namespace varnholt
