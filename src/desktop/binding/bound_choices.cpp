// SPDX-License-Identifier: GPL-3.0-or-later
// Check boxes, options, lists, sliders and spin buttons.
#include <QButtonGroup>
#include <QCheckBox>
#include <QFocusEvent>
#include <QRadioButton>
#include <type_traits>

#include "desktop/binding/binder.h"
#include "desktop/binding/bound_control.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/screen_reader.h"

namespace varnholt {
namespace {

/// What check boxes and option buttons have in common.
class BoundToggle : public BoundControl {
 public:
    BoundToggle(Binder& binder, Control& control, QAbstractButton* button)
        : BoundControl(binder, control, button), button_(button) {
        QObject::connect(button_, &QAbstractButton::clicked, &binder, [this] {
            this->binder().act(*this, [](Form& f, const std::string& name) { f.click(name); });
        });
        QObject::connect(button_, &QAbstractButton::toggled, &binder, [this] {
            if (hasOtherState()) followLater();
        });
    }

    void show(Property property) override {
        if (property == Property::caption) {
            button_->setText(buttonCaption(control().caption()));
            button_->setAccessibleName(qt(control().caption()));
        } else if (property == Property::checked) {
            showChecked();
        } else {
            BoundControl::show(property);
        }
    }
    Shown shown(Property property) const override {
        if (property == Property::caption) return captionOfButton(button_->text());
        if (property == Property::checked) return button_->isChecked();
        return BoundControl::shown(property);
    }

 protected:
    QAbstractButton* button() const { return button_; }
    virtual void showChecked() { button_->setChecked(control().checked()); }
    /// The button shows what the control is not, as it does for a moment in every click.
    virtual bool hasOtherState() const {
        return binder().form() != nullptr && button_->isChecked() != control().checked();
    }

 private:
    /// Assistive technology toggles a button without a click. A click has been handled by then.
    void followLater() {
        QMetaObject::invokeMethod(
            &binder(),
            [this] {
                if (hasOtherState())
                    binder().act(*this, [](Form& f, const std::string& name) { f.click(name); });
            },
            Qt::QueuedConnection);
    }

    QAbstractButton* button_;
};

class BoundCheck : public BoundToggle {
 public:
    BoundCheck(Binder& binder, Control& control) : BoundToggle(binder, control, new QCheckBox) {
        showAll();
    }
};

/// An option that lets the chosen one of its group have the focus of a window that comes to the
/// front: the toolkit gives it to the first widget there is.
class OptionOfSeveral : public QRadioButton {
 protected:
    void focusInEvent(QFocusEvent* event) override {
        QAbstractButton* chosen = group() == nullptr ? nullptr : group()->checkedButton();
        const bool byWindow = event->reason() == Qt::ActiveWindowFocusReason ||
                              event->reason() == Qt::OtherFocusReason;
        if (byWindow && !isChecked() && chosen != nullptr && chosen->isVisible())
            chosen->setFocus(event->reason());
        else
            QRadioButton::focusInEvent(event);
    }
};

class BoundOption : public BoundToggle {
 public:
    BoundOption(Binder& binder, Control& control)
        : BoundToggle(binder, control, new OptionOfSeveral),
          group_(binder.optionGroup(control.group())) {
        group_->addButton(button());
        showAll();
    }

 protected:
    void showChecked() override {
        // An exclusive group would not let its last button go.
        group_->setExclusive(false);
        BoundToggle::showChecked();
        group_->setExclusive(true);
        stopAtChosen();
    }
    /// The one that is chosen speaks for its group.
    bool hasOtherState() const override {
        return button()->isChecked() && BoundToggle::hasOtherState();
    }

 private:
    /// The keyboard comes to the option that is chosen, and the arrow keys go on from there. The
    /// toolkit sees to that only once one of them has had the focus.
    void stopAtChosen() {
        const QAbstractButton* chosen = group_->checkedButton();
        for (QAbstractButton* option : group_->buttons())
            option->setFocusPolicy(chosen == nullptr || option == chosen ? Qt::StrongFocus
                                                                         : Qt::ClickFocus);
    }

    QButtonGroup* group_;
};

class BoundList : public BoundControl {
 public:
    BoundList(Binder& binder, Control& control)
        : BoundControl(binder, control, new ListView(control.multiple())),
          list_(static_cast<ListView*>(widget())) {
        list_->onPicked = [this] { picked(); };
        if (binder.form() != nullptr && binder.form()->takesKeys(control.name()))
            binder.watchKeys(*this, list_);
        showAll();
    }

    void show(Property property) override {
        if (property == Property::items)
            list_->setItems(control().items());
        else if (property == Property::selected)
            list_->setRows(control().selected());
        else
            BoundControl::show(property);
    }
    Shown shown(Property property) const override {
        const std::vector<int> rows = list_->rows();
        switch (property) {
            case Property::items:
                return list_->entries().items();
            case Property::selected:
                return rows;
            case Property::index:
                return rows.empty() ? -1 : rows.front();
            case Property::text:
                return rows.empty() ? std::string()
                                    : list_->entries().items()[static_cast<std::size_t>(rows[0])];
            default:
                return BoundControl::shown(property);
        }
    }

 private:
    void picked() {
        const std::vector<int> rows = list_->rows();
        binder().act(*this, [this, rows](Form& f, const std::string& name) {
            if (control().multiple())
                f.select(name, rows);
            else
                f.choose(name, rows.empty() ? -1 : rows.front());
        });
    }

    ListView* list_;
};

/// A slider, or spin buttons.
class BoundNumber : public BoundControl {
 public:
    template <class Widget>
    BoundNumber(Binder& binder, Control& control, Widget* widget)
        : BoundControl(binder, control, widget), number_(widget) {
        number_->onMoved = [this](double value) {
            this->binder().act(*this,
                               [value](Form& f, const std::string& name) { f.slide(name, value); });
        };
        showAll();
    }

    void show(Property property) override {
        if (property == Property::min || property == Property::max)
            number_->setNumbers(control().min(), control().max());
        else if (property == Property::value)
            number_->setNumber(control().value());
        else if (property == Property::step)
            number_->setStep(control().step());
        else
            BoundControl::show(property);
    }
    Shown shown(Property property) const override {
        if (property == Property::min) return number_->lowest();
        if (property == Property::max) return number_->highest();
        if (property == Property::value) return number_->number();
        return BoundControl::shown(property);
    }

 private:
    MovedNumber* number_;
};

class BoundUpDown : public BoundNumber {
 public:
    BoundUpDown(Binder& binder, Control& control, UpDownButtons* buttons)
        : BoundNumber(binder, control, buttons), buttons_(buttons) {
        show(Property::accessibleName);
    }

    void call(const QString& name) override {
        BoundNumber::call(name);
        buttons_->callButtons(qt(binder().text(Text::moreOfNumber)).arg(name),
                              qt(binder().text(Text::lessOfNumber)).arg(name));
    }

 private:
    UpDownButtons* buttons_;
};

}  // namespace

std::unique_ptr<BoundControl> bindCheck(Binder& binder, Control& control) {
    return std::make_unique<BoundCheck>(binder, control);
}
std::unique_ptr<BoundControl> bindOption(Binder& binder, Control& control) {
    return std::make_unique<BoundOption>(binder, control);
}
std::unique_ptr<BoundControl> bindList(Binder& binder, Control& control) {
    return std::make_unique<BoundList>(binder, control);
}
std::unique_ptr<BoundControl> bindSlider(Binder& binder, Control& control) {
    auto* slider = new NumberSlider;
    auto bound = std::make_unique<BoundNumber>(binder, control, slider);
    QObject::connect(slider, &QSlider::sliderPressed, &binder, [&binder, name = control.name()] {
        if (Form* form = binder.form()) form->beginGesture(name);
    });
    QObject::connect(slider, &QSlider::sliderReleased, &binder, [&binder] {
        if (Form* form = binder.form()) form->endGesture();
    });
    return bound;
}
std::unique_ptr<BoundControl> bindUpDown(Binder& binder, Control& control) {
    return std::make_unique<BoundUpDown>(binder, control, new UpDownButtons);
}

}  // namespace varnholt
