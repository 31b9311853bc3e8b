// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/widget_driver.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTabWidget>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"
#include "frame/varnmain.h"
#include "script/script_fault.h"

namespace varnholt {
namespace {

/// Brings the pages around a widget to the front, and puts back what was there.
class PagesInFront {
 public:
    explicit PagesInFront(QWidget* widget) {
        QWidget* inside = widget;
        for (QWidget* around = widget->parentWidget(); around != nullptr;
             around = around->parentWidget()) {
            if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(inside);
            auto* tabs = qobject_cast<QTabWidget*>(around);
            if (tabs == nullptr) continue;
            for (int page = 0; page < tabs->count(); ++page)
                if (tabs->widget(page)->isAncestorOf(widget)) show(tabs, page);
        }
        // What has been posted since the page was built is done before a hand can reach it.
        QCoreApplication::sendPostedEvents();
    }
    ~PagesInFront() {
        for (const auto& [tabs, page] : before_) {
            if (tabs == nullptr) continue;
            const QSignalBlocker quiet(tabs);
            tabs->setCurrentIndex(page);
        }
    }
    PagesInFront(const PagesInFront&) = delete;
    PagesInFront& operator=(const PagesInFront&) = delete;

 private:
    void show(QTabWidget* tabs, int page) {
        if (tabs->currentIndex() == page) return;
        before_.emplace_back(tabs, tabs->currentIndex());
        const QSignalBlocker quiet(tabs);
        tabs->setCurrentIndex(page);
    }

    std::vector<std::pair<QPointer<QTabWidget>, int>> before_;
};

QLineEdit* lineOf(QWidget* widget) {
    if (auto* combo = qobject_cast<QComboBox*>(widget)) return combo->lineEdit();
    return qobject_cast<QLineEdit*>(widget);
}

/// Puts the text in place of the whole text, as one change.
void replaceText(QWidget* widget, const std::string& text) {
    QWidget* target = widget;
    QString typed = qt(text);
    if (QLineEdit* line = lineOf(widget)) {
        line->selectAll();
        target = line;
    } else if (auto* edit = qobject_cast<QPlainTextEdit*>(widget)) {
        edit->selectAll();
        typed = documentText(text);
    }
    if (text.empty()) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &press);
    } else {
        QInputMethodEvent input;
        input.setCommitString(typed);
        QCoreApplication::sendEvent(target, &input);
    }
}

void pressKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers);
    QCoreApplication::sendEvent(widget, &release);
}

}  // namespace

WidgetDriver::WidgetDriver(Varnmain& main, OpenWindows& windows) : main_(main), windows_(windows) {}

FaultTaker WidgetDriver::faultTaker() {
    return [this](const std::exception_ptr& fault) {
        // The first is the cause of those that follow it.
        if (!fault_) fault_ = fault;
    };
}

void WidgetDriver::finish() {
    if (fault_) std::rethrow_exception(std::exchange(fault_, nullptr));
    // Windows that have been closed go once nothing of theirs is under way.
    if (main_.modalForms().empty())
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool WidgetDriver::isMain(const Form& form) const {
    return &form == static_cast<const Form*>(&main_);
}

BoundControl& WidgetDriver::boundOf(const Form& form, const Control& control) const {
    FormWindow* window = windows_.windowOf(form);
    BoundControl* bound = window == nullptr ? nullptr : window->binder().require(control.name());
    if (bound == nullptr) throw ScriptFault(control.name() + " stands in no window");
    return *bound;
}

void WidgetDriver::work(Form& form, const Control& control,
                        const std::function<void(QWidget*)>& hand, const Verb& verb) {
    BoundControl& bound = boundOf(form, control);
    const QPointer<Binder> binder = &windows_.windowOf(form)->binder();
    {
        const PagesInFront pages(bound.widget());
        if (!bound.widget()->isVisible())
            throw ScriptFault(control.name() + " is not on show in its window");
        const int before = binder->actions();
        hand(bound.widget());
        if (binder != nullptr && binder->actions() == before) binder->act(bound, verb);
    }
    finish();
}

void WidgetDriver::type(Form& form, const Control& control, const std::string& text) {
    work(
        form, control, [&](QWidget* widget) { replaceText(widget, text); },
        [&](Form& f, const std::string& name) { f.type(name, text); });
}

void WidgetDriver::leave(Form& form, const Control& control) {
    work(
        form, control,
        [&](QWidget* widget) {
            Binder& binder = windows_.windowOf(form)->binder();
            const QPointer<Binder> alive = &binder;
            binder.setLeavesByFocus(true);
            QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
            QCoreApplication::sendEvent(widget, &out);
            if (alive != nullptr) binder.setLeavesByFocus(false);
        },
        [](Form& f, const std::string& name) { f.leave(name); });
}

void WidgetDriver::key(Form& form, const Control& control, const std::string& key) {
    work(
        form, control,
        [&](QWidget* widget) {
            // The focus of a script's hand stands on the widget that it works.
            if (key == "F1") return windows_.windowOf(form)->helpFor(widget);
            if (key != "Ctrl+V") return pressKey(widget, Qt::Key_Return, Qt::NoModifier);
            QGuiApplication::clipboard()->setText(qt(form.platform().clipboard()));
            if (QLineEdit* line = lineOf(widget)) line->selectAll();
            if (auto* edit = qobject_cast<QPlainTextEdit*>(widget)) edit->selectAll();
            pressKey(widget, Qt::Key_V, Qt::ControlModifier);
        },
        [&](Form& f, const std::string& name) {
            if (key != "F1") f.key(name, key);
        });
}

void WidgetDriver::click(Form& form, const Control& control) {
    if (isMain(form)) {
        QAction* action = windows_.command(control.name());
        if (action == nullptr) throw ScriptFault(control.name() + " stands in no menu");
        if (action->menu() == nullptr) action->trigger();
        return finish();
    }
    work(
        form, control,
        [](QWidget* widget) {
            if (auto* button = qobject_cast<QAbstractButton*>(widget)) button->click();
        },
        [](Form& f, const std::string& name) { f.click(name); });
}

void WidgetDriver::choose(Form& form, const Control& control, int index) {
    work(
        form, control,
        [index](QWidget* widget) {
            if (auto* combo = qobject_cast<QComboBox*>(widget)) {
                combo->setCurrentIndex(index);
                combo->activated(index);
            } else if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
                tabs->setCurrentIndex(index);
            } else if (auto* list = dynamic_cast<ListView*>(widget)) {
                list->pick({index});
            }
        },
        [index](Form& f, const std::string& name) { f.choose(name, index); });
}

void WidgetDriver::select(Form& form, const Control& control, const std::vector<int>& rows) {
    work(
        form, control,
        [&](QWidget* widget) {
            if (auto* list = dynamic_cast<ListView*>(widget)) list->pick(rows);
        },
        [&](Form& f, const std::string& name) { f.select(name, rows); });
}

void WidgetDriver::slide(Form& form, const Control& control, double value) {
    work(
        form, control,
        [value](QWidget* widget) {
            if (auto* number = dynamic_cast<MovedNumber*>(widget)) number->moveTo(value);
        },
        [value](Form& f, const std::string& name) { f.slide(name, value); });
}

void WidgetDriver::pickDate(Form& form, const Control& control, const Date& date) {
    work(
        form, control,
        [&](QWidget* widget) {
            auto* edit = qobject_cast<QDateEdit*>(widget);
            const QDate day = qt(date);
            if (edit != nullptr && day >= edit->minimumDate() && day <= edit->maximumDate())
                edit->setDate(day);
        },
        [&](Form& f, const std::string& name) { f.pickDate(name, date); });
}

void WidgetDriver::activate(Form& form) {
    for (ChildWindow* child : main_.windows()) {
        if (child != &form) continue;
        windows_.bringToFront(form);
        main_.activate(*child);  // in front already as far as the toolkit knows
        return finish();
    }
}

void WidgetDriver::close(Form& form) {
    windows_.pressCloseBox(form);
    finish();
}

std::string WidgetDriver::caption(const Form& form) {
    const QWidget* frame = windows_.frameOf(form);
    if (frame == nullptr) return form.caption();
    QString title = frame->windowTitle();
    if (title.endsWith(QLatin1String("[*]"))) title.chop(3);
    return plain(title);
}

Shown WidgetDriver::read(Form& form, const Control& control, Property property) {
    if (isMain(form)) return windows_.shownOfMain(control, property);
    return boundOf(form, control).shown(property);
}

bool WidgetDriver::picture(Form& form, const std::string& path) {
    QWidget* frame = windows_.frameOf(form);
    if (frame == nullptr) throw ScriptFault(form.formName() + " has no window");
    // A person who looks at the main window sees what its windows find in the next moments.
    if (isMain(form))
        for (const ChildWindow* child : main_.windows())
            if (FormWindow* window = windows_.windowOf(*child); window != nullptr)
                window->binder().finishLate();
    // Layouts that have been asked for are done before the picture is taken. Each widget around the
    // one that has changed takes a round, and the window that grows with them one more.
    constexpr int rounds = 8;
    for (int round = 0; round < rounds; ++round)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    if (!frame->grab().save(&png, "PNG")) throw ScriptFault(path + " cannot be written");
    try {
        replaceWholeFile(path, {png.data().constData(), static_cast<std::size_t>(png.size())});
    } catch (const RunTimeError&) {
        throw ScriptFault(path + " cannot be written");
    }
    return true;
}

}  // namespace varnholt
