// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/form_window.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QMenu>
#include <QVBoxLayout>
#include <QWhatsThis>
#include <utility>

#include "desktop/binding/button_keys.h"
#include "desktop/binding/giving_out.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

QIcon iconOf(const std::string& formName) {
    static const std::map<std::string, const char*> icons{
        {"frmBHDesign", "new-borehole"},        {"frmHZDesign", "new-horizontal"},
        {"frmSWDesign", "new-surface-water"},   {"frmZoneManage", "zones"},
        {"frmAvgBlock", "average-block"},       {"frmHPEdit", "heat-pump"},
        {"frmDiffusivityCalc", "calculator"},   {"frmPumpPowerCalc", "calculator"},
        {"frmEqvHoursCalc", "calculator"},      {"frmImport1", "import"},
        {"frmSecondOpinion", "second-opinion"}, {"frmWhatIf", "what-if"},
    };
    const auto found = icons.find(formName);
    return houseIcon(QString::fromLatin1(found == icons.end() ? "window" : found->second));
}

}  // namespace

bool isHelpKey(const QKeyEvent& key) {
    return key.key() == Qt::Key_F1 && (key.modifiers() & ~Qt::ShiftModifier) == 0;
}

FormWindow::FormWindow(Form& form, const ViewMaker& makeView, FaultTaker faults)
    : faults_(std::move(faults)), binder_(form) {
    binder_.setWindow(this);
    binder_.setFaultTaker(faults_);
    binder_.build([&] { view_ = makeView(binder_); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setWindowIcon(iconOf(form.formName()));
    finish();
    binder_.onBuilt = [this] { finish(); };
    binder_.onSettled([this] {
        if (isVisible()) giveKeys(*this);
    });
}

/// What can only be told once the widgets stand in their places.
void FormWindow::finish() {
    setReadingOrder(view_);
    binder_.nameTheNameless();
}

/// The control that the widget shows, or that a widget around it shows; empty for none.
std::string FormWindow::controlOf(const QWidget* widget) const {
    for (; widget != nullptr && widget != this; widget = widget->parentWidget()) {
        std::string name = plain(widget->objectName());
        if (!name.empty() && binder_.has(name)) return name;
    }
    return {};
}

void FormWindow::helpFor(const QWidget* widget) {
    Form* form = binder_.form();
    if (form == nullptr) return;
    try {
        form->help(controlOf(widget));
    } catch (...) {
        if (!faults_) throw;
        faults_(std::current_exception());
    }
}

void FormWindow::showWhatsThis(const QPoint& place, const QPoint& onScreen) {
    const Form* form = binder_.form();
    if (form == nullptr) return;
    const QString text = qt(form->whatsThis(controlOf(childAt(place))));
    if (!text.isEmpty()) QWhatsThis::showText(onScreen, text.toHtmlEscaped(), this);
}

void FormWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    giveKeys(*this);
}

/// F1 is the window's own key before it is the menu's: it asks about the control that has the
/// focus. A page of the web would keep the key to itself, so the window takes it before it gets
/// there. What's This goes by the place of the pointer.
bool FormWindow::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            if (!isHelpKey(*static_cast<QKeyEvent*>(event))) break;
            QMetaObject::invokeMethod(
                this, [this, keys = static_cast<QKeyEvent*>(event)->modifiers()] { askHelp(keys); },
                Qt::QueuedConnection);
            event->accept();
            return true;
        case QEvent::KeyPress:
            if (!isHelpKey(*static_cast<QKeyEvent*>(event))) break;
            event->accept();
            return true;
        case QEvent::QueryWhatsThis:
            event->accept();
            return true;
        case QEvent::LayoutRequest: {
            const bool done = QWidget::event(event);
            growToContents();
            return done;
        }
        case QEvent::WhatsThis: {
            const auto* help = static_cast<QHelpEvent*>(event);
            showWhatsThis(help->pos(), help->globalPos());
            return true;
        }
        default:
            break;
    }
    return QWidget::event(event);
}

/// A window whose words have become longer, such as those of other units, makes room for them.
void FormWindow::growToContents() {
    auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (frame == nullptr || !isVisible() || frame->isMaximized() || frame->isMinimized()) return;
    const QSize lacking = (minimumSizeHint() - size()).expandedTo(QSize(0, 0));
    if (!lacking.isNull()) frame->resize(frame->size() + lacking);
}

/// Tables and pictures under the pointer can be taken away. The keyboard points at what has the
/// focus, which no picture has: it is offered all that are on show.
void FormWindow::contextMenuEvent(QContextMenuEvent* event) {
    const Form* form = binder_.form();
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    QWidget* widget = byKey ? QApplication::focusWidget() : childAt(event->pos());
    if (form == nullptr || widget == nullptr) return;
    QMenu menu(this);
    if (binder_.addToMenu) binder_.addToMenu(menu, controlOf(widget));
    addGivingOut(menu, *form, widget);
    if (byKey) addPicturesOf(menu, *form, *this);
    if (!menu.isEmpty()) menu.exec(event->globalPos());
}

/// What has no text of its own to copy gives its table.
void FormWindow::keyPressEvent(QKeyEvent* event) {
    const Form* form = binder_.form();
    if (form != nullptr && event->matches(QKeySequence::Copy) && !binder_.isScripted() &&
        copyShown(*form, QApplication::focusWidget()))
        return event->accept();
    QWidget::keyPressEvent(event);
}

void FormWindow::askHelp(Qt::KeyboardModifiers keys) {
    if ((keys & Qt::ShiftModifier) != 0)
        QWhatsThis::enterWhatsThisMode();
    else
        helpFor(QApplication::focusWidget());
}

FormWindow::~FormWindow() {
    // The widgets outlive the binder by a moment and must not call it.
    binder_.detach();
}

}  // namespace varnholt
