// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <exception>
#include <functional>

#include "desktop/binding/binder.h"

class QKeyEvent;

namespace varnholt {

/// Takes the failures of handlers, which must not pass through the toolkit.
using FaultTaker = std::function<void(std::exception_ptr)>;

/// What lays out a form's controls: gets the form's binder, returns the whole view.
using ViewMaker = std::function<QWidget*(Binder& bind)>;

/// Whether the key asks for the help, or with Shift for What's This.
bool isHelpKey(const QKeyEvent& key);

/// The widgets of one form.
class FormWindow : public QWidget {
 public:
    FormWindow(Form& form, const ViewMaker& makeView, FaultTaker faults);
    ~FormWindow() override;

    Binder& binder() { return binder_; }
    QWidget* view() const { return view_; }
    /// Asks for the help about what the widget shows: its control, or the window.
    void helpFor(const QWidget* widget);

 protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

 private:
    void finish();
    void growToContents();
    void showWhatsThis(const QPoint& place, const QPoint& onScreen);
    void askHelp(Qt::KeyboardModifiers keys);
    std::string controlOf(const QWidget* widget) const;

    FaultTaker faults_;
    Binder binder_;
    QWidget* view_ = nullptr;
};

}  // namespace varnholt
