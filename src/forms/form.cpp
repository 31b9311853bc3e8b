// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/form.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/main.h"

namespace varnholt {
namespace {

/// An up-down that goes by more than one at once knows no numbers in between.
double nearestStep(const Control& control, double value) {
    if (control.step() == 1) return value;
    return control.min() + std::round((value - control.min()) / control.step()) * control.step();
}

}  // namespace

template <class Tell>
void Form::tellObservers(const Tell& tell) {
    ++telling_;
    for (std::size_t i = 0; i < observers_.size(); ++i)
        if (observers_[i] != nullptr) tell(*observers_[i]);
    if (--telling_ > 0) return;
    observers_.erase(std::remove(observers_.begin(), observers_.end(), nullptr), observers_.end());
}

namespace {

/// The lines of a rich text end in CR LF, whatever they are pasted with.
std::string withFullLineEnds(const std::string& text) {
    std::string full;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\r' || text[i] == '\n')
            full += "\r\n";
        else
            full += text[i];
    }
    return full;
}

/// A field of one line, also that of a combo, takes a cell of a spreadsheet, which ends in a line
/// end, and puts a blank between the lines of longer texts.
std::string inOneLine(const std::string& text) {
    const std::size_t end = text.find_last_not_of("\r\n") + 1;
    std::string line;
    for (std::size_t i = 0; i < end; ++i) {
        if (text[i] == '\r' && text[i + 1] == '\n') continue;
        line += text[i] == '\r' || text[i] == '\n' ? ' ' : text[i];
    }
    return line;
}

std::string asTaken(const Control& field, const std::string& typed) {
    if (field.kind() == ControlKind::richText) return withFullLineEnds(typed);
    const bool ofOneLine = field.kind() == ControlKind::text || field.kind() == ControlKind::combo;
    return ofOneLine ? inOneLine(typed) : typed;
}

}  // namespace

/// Hands the controls' changes on to whoever shows the form.
class Form::Relay : public ControlObserver {
 public:
    explicit Relay(Form& form) : form_(form) {}
    void propertyChanged(Control& control, Property property) override {
        form_.tellObservers(
            [&](FormObserver& observer) { observer.propertyChanged(control, property); });
    }

 private:
    Form& form_;
};

/// One action of the user, from its entry to the end of its last handler.
class Form::Settling {
 public:
    Settling(Form& form, UserAction action) : form_(form), action_(std::move(action)) {
        if (++form_.depth_ == 1) form_.actionBegins();
    }
    Settling(const Settling&) = delete;
    Settling& operator=(const Settling&) = delete;
    ~Settling() {
        if (--form_.depth_ > 0) return;
        form_.actionEnds(action_);
        form_.tellObservers([this](FormObserver& observer) { observer.settled(form_); });
    }

 private:
    Form& form_;
    UserAction action_;
};

FormObserver::~FormObserver() {
    const std::vector<Form*> forms = observed_;
    for (Form* form : forms) form->removeObserver(this);
}

Form::Form(std::string formName, Platform& platform, const Texts& texts)
    : formName_(std::move(formName)),
      platform_(platform),
      texts_(texts),
      relay_(std::make_unique<Relay>(*this)) {}

Form::~Form() {
    const std::vector<FormObserver*> observers = observers_;
    for (FormObserver* observer : observers)
        if (observer != nullptr) removeObserver(observer);
}

void Form::setCaption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    tellObservers([this](FormObserver& observer) { observer.captionChanged(*this); });
}

Control& Form::control(const std::string& name) {
    const auto found = byName_.find(name);
    if (found == byName_.end()) throw std::out_of_range(formName_ + " has no control " + name);
    return *found->second;
}

const Control& Form::control(const std::string& name) const {
    return const_cast<Form*>(this)->control(name);
}

Control& Form::element(const std::string& name, int index) {
    return control(name + "(" + std::to_string(index) + ")");
}

bool Form::isShown(const Control& control) const {
    if (!control.visible()) return false;
    return control.container().empty() || isShown(this->control(control.container()));
}

bool Form::takesKeys(const std::string& control) const {
    const auto found = handlers_.find(control);
    return found != handlers_.end() && found->second.key != nullptr;
}

bool Form::takesClicks(const std::string& control) const {
    const auto found = handlers_.find(control);
    return found != handlers_.end() && found->second.click != nullptr;
}

Form::Handlers& Form::handlersOf(const std::string& control) {
    this->control(control);
    return handlers_[control];
}

void Form::raise(const Handler& handler) const {
    if (handler) handler();
}

/// One action of the user, to its end.
void Form::perform(Verb verb, const std::string& control, const Handler& action) {
    const Settling settling(*this, {verb, control});
    try {
        action();
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, error.message());
    }
}

void Form::type(const std::string& name, const std::string& text) {
    perform(Verb::type, name, [&] {
        Control& target = control(name);
        visited_ = name;
        target.setText(asTaken(target, text));
        if (fields_.has(name)) fields_.textChanged(name);
        raise(handlersOf(name).change);
    });
}

void Form::leave(const std::string& name) {
    perform(Verb::leave, name, [&] {
        if (visited_ == name) visited_.clear();
        if (fields_.has(name)) fields_.left(name);
        raise(handlersOf(name).leave);
    });
}

Form::FilledCells Form::fill(const std::vector<TypedCell>& cells) {
    FilledCells filled;
    if (cells.empty()) return filled;
    perform(Verb::type, cells.front().control, [&] {
        for (const TypedCell& cell : cells) {
            const Control& field = control(cell.control);
            if (cell.text.empty() || !field.enabled() || field.locked() || !isShown(field))
                continue;
            ++filled.typed;
            if (fields_.has(cell.control) && !readPlainNumber(cell.text)) {
                fields_.refuseText(cell.control, cell.text);
                ++filled.refused;
                continue;
            }
            type(cell.control, cell.text);
            if (field.refused())
                ++filled.refused;
            else
                leave(cell.control);
        }
        visited_.clear();
    });
    return filled;
}

std::string Form::unitOf(const std::string& name) const {
    const std::string& label = control(name).unitLabel();
    return has(label) ? unitWords(control(label).caption()) : std::string();
}

std::string Form::whyRefused(const RefusedValue& refused) const {
    const int words = refused.noNumber          ? Text::noticeValueNoNumber
                      : refused.tooLarge        ? Text::noticeValueTooLarge
                      : refused.single          ? Text::noticeValueNotTaken
                      : !refused.least.empty()  ? Text::noticeValueBesideZero
                      : refused.lowestIsRefused ? Text::noticeValueNotAbove
                      : refused.highest.empty() ? Text::noticeValueTooSmall
                                                : Text::noticeValueOutsideRange;
    const std::string unit = refused.unit.empty() ? std::string() : " " + refused.unit;
    return filledIn(text(words),
                    {control(refused.control).accessibleName(), refused.typed, refused.lowest,
                     refused.highest, refused.taken, unit, refused.least});
}

void Form::key(const std::string& name, const std::string& key) {
    if (key == "F1") return help(name);
    perform(Verb::key, name, [&] {
        const Control& target = control(name);
        const bool field = target.kind() == ControlKind::text ||
                           target.kind() == ControlKind::richText || target.editable();
        const bool typeable = field && !target.locked();
        if (const KeyHandler& handler = handlersOf(name).key)
            handler(key);
        else if (key == "Ctrl+V" && typeable)
            type(name, platform_.clipboard());
    });
}

void Form::help(const std::string& name) {
    if (helpDesk_ == nullptr) return;
    try {
        helpDesk_->explain(*this, name);
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, error.message());
    }
}

std::string Form::whatsThis(const std::string& name) const {
    return helpDesk_ == nullptr ? std::string() : helpDesk_->whatsThis(*this, name);
}

void Form::click(const std::string& name) {
    perform(Verb::click, name, [&] {
        Control& target = control(name);
        if (target.kind() == ControlKind::check) target.setChecked(!target.checked());
        if (target.kind() == ControlKind::option) {
            if (target.checked() && !target.repeating()) return;
            chooseOption(target);
        }
        raise(handlersOf(name).click);
    });
}

void Form::chooseOption(Control& target) {
    for (const auto& other : controls_)
        if (other->kind() == ControlKind::option && other->group() == target.group())
            other->setChecked(other.get() == &target);
}

void Form::choose(const std::string& name, int index) {
    perform(Verb::choose, name, [&] {
        control(name).setIndex(index);
        raise(handlersOf(name).click);
    });
}

void Form::select(const std::string& name, std::vector<int> rows) {
    perform(Verb::select, name, [&] {
        std::sort(rows.begin(), rows.end());
        control(name).setSelected(std::move(rows));
        raise(handlersOf(name).click);
    });
}

void Form::slide(const std::string& name, double value) {
    perform(Verb::slide, name, [&] {
        Control& target = control(name);
        const double stepped = nearestStep(target, value);
        const double within = std::max(target.min(), std::min(target.max(), stepped));
        if (within == target.value()) return;
        target.setValue(within);
        raise(handlersOf(name).slide);
    });
}

void Form::pickDate(const std::string& name, const Date& date) {
    perform(Verb::pickDate, name, [&] {
        control(name).setDate(date);
        raise(handlersOf(name).click);
    });
}

void Form::fallBehind() {
    behind_ = true;
    tellObservers([this](FormObserver& observer) { observer.fellBehind(*this); });
}

void Form::tellOfMore() {
    tellObservers([this](FormObserver& observer) { observer.foundMore(*this); });
}

bool Form::hasIdleTime() const {
    return std::any_of(observers_.begin(), observers_.end(), [](const FormObserver* observer) {
        return observer != nullptr && observer->worksBetweenActions();
    });
}

/// A reader is told what holds now, whether or not it is known to have changed.
void Form::catchUp() { behind_ = !workLate(true); }

void Form::catchUp(const Control& read) {
    isRead(read);
    catchUp();
}

void Form::catchUpABit() {
    if (behind_) behind_ = !workLate(false);
}

void Form::addObserver(FormObserver* observer) {
    observers_.push_back(observer);
    observer->observed_.push_back(this);
}

void Form::removeObserver(FormObserver* observer) {
    const auto at = std::find(observers_.begin(), observers_.end(), observer);
    if (at != observers_.end() && telling_ > 0)
        *at = nullptr;  // the others keep their places until all have been told
    else if (at != observers_.end())
        observers_.erase(at);
    std::vector<Form*>& forms = observer->observed_;
    forms.erase(std::remove(forms.begin(), forms.end(), this), forms.end());
}

Control& Form::add(const std::string& name, ControlKind kind) {
    if (has(name)) throw std::logic_error(formName_ + " has two controls " + name);
    controls_.push_back(std::make_unique<Control>(name, kind));
    Control& added = *controls_.back();
    added.setObserver(relay_.get());
    byName_.emplace(name, &added);
    return added;
}

Control& Form::add(const std::string& name, ControlKind kind, int captionText) {
    return add(name, kind).setCaption(text(captionText));
}

Control& Form::addField(NumericFieldRow row) {
    const FieldCompanions& beside = row.beside;
    if (!beside.label.empty() && !has(beside.label))
        add(beside.label, ControlKind::label).in(beside.frame);
    Control& field = has(row.control) ? control(row.control) : add(row.control, ControlKind::text);
    field.in(beside.frame)
        .captionedBy(beside.label)
        .unitsIn(beside.unitLabel)
        .helpedBy(beside.help);
    if (!beside.unitLabel.empty() && !has(beside.unitLabel))
        add(beside.unitLabel, ControlKind::label).in(beside.frame);
    const std::string name = row.control;
    fields_.add(std::move(row));
    fields_.showCaptions(name);
    return field;
}

void Form::onChange(const std::string& control, Handler handler) {
    handlersOf(control).change = std::move(handler);
}
void Form::onLeave(const std::string& control, Handler handler) {
    handlersOf(control).leave = std::move(handler);
}
void Form::onKey(const std::string& control, KeyHandler handler) {
    handlersOf(control).key = std::move(handler);
}
void Form::onClick(const std::string& control, Handler handler) {
    handlersOf(control).click = std::move(handler);
}
void Form::onSlide(const std::string& control, Handler handler) {
    handlersOf(control).slide = std::move(handler);
}

void Form::show(MessageIcon icon, const std::string& message) {
    platform_.message(icon, text(Text::programTitle), message);
}

}  // namespace varnholt
