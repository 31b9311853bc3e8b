// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <exception>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "basis/mode.h"
#include "desktop/binding/bound_control.h"
#include "desktop/binding/late_parts.h"
#include "desktop/drawings/drawing.h"
#include "desktop/widgets/field_row.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/refusal_hint.h"
#include "forms/form.h"

class QButtonGroup;
class QKeyEvent;
class QMenu;
class QTabWidget;

namespace varnholt {

/// Connects the widgets of one window to the controls of the same names in its form, both ways.
///
/// A view asks for widgets by the controls' names and lays them out; everything else follows:
/// captions, units, colours, enabled and visible state, refused and stale marks, accessible names,
/// keys. The same name gives the same widget however often it is asked for.
///
/// What stands beside a field, its label, its unit and its spin buttons, is what its control names.
/// An array of labels with results has the figures 0 (cooling) and 1 (heating) and the caption 2.
class Binder : public QObject, public FormObserver {
 public:
    explicit Binder(Form& form);
    ~Binder() override;

    // What a view is made of.

    /// The form, for drawings that read its model. Null when the window has been taken away.
    Form* form() const { return form_; }
    bool has(const std::string& name) const;
    /// The widget of a control, whatever its kind; the part of the view that holds it is built
    /// first. Throws std::out_of_range for an unknown name.
    QWidget* widget(const std::string& name);
    /// The group box of a control of kind frame, to be filled by group().
    GroupBox* frame(const std::string& name);
    /// The tabbed pane with its pages in the order of its captions. Each page scrolls by itself and
    /// is built when it comes to the front for the first time.
    QTabWidget* tabs(const std::string& name, std::vector<PartMaker> pages);
    /// The group box of a frame that is hidden most of the time; what it holds is built when it is
    /// shown for the first time.
    GroupBox* panel(const std::string& name, PartMaker content);

    /// Caption, field with its spin buttons, unit; then whatever else is named.
    FieldRow row(const std::string& field, std::initializer_list<QWidget*> more = {});
    /// The fields 0 and 1 of an array side by side, cooling and heating, under one caption.
    FieldRow pair(const std::string& array, std::initializer_list<QWidget*> more = {});
    /// A line of results: of an array of labels the caption 2, cooling 0, heating 1.
    FieldRow results(const std::string& array);
    /// One figure: a caption label, a label with the value, and spin buttons or the like.
    FieldRow figure(const std::string& caption, const std::string& value,
                    std::initializer_list<QWidget*> more = {});
    /// Heads over the two columns of results or pairs.
    FieldRow heads(const std::string& cooling, const std::string& heating);
    /// Fields that a block of a spreadsheet goes on over when it is pasted into one of them: rows
    /// down, columns across. Empty names are gaps.
    void block(std::vector<std::vector<std::string>> rows) { blocks_.push_back(std::move(rows)); }
    /// One widget over the whole width.
    FieldRow wide(QWidget* widget) const;

    /// Marks a control as one of cooling or heating, by colour.
    Binder& mark(const std::string& name, Mode mode);
    /// The one button that a window is about: Calculate.
    QWidget* primary(const std::string& button);
    /// A button with a drawn icon beside its caption.
    QWidget* iconButton(const std::string& button, const QString& icon);
    /// A list whose columns are made of blanks: its figures stand in a fixed pitch.
    QWidget* fixedPitch(const std::string& list);
    /// Shows a control of kind image by a drawing, which is refreshed after every action.
    QWidget* drawing(const std::string& image, Drawing* drawing);
    /// Shows a control of kind image by a widget that refreshes itself.
    QWidget* picture(const std::string& image, QWidget* widget);
    /// A drawing that no control stands for.
    Drawing* drawing(Drawing* drawing);
    /// Called after every action of the user has been handled to its end.
    void onSettled(std::function<void()> refresh);

    const Look& look() const;

    // What the window does with it.

    /// The window that holds the widgets: colours follow its scheme.
    void setWindow(QWidget* window);
    QWidget* window() const { return window_; }
    /// The form ends: nothing is passed on in either direction from now on.
    void detach();
    /// Takes the failures of handlers, which must not pass through the toolkit.
    void setFaultTaker(std::function<void(std::exception_ptr)> taker) {
        faults_ = std::move(taker);
    }
    /// Whether a field that loses the focus is left; else only by Binder::leave.
    void setLeavesByFocus(bool leaves) { leavesByFocus_ = leaves; }
    /// A script works the widgets: it leaves fields by itself, and its pictures show no moment that
    /// passes.
    void setScripted() { scripted_ = true, leavesByFocus_ = false; }
    bool isScripted() const { return scripted_; }
    /// Lays out the view; parts that nobody looks at yet follow later.
    void build(const std::function<void()>& view);
    /// What a view offers besides in the menu of a control, by its name.
    std::function<void(QMenu& menu, const std::string& control)> addToMenu;
    /// Called when a part has been built after the view.
    std::function<void()> onBuilt;
    /// Builds the parts that are still missing.
    void buildAll();
    /// Names of the form's controls that no widget shows.
    std::vector<std::string> unshown();
    /// Gives what has no caption the name of the group or page that it stands in.
    void nameTheNameless();
    /// The bound control, null as long as no widget was asked for or its part has not been built.
    BoundControl* find(const std::string& name) const;
    /// The bound control; its part is built when need be. Null for one that stands nowhere.
    BoundControl* require(const std::string& name);

    // For the bound controls.

    using Verb = std::function<void(Form&, const std::string& name)>;
    /// Does what the user did, unless code is writing the widget, and has it show what came of it.
    void act(BoundControl& bound, const Verb& verb);
    /// Finds at once what would be found while nobody works, if it is in sight.
    void finishLate();
    /// How many verbs have been passed on.
    int actions() const { return actions_; }
    void watchKeys(BoundControl& bound, QWidget* keyboard);
    void buildLate(const std::function<void()>& part);
    /// The widget loses the focus for good: the control is left.
    void leave(BoundControl& bound);
    /// A command begins: the control whose widget has the focus is left if something has been typed
    /// in it, though the focus stays.
    void endVisit(const QWidget* focused);
    /// Options of one group exclude each other.
    QButtonGroup* optionGroup(const std::string& group);
    std::string text(int number) const;
    /// What a screen reader calls the control: the words of its own or of its label, with the unit
    /// that stands behind it. Empty for one that has only its caption or its surroundings.
    std::string spokenName(const Control& control) const;

    void propertyChanged(Control& control, Property property) override;
    void captionChanged(Form& form) override;
    void settled(Form& form) override;
    void fellBehind(Form& form) override;
    void foundMore(Form& form) override;
    bool worksBetweenActions() const override { return !scripted_; }
    bool eventFilter(QObject* watched, QEvent* event) override;
    void customEvent(QEvent* event) override;

    /// A person begins to do something in the window; leaving a field is none of it.
    std::function<void()> onAction;
    /// A field holds another value than was typed, and why.
    std::function<void(const std::string&)> onRefused;
    /// The window's caption has changed.
    std::function<void()> onCaption;

 private:
    QWidget* keep(std::unique_ptr<BoundControl> bound);
    /// The widget of a control's companion; null where it has none.
    QWidget* companion(const std::string& name);
    QWidget* withUpDown(const std::string& field);
    void nameBy(const std::string& name, const std::string& label, int distinction = 0);
    void showName(const std::string& name);
    void renameAround(const std::string& label);
    void labelCombo(const BoundControl& bound) const;
    bool keyPressed(BoundControl& bound, int key, Qt::KeyboardModifiers modifiers);
    void perform(BoundControl& bound, const Verb& verb);
    bool pasteBlock(const std::string& field);
    bool takesKey(const BoundControl& bound, const QKeyEvent& key, QObject* keyboard);
    void showRefusal();
    void stepCompanion(const BoundControl& bound, int steps);
    void refreshDrawings();
    void recolour();
    void noteOpener(const Control& panel);
    void refreshLater();
    bool showsLate() const;
    void workLateIn(int milliseconds);
    void workLate();
    bool buildNext();

    Form* form_;
    QWidget* window_ = nullptr;
    std::map<std::string, std::unique_ptr<BoundControl>> bound_;
    std::map<const QObject*, BoundControl*> keyboards_;
    std::map<std::string, QButtonGroup*> groups_;
    std::vector<LateParts*> late_;
    /// What a control is called after: a label, and a text that tells it from its neighbours.
    struct CalledAfter {
        std::string label;
        int distinction = 0;
    };
    std::map<std::string, CalledAfter> called_;
    /// Controls by the labels whose words are a part of their names: caption, unit, own figure.
    std::multimap<std::string, std::string> named_;
    std::vector<Drawing*> drawings_;
    QElapsedTimer drawn_;  ///< since the drawings were refreshed last
    std::vector<std::function<void()>> refreshers_;
    std::vector<std::vector<std::vector<std::string>>> blocks_;
    std::unique_ptr<RefusalHint> refusal_;
    /// What had the keyboard when a panel was opened, by the panel's name.
    std::map<std::string, QPointer<QWidget>> openers_;
    std::function<void(std::exception_ptr)> faults_;
    bool scripted_ = false;
    bool leavesByFocus_ = true;
    bool refreshDue_ = false;
    QTimer lateWork_;  ///< until the next slice
    int writing_ = 0;
    int building_ = 0;
    int actions_ = 0;
};

}  // namespace varnholt
