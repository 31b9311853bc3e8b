// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "forms/control.h"
#include "forms/help_desk.h"
#include "forms/numeric_field.h"
#include "forms/platform.h"
#include "forms/texts.h"
#include "forms/values.h"

namespace varnholt {

/// Whoever shows a form. An observer that ends while it observes is forgotten by its forms.
class FormObserver : public ControlObserver {
 public:
    FormObserver() = default;
    ~FormObserver() override;
    FormObserver(const FormObserver&) = delete;
    FormObserver& operator=(const FormObserver&) = delete;

    virtual void captionChanged(Form& form) = 0;
    /// Something the user did has been handled to its end: pictures drawn from the model are due.
    virtual void settled(Form& form) = 0;
    /// Figures that are found late are due: whoever shows them has the form find them, when there
    /// is nothing else to do.
    virtual void fellBehind(Form&) {}
    /// Some of them have been found and are shown, and more are to come: pictures may follow.
    virtual void foundMore(Form&) {}
    /// Whether the observer goes on with late work between two actions of the user.
    virtual bool worksBetweenActions() const { return false; }

 private:
    friend class Form;
    std::vector<Form*> observed_;
};

/// What the user did, by the verbs of Form.
enum class Verb { type, leave, key, click, choose, select, slide, pickDate };

struct UserAction {
    Verb verb;
    std::string control;
};

/// One window, known without a toolkit: its named controls, the handlers of their events, and the
/// public values that scripts, reports and files read.
///
/// What a user does enters by the verbs (type, leave, key, click, choose, select, slide,
/// pickDate), which set the control's state and raise its events. Code that shows a value writes
/// the property instead and raises nothing.
class Form {
 public:
    /// A text for one of several fields.
    struct TypedCell {
        std::string control, text;
    };
    struct FilledCells {
        int typed = 0, refused = 0;
    };

    /// @param formName the window's own name, "frmBHDesign"
    Form(std::string formName, Platform& platform, const Texts& texts);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& formName() const { return formName_; }
    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);

    bool has(const std::string& control) const { return byName_.count(control) > 0; }
    /// Throws std::out_of_range with the name when the form has no such control.
    Control& control(const std::string& name);
    const Control& control(const std::string& name) const;
    /// Element of a control array: element("CATopLabel", 0) is "CATopLabel(0)".
    Control& element(const std::string& name, int index);
    /// In the order in which they were added, which is the reading order of the window.
    const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
    /// Whether the control and every frame around it are visible.
    bool isShown(const Control& control) const;

    // What the user does. A run-time error that no handler has dealt with is shown by its number
    // and description, and ends the action.
    void type(const std::string& control, const std::string& text);
    void leave(const std::string& control);
    void key(const std::string& control, const std::string& key);
    void click(const std::string& control);
    void choose(const std::string& control, int index);
    void select(const std::string& control, std::vector<int> rows);
    void slide(const std::string& control, double value);
    void pickDate(const std::string& control, const Date& date);
    /// Puts a block of texts into fields, each as if typed and left, as one action. An empty text
    /// and a field that cannot be typed into are passed over; what is no number is refused where
    /// one belongs. Fields that refuse theirs keep their marks.
    FilledCells fill(const std::vector<TypedCell>& cells);
    /// A drag of a slider begins or ends: its many moves are one change.
    void beginGesture(const std::string& control) {
        gesture_ = control;
        ++gestures_;
    }
    void endGesture() { gesture_.clear(); }
    /// The slider that is being dragged, empty for none.
    const std::string& gesture() const { return gesture_; }
    /// Drags that have begun so far: the number of the one at hand.
    int gestureNumber() const { return gestures_; }
    /// The field in which something has been typed and which has not been left since; empty for
    /// none.
    const std::string& visitedField() const { return visited_; }
    /// The unit in which a control shows its number, by the label behind it; empty for none.
    std::string unitOf(const std::string& control) const;
    /// Why a field holds another value than was typed, in a sentence: what it takes, in the unit in
    /// which that was typed, and what stands.
    std::string whyRefused(const RefusedValue& refused) const;
    /// Whether keys in the control have a meaning of their own.
    bool takesKeys(const std::string& control) const;
    /// Whether clicks on the control have a meaning.
    bool takesClicks(const std::string& control) const;

    const Values& values() const { return values_; }
    NumericFields& fields() { return fields_; }
    const NumericFields& fields() const { return fields_; }

    /// A handler of the user's action is still running: the form must not end yet.
    bool isHandling() const { return depth_ > 0; }

    /// What a picture shows, in a sentence; empty for one that only its drawing can tell of.
    virtual std::string descriptionOf(const std::string& /*image*/) const { return {}; }

    // Figures that take long are found when somebody looks at them, and not by every action.
    /// Whether some are due.
    bool isBehind() const { return behind_; }
    /// Somebody reads: finds them all.
    void catchUp();
    /// Somebody reads one control: finds what it shows, also where nobody sees it.
    void catchUp(const Control& read);
    /// Finds a part of them, in a few milliseconds.
    void catchUpABit();

    /// The window came to the front.
    virtual void activated() {}
    /// The user or the frame wants to close the window. False stops the close.
    virtual bool queryClose() { return true; }
    /// The window is being taken away.
    virtual void unloaded() {}

    /// A modal form asks to be taken away: Platform::runModal returns.
    void endModal() { modalEnded_ = true; }
    bool modalEnded() const { return modalEnded_; }

    /// Who explains the controls; null for nobody.
    void setHelpDesk(HelpDesk* desk) { helpDesk_ = desk; }
    /// The user asks what the control is; an empty name asks about the window. Changes nothing.
    void help(const std::string& control);
    /// What the help says of the control, in a few sentences.
    std::string whatsThis(const std::string& control) const;

    void addObserver(FormObserver* observer);
    void removeObserver(FormObserver* observer);

    Platform& platform() const { return platform_; }
    std::string text(int number) const { return texts_.text(number); }
    const Texts& texts() const { return texts_; }

 protected:
    using Handler = std::function<void()>;
    using KeyHandler = std::function<void(const std::string& key)>;

    Control& add(const std::string& name, ControlKind kind);
    /// Adds a control whose caption is the language's text of that number.
    Control& add(const std::string& name, ControlKind kind, int captionText);
    /// Adds a numeric field with the label before it and the unit behind it, as its row declares
    /// them; a label that stands already serves several fields.
    Control& addField(NumericFieldRow row);

    /// The outermost of the user's actions on this form begins, or has been handled to its end;
    /// those who show the form hear of it after this.
    virtual void actionBegins() {}
    virtual void actionEnds(const UserAction&) {}
    /// What the late figures come from may have changed.
    void fallBehind();
    /// Part of the late figures is shown.
    void tellOfMore();
    /// Whether somebody goes on with late work between two actions; else what an action starts has
    /// to end with it.
    bool hasIdleTime() const;
    /// Does a part of the work that is due, or all of it, and shows what has been found. True when
    /// nothing is left to do.
    virtual bool workLate(bool /*whole*/) { return true; }
    /// The whole of the late work comes next, and what one control shows belongs to it even where
    /// that control is out of sight.
    virtual void isRead(const Control& /*control*/) {}
    /// Code has put another state into the form: no field is being visited any more.
    void endVisit() { visited_.clear(); }

    // Handlers of one control's events; a later one replaces an earlier one.
    void onChange(const std::string& control, Handler handler);  ///< text typed
    void onLeave(const std::string& control, Handler handler);
    void onKey(const std::string& control, KeyHandler handler);
    void onClick(const std::string& control, Handler handler);  ///< also choose, select, pickDate
    void onSlide(const std::string& control, Handler handler);

    Values& publicValues() { return values_; }

    /// A message box under the program's title (Text::programTitle).
    void show(MessageIcon icon, const std::string& text);

 private:
    class Settling;
    class Relay;
    struct Handlers {
        Handler change, leave, click, slide;
        KeyHandler key;
    };

    Handlers& handlersOf(const std::string& control);
    void perform(Verb verb, const std::string& control, const Handler& action);
    void raise(const Handler& handler) const;
    /// Calls the function with every observer, also when observers end while they are told.
    template <class Tell>
    void tellObservers(const Tell& tell);
    void chooseOption(Control& control);

    std::string formName_;
    std::string caption_;
    Platform& platform_;
    const Texts& texts_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::unordered_map<std::string, Control*> byName_;
    std::map<std::string, Handlers, std::less<>> handlers_;
    Values values_;
    NumericFields fields_{*this};
    /// Null for one that has ended while observers are being told.
    std::vector<FormObserver*> observers_;
    int telling_ = 0;
    std::unique_ptr<Relay> relay_;
    HelpDesk* helpDesk_ = nullptr;
    std::string visited_, gesture_;
    int gestures_ = 0;
    int depth_ = 0;
    bool modalEnded_ = false;
    bool behind_ = false;
};

}  // namespace varnholt
