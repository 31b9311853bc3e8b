// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <memory>
#include <string>

#include "basis/mode.h"
#include "forms/control.h"
#include "script/transcript.h"

class QAction;
class QWidget;

namespace varnholt {

class Binder;
struct Look;

/// One control with the widget that shows it. The control's properties go to the widget by show();
/// what a person does with the widget goes to the form by the verbs of Binder::act.
class BoundControl {
 public:
    BoundControl(Binder& binder, Control& control, QWidget* widget);
    virtual ~BoundControl() = default;
    BoundControl(const BoundControl&) = delete;
    BoundControl& operator=(const BoundControl&) = delete;

    const Control& control() const { return control_; }
    QWidget* widget() const { return widget_; }

    /// Repaints one property of the control.
    virtual void show(Property property);
    void showAll();
    /// Gives the widget the name that a screen reader tells.
    virtual void call(const QString& name);
    /// Marks the widget as one of cooling or heating, by colour.
    virtual void mark(Mode mode);
    /// What the widget shows of a property at this moment.
    virtual Shown shown(Property property) const;

 protected:
    Binder& binder() const { return binder_; }
    const Look& look() const;
    /// Gives the text a colour of its own, now and in every scheme.
    void colourText();
    /// Puts a style sheet's property on the widget and has it take effect.
    void setStyleProperty(const char* name, const QVariant& value);
    virtual void showBackcolor();
    virtual void showForecolor();
    virtual void showBold();
    virtual void takeFocus();

 private:
    /// What the control asked for last, beside which a view may have a look of its own: themed
    /// colours, headings in bold, the tool tip of a drawing.
    struct Asked {
        int backcolor = colours::buttonFace, forecolor = colours::black;
        bool bold = false;
        std::string tooltip;
    };

    Binder& binder_;
    Control& control_;
    QWidget* widget_;
    Asked asked_;
    /// The widget has once had a text colour of its own.
    bool coloured_ = false;
};

/// Creates the widget that suits the control's kind, connected both ways.
std::unique_ptr<BoundControl> bindControl(Binder& binder, Control& control);

// By kind; each creates its widget.
std::unique_ptr<BoundControl> bindLabel(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindButton(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindFrame(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindImage(Binder& binder, Control& control, QWidget* drawing);
std::unique_ptr<BoundControl> bindTabs(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindText(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindRichText(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindCombo(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindDate(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindCheck(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindOption(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindList(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindSlider(Binder& binder, Control& control);
std::unique_ptr<BoundControl> bindUpDown(Binder& binder, Control& control);

}  // namespace varnholt
