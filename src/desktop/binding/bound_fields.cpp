// SPDX-License-Identifier: GPL-3.0-or-later
// Text fields, rich text, combos and dates.
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QDateEdit>
#include <QItemSelectionModel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QWheelEvent>
#include <cstddef>
#include <limits>
#include <utility>

#include "basis/raised_flag.h"
#include "desktop/binding/binder.h"
#include "desktop/binding/bound_control.h"
#include "desktop/binding/giving_out.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/desktop.h"
#include "forms/text_numbers/files.h"

namespace varnholt {
namespace {

/// Figures that a numeric field must have room for: "-12345.67".
constexpr int figuresInField = 9;

/// A field lays its whole text out, which takes a second for some hundred thousand letters in one
/// line, or a million in several, and much memory. Of a longer text it shows the beginning, and
/// cannot be typed into.
std::size_t mostBytesInField(const Control& control) {
    return control.kind() == ControlKind::richText ? 1'000'000 : 100'000;
}

bool isShownInPart(const Control& control) {
    return control.text().size() > mostBytesInField(control);
}

/// As much of the control's text as its field shows, up to a whole character.
std::string textInField(const Control& control) {
    if (!isShownInPart(control)) return control.text();
    const auto goesOn = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
    std::size_t end = mostBytesInField(control);
    while (end > 0 && goesOn(control.text()[end])) --end;
    return control.text().substr(0, end);
}

/// Why a field that shows a part cannot be typed into; the control's own tip otherwise.
QString tipOf(const Binder& binder, const Control& control) {
    return qt(isShownInPart(control) ? binder.text(Text::textShownInPart) : control.tooltip());
}

/// A line of text that is typed into, by keys or by assistive technology.
class FollowedLine {
 public:
    FollowedLine(Binder& binder, BoundControl& bound) : binder_(binder), bound_(bound) {}

    /// Takes to the form what is written into the line from now on.
    void follow(QLineEdit* line) {
        line_ = line;
        QObject::connect(line, &QLineEdit::textEdited, &binder_, [this] { type(); });
        QObject::connect(line, &QLineEdit::textChanged, &binder_, [this] {
            if (hasOtherText()) followLater();
        });
    }
    /// While this stands, the line is written as the control has it.
    [[nodiscard]] RaisedFlag writing() { return RaisedFlag(writes_); }

 private:
    void type() {
        binder_.act(bound_, [text = plain(line_->text())](Form& f, const std::string& name) {
            f.type(name, text);
        });
    }
    bool hasOtherText() const {
        const Control& control = bound_.control();
        return !writes_ && binder_.form() != nullptr && !isShownInPart(control) &&
               plain(line_->text()) != control.text();
    }
    bool takesText() const { return bound_.widget()->isEnabled() && !bound_.control().locked(); }
    /// Assistive technology writes a text without a key, and goes on without leaving the field; it
    /// may do so where no key could. What keys have typed has been handled by then.
    void followLater() {
        QMetaObject::invokeMethod(
            &binder_,
            [this] {
                if (!hasOtherText()) return;
                if (!takesText()) return bound_.show(Property::text);
                type();
                if (!bound_.widget()->hasFocus()) binder_.leave(bound_);
            },
            Qt::QueuedConnection);
    }

    Binder& binder_;
    BoundControl& bound_;
    QLineEdit* line_ = nullptr;
    bool writes_ = false;
};

/// A text in one line or in several, or the beginning of one that is too long.
template <class Edit>
class BoundEdit : public BoundControl {
 public:
    void show(Property property) override {
        if (property == Property::text)
            showText();
        else if (property == Property::locked)
            edit_->setReadOnly(control().locked() || isShownInPart(control()));
        else
            BoundControl::show(property);
    }
    Shown shown(Property property) const override {
        const bool part = isShownInPart(control());
        if (property == Property::text) return part ? control().text() : written();
        if (property == Property::locked) return part ? control().locked() : edit_->isReadOnly();
        return BoundControl::shown(property);
    }

 protected:
    BoundEdit(Binder& binder, Control& control, Edit* edit)
        : BoundControl(binder, control, edit), edit_(edit) {}

    Edit* edit() const { return edit_; }
    virtual std::string written() const = 0;
    virtual void write(const std::string& text) = 0;

 private:
    void showText() {
        const bool part = isShownInPart(control());
        if (part != std::exchange(inPart_, part)) {
            show(Property::locked);
            edit_->setToolTip(tipOf(binder(), control()));
        }
        // Writing the text that stands there would move the cursor away from where one types.
        if (const std::string text = textInField(control()); written() != text) write(text);
    }

    Edit* edit_;
    bool inPart_ = false;
};

class BoundText : public BoundEdit<FieldEdit> {
 public:
    BoundText(Binder& binder, Control& control, bool numeric)
        : BoundEdit(binder, control, new FieldEdit(numeric ? figuresInField : 0)),
          line_(binder, *this) {
        if (numeric) edit()->setFont(figureFont(edit()->font()));
        line_.follow(edit());
        edit()->addToMenu = [edit = edit(), owner = QPointer<Binder>(&binder)](QMenu& menu,
                                                                               bool byKey) {
            if (owner == nullptr || owner->form() == nullptr) return;
            menu.addSeparator();
            addGivingOut(menu, *owner->form(), edit);
            if (byKey && owner->window() != nullptr)
                addPicturesOf(menu, *owner->form(), *owner->window());
        };
        binder.watchKeys(*this, edit());
        showAll();
    }

    void show(Property property) override {
        if (property == Property::refused)
            showRefused();
        else
            BoundEdit::show(property);
    }

 protected:
    /// What is typed next takes the place of what stands there.
    void takeFocus() override {
        BoundControl::takeFocus();
        edit()->selectAll();
    }
    std::string written() const override { return plain(edit()->text()); }
    void write(const std::string& text) override {
        {
            const RaisedFlag writing = line_.writing();
            edit()->setText(qt(text));
        }
        if (!edit()->hasFocus()) edit()->setCursorPosition(0);
    }

 private:
    QString reasonOf() const {
        const Form* form = binder().form();
        const auto refused = form == nullptr ? std::nullopt : form->fields().refused();
        const bool mine = refused && refused->control == control().name();
        return qt(mine ? form->whyRefused(*refused) : binder().text(Text::refusedValue));
    }
    void showRefused() {
        const QString reason = control().refused() ? reasonOf() : QString();
        const bool marked = edit()->property("refused").toBool();
        if (marked == control().refused() && edit()->accessibleDescription() == reason) return;
        setStyleProperty("refused", control().refused());
        edit()->setMark(control().refused() ? houseIcon(QStringLiteral("refused")) : QIcon(),
                        reason);
        edit()->setAccessibleDescription(reason);
    }

    FollowedLine line_;
};

class BoundRichText : public BoundEdit<QPlainTextEdit> {
 public:
    BoundRichText(Binder& binder, Control& control)
        : BoundEdit(binder, control, new QPlainTextEdit) {
        edit()->setTabChangesFocus(true);
        edit()->setMinimumHeight(6 * edit()->fontMetrics().lineSpacing());
        QObject::connect(edit(), &QPlainTextEdit::textChanged, &binder, [this] {
            if (isShownInPart(this->control())) return;
            const std::string text = written();
            if (text == this->control().text()) return;
            this->binder().act(*this,
                               [text](Form& f, const std::string& name) { f.type(name, text); });
        });
        binder.watchKeys(*this, edit());
        showAll();
    }

 protected:
    std::string written() const override { return textOfDocument(edit()->document()->toRawText()); }
    void write(const std::string& text) override { edit()->setPlainText(documentText(text)); }
};

/// A combo that the wheel changes only when one works it, not while the page scrolls by.
class CalmCombo : public QComboBox {
 protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus())
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }
};

class BoundCombo : public BoundControl, private QAccessible::ActivationObserver {
 public:
    BoundCombo(Binder& binder, Control& control)
        : BoundControl(binder, control, new CalmCombo),
          combo_(static_cast<QComboBox*>(widget())),
          line_(binder, *this) {
        combo_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        combo_->setMinimumContentsLength(8);
        combo_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        combo_->setMaxVisibleItems(20);
        if (control.editable()) makeEditable();
        QObject::connect(combo_, &QComboBox::activated, &binder, [this](int index) {
            this->binder().act(
                *this, [index](Form& f, const std::string& name) { f.choose(name, index); });
        });
        if (QAccessible::isActive()) followItsList();
        QAccessible::installActivationObserver(this);
        binder.watchKeys(*this, combo_);
        showAll();
    }
    ~BoundCombo() override { QAccessible::removeActivationObserver(this); }
    BoundCombo(const BoundCombo&) = delete;
    BoundCombo& operator=(const BoundCombo&) = delete;

    void show(Property property) override {
        const RaisedFlag writing = line_.writing();
        switch (property) {
            case Property::items:
                showItems();
                break;
            case Property::index:
                if (combo_->currentIndex() != control().index()) {
                    combo_->setCurrentIndex(control().index());
                    showText();
                }
                break;
            case Property::text:
                showText();
                break;
            case Property::locked:
                combo_->setAttribute(Qt::WA_TransparentForMouseEvents, control().locked());
                break;
            default:
                BoundControl::show(property);
        }
    }
    /// Whoever works a combo by its parts finds its line by the same name.
    void call(const QString& name) override {
        BoundControl::call(name);
        if (combo_->lineEdit() != nullptr) combo_->lineEdit()->setAccessibleName(name);
    }
    Shown shown(Property property) const override {
        switch (property) {
            case Property::text:
                if (!control().editable() && combo_->currentIndex() < 0)
                    return plain(combo_->placeholderText());
                return plain(combo_->currentText());
            case Property::index:
                return combo_->currentIndex();
            case Property::items: {
                std::vector<std::string> items;
                items.reserve(static_cast<std::size_t>(combo_->count()));
                for (int i = 0; i < combo_->count(); ++i)
                    items.push_back(plain(combo_->itemText(i)));
                return items;
            }
            case Property::locked:
                return combo_->testAttribute(Qt::WA_TransparentForMouseEvents);
            default:
                return BoundControl::shown(property);
        }
    }

 private:
    void makeEditable() {
        combo_->setEditable(true);
        combo_->setInsertPolicy(QComboBox::NoInsert);
        combo_->setCompleter(nullptr);
        combo_->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
        line_.follow(combo_->lineEdit());
    }

    void accessibilityActiveChanged(bool active) override {
        if (active) followItsList();
    }
    /// Assistive technology chooses an entry in the list that is not open, of which the combo
    /// itself takes no notice. The list is made for that, which would cost everybody else.
    void followItsList() {
        if (std::exchange(followsItsList_, true)) return;
        QObject::connect(combo_->view()->selectionModel(), &QItemSelectionModel::selectionChanged,
                         &binder(), [this](const QItemSelection& chosen) {
                             if (chosen.isEmpty() || combo_->view()->isVisible()) return;
                             chooseLater(chosen.indexes().front().row());
                         });
    }
    void chooseLater(int index) {
        QMetaObject::invokeMethod(
            &binder(),
            [this, index] {
                if (binder().form() == nullptr || index == control().index() ||
                    index >= combo_->count())
                    return;
                binder().act(*this,
                             [index](Form& f, const std::string& name) { f.choose(name, index); });
            },
            Qt::QueuedConnection);
    }

    void showText() {
        const QString text = qt(control().text());
        if (control().editable()) {
            if (combo_->currentText() != text) combo_->setEditText(text);
            return;
        }
        // It stands there while no entry is chosen. Without it the toolkit chooses the first.
        combo_->setPlaceholderText(text);
        combo_->setCurrentIndex(control().index());
    }

    void showItems() {
        const auto& items = control().items();
        if (static_cast<std::size_t>(combo_->count()) == items.size()) {
            for (std::size_t i = 0; i < items.size(); ++i)
                combo_->setItemText(static_cast<int>(i), qt(items[i]));
        } else {
            QStringList texts;
            for (const std::string& item : items) texts << qt(item);
            combo_->clear();
            combo_->addItems(texts);
        }
        combo_->setCurrentIndex(control().index());
        showText();
    }

    QComboBox* combo_;
    FollowedLine line_;
    bool followsItsList_ = false;
};

class CalmDateEdit : public QDateEdit {
 public:
    /// The style's own hint leaves no room for the arrow beside the whole date.
    QSize sizeHint() const override {
        constexpr int arrowAndPadding = 48;
        const int date = fontMetrics().horizontalAdvance(QStringLiteral("0000-00-00"));
        return {date + arrowAndPadding, QDateEdit::sizeHint().height()};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

class BoundDate : public BoundControl {
 public:
    BoundDate(Binder& binder, Control& control)
        : BoundControl(binder, control, new CalmDateEdit),
          edit_(static_cast<QDateEdit*>(widget())) {
        edit_->setCalendarPopup(true);
        // The toolkit begins with the Gregorian calendar's first day in Britain.
        edit_->setMinimumDate(QDate(100, 1, 1));
        edit_->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
        edit_->setFont(figureFont(edit_->font()));
        edit_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        QObject::connect(edit_, &QDateEdit::dateChanged, &binder, [this](QDate date) {
            this->binder().act(
                *this, [date](Form& f, const std::string& name) { f.pickDate(name, plain(date)); });
        });
        binder.watchKeys(*this, edit_);
        showAll();
    }

    void show(Property property) override {
        if (property == Property::date)
            showDate();
        else if (property == Property::locked)
            edit_->setReadOnly(control().locked());
        else
            BoundControl::show(property);
    }
    Shown shown(Property property) const override {
        if (property == Property::value || property == Property::date) return shownDate();
        if (property == Property::text) return isoText(shownDate());
        if (property == Property::locked) return edit_->isReadOnly();
        return BoundControl::shown(property);
    }

 private:
    /// A day before the first that the widget can hold stands in its place as a text.
    void showDate() {
        const QDate date = qt(control().date());
        const bool fits = date >= edit_->minimumDate() && date <= edit_->maximumDate();
        edit_->setSpecialValueText(fits ? QString() : qt(isoText(control().date())));
        edit_->setDate(fits ? date : edit_->minimumDate());
    }
    Date shownDate() const {
        const bool asText = edit_->date() == edit_->minimumDate();
        const auto early = readIsoDate(plain(edit_->specialValueText()));
        return asText && early ? *early : plain(edit_->date());
    }

    QDateEdit* edit_;
};

}  // namespace

std::unique_ptr<BoundControl> bindText(Binder& binder, Control& control) {
    const bool typed = binder.form() != nullptr && binder.form()->fields().has(control.name());
    // A text with a unit behind it is a figure too, though nobody types it.
    return std::make_unique<BoundText>(binder, control, typed || !control.unitLabel().empty());
}
std::unique_ptr<BoundControl> bindRichText(Binder& binder, Control& control) {
    return std::make_unique<BoundRichText>(binder, control);
}
std::unique_ptr<BoundControl> bindCombo(Binder& binder, Control& control) {
    return std::make_unique<BoundCombo>(binder, control);
}
std::unique_ptr<BoundControl> bindDate(Binder& binder, Control& control) {
    return std::make_unique<BoundDate>(binder, control);
}

}  // namespace varnholt
