// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/binder.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <algorithm>
#include <stdexcept>

#include "desktop/binding/bound_button.h"
#include "desktop/binding/bound_frame.h"
#include "desktop/binding/bound_tabs.h"
#include "desktop/binding/typing.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "forms/text_numbers/pictures.h"
#include "forms/texts.h"

namespace varnholt {
namespace {

/// Counts the calls under way, so that what code writes is not taken for a person's action.
class Counting {
 public:
    explicit Counting(int& depth) : depth_(depth) { ++depth_; }
    ~Counting() { --depth_; }
    Counting(const Counting&) = delete;
    Counting& operator=(const Counting&) = delete;

 private:
    int& depth_;
};

/// Whether a box waits for its answer before the widget's window. The toolkit keeps keys and mouse
/// from it, but no screen reader.
bool isBehindABox(const QWidget& widget) {
    const QWidget* box = QApplication::activeModalWidget();
    return box != nullptr && box != widget.window() && !box->isAncestorOf(&widget);
}

}  // namespace

Binder::Binder(Form& form) : form_(&form) {
    form.addObserver(this);
    lateWork_.setSingleShot(true);
    connect(&lateWork_, &QTimer::timeout, this, &Binder::workLate);
}

Binder::~Binder() { detach(); }

void Binder::detach() {
    if (form_ == nullptr) return;
    form_->removeObserver(this);
    form_ = nullptr;
    drawings_.clear();
    refreshers_.clear();
}

bool Binder::has(const std::string& name) const { return form_ != nullptr && form_->has(name); }

QWidget* Binder::widget(const std::string& name) {
    // What is being built asks for widgets in order to create them.
    BoundControl* known = building_ > 0 ? find(name) : require(name);
    if (known != nullptr) return known->widget();
    if (form_ == nullptr) throw std::logic_error("the form of the control " + name + " has ended");
    const Counting writing(writing_);
    return keep(bindControl(*this, form_->control(name)));
}

QWidget* Binder::keep(std::unique_ptr<BoundControl> bound) {
    const BoundControl& kept = *bound;
    const Control& control = kept.control();
    if (control.isLate()) kept.widget()->installEventFilter(this);
    bound_[control.name()] = std::move(bound);
    if (has(control.label())) nameBy(control.name(), control.label());
    if (has(control.unitLabel())) named_.emplace(control.unitLabel(), control.name());
    if (control.kind() == ControlKind::label) named_.emplace(control.name(), control.name());
    return kept.widget();
}

BoundControl* Binder::find(const std::string& name) const {
    const auto found = bound_.find(name);
    return found == bound_.end() ? nullptr : found->second.get();
}

BoundControl* Binder::require(const std::string& name) {
    BoundControl* bound = find(name);
    while (bound == nullptr && buildNext()) bound = find(name);
    return bound;
}

void Binder::build(const std::function<void()>& view) {
    const Counting building(building_);
    view();
}

void Binder::buildLate(const std::function<void()>& part) {
    if (form_ == nullptr) return;
    const bool late = building_ == 0;
    {
        const Counting writing(writing_);
        build(part);
    }
    if (late && onBuilt) onBuilt();
}

bool Binder::buildNext() {
    if (form_ == nullptr) return false;
    // A part that is built may hold others.
    for (std::size_t i = 0; i < late_.size(); ++i)
        if (late_[i]->buildNext()) return true;
    return false;
}

void Binder::buildAll() {
    while (buildNext()) continue;
}

std::vector<std::string> Binder::unshown() {
    buildAll();
    std::vector<std::string> names;
    if (form_ == nullptr) return names;
    for (const auto& control : form_->controls())
        if (find(control->name()) == nullptr) names.push_back(control->name());
    return names;
}

std::string Binder::text(int number) const {
    return form_ == nullptr ? std::string() : form_->text(number);
}

const Look& Binder::look() const {
    return lookOf(window_ != nullptr ? window_->palette() : QPalette());
}

void Binder::setWindow(QWidget* window) {
    window_ = window;
    window->installEventFilter(this);
}

void Binder::onSettled(std::function<void()> refresh) { refreshers_.push_back(std::move(refresh)); }

QButtonGroup* Binder::optionGroup(const std::string& group) {
    QButtonGroup*& known = groups_[group];
    if (known == nullptr) known = new QButtonGroup(this);
    return known;
}

void Binder::act(BoundControl& bound, const Verb& verb) {
    if (writing_ > 0 || form_ == nullptr) return;
    if (!scripted_ && isBehindABox(*bound.widget())) {
        const Counting writing(writing_);
        return bound.showAll();
    }
    if (refusal_) refusal_->hide();
    if (onAction) onAction();
    perform(bound, verb);
}

void Binder::perform(BoundControl& bound, const Verb& verb) {
    if (writing_ > 0 || form_ == nullptr) return;
    ++actions_;
    // The handler may take the form and its controls away.
    const std::string name = bound.control().name();
    try {
        verb(*form_, name);
    } catch (...) {
        if (!faults_) throw;
        faults_(std::current_exception());
    }
    if (form_ == nullptr) return;
    const Counting writing(writing_);
    bound.showAll();
}

void Binder::leave(BoundControl& bound) {
    perform(bound, [](Form& form, const std::string& name) { form.leave(name); });
    if (form_ == nullptr) return;
    const Counting writing(writing_);
    forgetTyping(*bound.widget());
}

void Binder::propertyChanged(Control& control, Property property) {
    const Counting writing(writing_);
    if (property == Property::visible && control.kind() == ControlKind::frame) noteOpener(control);
    if (BoundControl* bound = find(control.name())) bound->show(property);
    refreshLater();
    if (property == Property::caption) renameAround(control.name());
}

/// The keyboard goes back to where a panel was opened from when that goes with the keyboard in it:
/// the toolkit would hand it to whatever comes next.
void Binder::noteOpener(const Control& panel) {
    QWidget* focused = QApplication::focusWidget();
    const BoundControl* bound = find(panel.name());
    if (scripted_ || bound == nullptr || focused == nullptr || window_ == nullptr ||
        !window_->isAncestorOf(focused))
        return;
    const bool inside = bound->widget()->isAncestorOf(focused);
    if (panel.visible() && !inside) {
        openers_[panel.name()] = focused;
        return;
    }
    QWidget* opener = openers_[panel.name()];
    if (!panel.visible() && inside && opener != nullptr && opener->isVisible() &&
        opener->isEnabled())
        opener->setFocus(Qt::OtherFocusReason);
}

void Binder::captionChanged(Form&) {
    if (onCaption) onCaption();
}

/// What another window's action has changed in this one is drawn once that action has ended.
void Binder::refreshLater() {
    if (std::exchange(refreshDue_, true)) return;
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void Binder::customEvent(QEvent*) {
    if (refreshDue_ && form_ != nullptr) settled(*form_);
}

/// Late figures are found once the keys and repaints that wait have had their turn: the toolkit
/// collects repaints for a few milliseconds. A key on the way puts the next slice off. A script
/// reads when it wants to, and has them found then.
void Binder::fellBehind(Form&) {
    constexpr int repaintGoesFirst = 15;  // ms
    workLateIn(repaintGoesFirst);
}

/// Pictures show what has been found so far, but take no more of the time than need be.
void Binder::foundMore(Form&) {
    constexpr int betweenPictures = 50;  // ms
    if (!drawn_.isValid() || drawn_.hasExpired(betweenPictures)) refreshLater();
}

void Binder::workLateIn(int milliseconds) {
    if (!scripted_) lateWork_.start(milliseconds);
}

/// What nobody sees is left alone until it comes into sight.
bool Binder::showsLate() const {
    return std::any_of(bound_.begin(), bound_.end(), [](const auto& named) {
        return named.second->control().isLate() && named.second->widget()->isVisible();
    });
}

void Binder::finishLate() {
    if (form_ == nullptr || !form_->isBehind() || !showsLate()) return;
    form_->catchUp();
    settled(*form_);
}

/// One slice, and so on as long as nothing else has come up.
void Binder::workLate() {
    if (form_ == nullptr || !form_->isBehind() || !showsLate()) return;
    try {
        form_->catchUpABit();
    } catch (...) {
        if (!faults_) throw;
        faults_(std::current_exception());
        return;
    }
    if (form_->isBehind())
        workLateIn(0);
    else
        refreshLater();
}

void Binder::settled(Form&) {
    refreshDue_ = false;
    showRefusal();
    refreshDrawings();
    const auto refreshers = refreshers_;
    for (const auto& refresh : refreshers) refresh();
}

void Binder::refreshDrawings() {
    drawn_.start();
    for (Drawing* drawing : drawings_) {
        if (!drawing->isVisible()) continue;
        drawing->refresh();
        drawing->setAccessibleDescription(drawing->description());
        drawing->update();
    }
}

GroupBox* Binder::frame(const std::string& name) { return static_cast<GroupBox*>(widget(name)); }

QTabWidget* Binder::tabs(const std::string& name, std::vector<PartMaker> pages) {
    auto* widget = static_cast<QTabWidget*>(this->widget(name));
    auto* tabs = static_cast<BoundTabs*>(find(name));
    late_.push_back(tabs);
    const Counting writing(writing_);
    tabs->addPages(std::move(pages));
    return widget;
}

GroupBox* Binder::panel(const std::string& name, PartMaker content) {
    GroupBox* box = frame(name);
    auto* bound = static_cast<BoundFrame*>(find(name));
    late_.push_back(bound);
    bound->setContent(std::move(content));
    return box;
}

QWidget* Binder::companion(const std::string& name) { return has(name) ? widget(name) : nullptr; }

QWidget* Binder::withUpDown(const std::string& field) {
    QWidget* editor = widget(field);
    QWidget* steps = companion(form_->control(field).upDown());
    if (steps == nullptr) return editor;
    steps->setFocusPolicy(Qt::NoFocus);  // the arrow keys in the field do the same
    const Control& number = form_->control(field);
    if (has(number.label())) nameBy(number.upDown(), number.label());
    auto* both = new QWidget;
    auto* layout = new QHBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(editor);
    // Centred, so that the buttons' height does not limit the field's.
    layout->addWidget(steps, 0, Qt::AlignVCenter);
    return both;
}

FieldRow Binder::row(const std::string& field, std::initializer_list<QWidget*> more) {
    FieldRow row;
    row.fields = {withUpDown(field)};
    const Control& control = find(field)->control();
    row.caption = companion(control.label());
    row.unit = companion(control.unitLabel());
    row.more = more;
    return row;
}

FieldRow Binder::pair(const std::string& array, std::initializer_list<QWidget*> more) {
    FieldRow row = this->row(elementName(array, 0), more);
    row.fields.push_back(withUpDown(elementName(array, 1)));
    mark(elementName(array, 0), cooling);
    mark(elementName(array, 1), heating);
    return row;
}

FieldRow Binder::results(const std::string& array) {
    FieldRow row;
    row.caption = widget(elementName(array, 2));
    for (const Mode mode : modes) {
        auto* figure = static_cast<QLabel*>(widget(elementName(array, mode)));
        figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        asFigures(figure);
        row.fields.push_back(figure);
        nameBy(elementName(array, mode), elementName(array, 2),
               mode == cooling ? Text::chartCooling : Text::chartHeating);
    }
    return row;
}

FieldRow Binder::figure(const std::string& caption, const std::string& value,
                        std::initializer_list<QWidget*> more) {
    FieldRow row;
    row.caption = widget(caption);
    auto* figure = static_cast<QLabel*>(widget(value));
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    asFigures(figure);
    row.fields = {figure};
    nameBy(value, caption);
    row.more = more;
    return row;
}

FieldRow Binder::heads(const std::string& coolingHead, const std::string& heatingHead) {
    FieldRow row;
    for (const std::string& name : {coolingHead, heatingHead}) {
        auto* head = static_cast<QLabel*>(widget(name));
        head->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
        QFont font = head->font();
        font.setWeight(QFont::DemiBold);
        head->setFont(font);
        row.fields.push_back(head);
    }
    mark(coolingHead, cooling);
    mark(heatingHead, heating);
    return row;
}

FieldRow Binder::wide(QWidget* widget) const {
    FieldRow row;
    row.fields = {widget};
    row.wide = true;
    return row;
}

Binder& Binder::mark(const std::string& name, Mode mode) {
    widget(name);
    find(name)->mark(mode);
    return *this;
}

QWidget* Binder::primary(const std::string& button) {
    QWidget* widget = this->widget(button);
    static_cast<BoundButton*>(find(button))->makePrimary();
    return widget;
}

QWidget* Binder::iconButton(const std::string& button, const QString& icon) {
    QWidget* widget = this->widget(button);
    static_cast<BoundButton*>(find(button))->setIcon(icon);
    return widget;
}

QWidget* Binder::fixedPitch(const std::string& list) {
    QWidget* view = widget(list);
    view->setFont(fixedPitchFont(view->font()));
    // Its columns are made of blanks, which a line from the right would put into another order.
    view->setLayoutDirection(Qt::LeftToRight);
    return view;
}

QWidget* Binder::picture(const std::string& image, QWidget* widget) {
    if (form_ == nullptr) throw std::logic_error("the form of the picture " + image + " has ended");
    const Counting writing(writing_);
    return keep(bindImage(*this, form_->control(image), widget));
}

QWidget* Binder::drawing(const std::string& image, Drawing* drawing) {
    picture(image, drawing);
    return this->drawing(drawing);
}

Drawing* Binder::drawing(Drawing* drawing) {
    drawings_.push_back(drawing);
    drawing->installEventFilter(this);
    connect(drawing, &QObject::destroyed, this,
            [this, drawing] { std::erase(drawings_, drawing); });
    return drawing;
}

}  // namespace varnholt
