// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/window_shelf.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTabWidget>
#include <algorithm>

#include "desktop/widgets/qt_text.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/window_keys.h"
#include "frame/design_document.h"
#include "frame/varnmain.h"
#include "loads/loads_window.h"

namespace varnholt {
namespace {

class Quiet {
 public:
    explicit Quiet(int& depth) : depth_(depth) { ++depth_; }
    ~Quiet() { --depth_; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

 private:
    int& depth_;
};

bool isModified(const Form& form) {
    const auto* loads = dynamic_cast<const LoadsWindow*>(&form);
    const auto* design = dynamic_cast<const DesignDocument*>(&form);
    return (loads != nullptr && loads->hasUnsavedChanges()) ||
           (design != nullptr && design->isChanged());
}

/// The field that a new window begins at is typed over, as one that is reached by Tab.
void selectFirstField(const ChildFrame& frame) {
    auto* edit = qobject_cast<QLineEdit*>(frame.focusWidget());
    if (edit != nullptr && edit->hasFocus()) edit->selectAll();
}

}  // namespace

WindowShelf::WindowShelf(bool scripted) : scripted_(scripted) {}

WindowShelf::~WindowShelf() = default;

void WindowShelf::setMain(MainWindow& window, Varnmain& main) {
    window_ = &window;
    main_ = &main;
    QObject::connect(&window.area(), &QMdiArea::subWindowActivated, &window,
                     [this](QMdiSubWindow* frame) { userActivated(frame); });
    if (scripted_) window.menu().setScripted();
    window.menu().beforeCommand = [this] {
        window_->tell({});
        endVisit();
    };
    window.menu().afterCommand = [this] { refreshTitles(); };
    window.frameOf = [this](const Form& form) {
        return qobject_cast<QMdiSubWindow*>(frameOf(form));
    };
    placeMain();
}

void WindowShelf::placeMain() {
    const auto place = rememberedPlace(*main_);
    if (!place) return;
    const QScreen* screen = QGuiApplication::screenAt(place->geometry.center());
    if (screen == nullptr) screen = window_->screen();
    const QRect room = screen->availableGeometry().marginsRemoved(MainWindow::frameMargins());
    window_->setGeometry(fittedInto(room, place->geometry));
    if (place->maximised) window_->setWindowState(window_->windowState() | Qt::WindowMaximized);
}

void WindowShelf::keepMainPlace() {
    if (remembered_ == nullptr) return;
    remembered_->keep(main_->formName(), {window_->normalGeometry(), window_->isMaximized(), {}});
}

std::optional<WindowPlace> WindowShelf::rememberedPlace(const Form& form) const {
    return remembered_ == nullptr ? std::nullopt : remembered_->placeOf(form.formName());
}

/// A half-typed field is part of what the command works with.
void WindowShelf::endVisit() {
    const QWidget* focused = QApplication::focusWidget();
    for (const auto& [form, place] : places_)
        if (place.content->isAncestorOf(focused)) return place.content->binder().endVisit(focused);
}

FormWindow* WindowShelf::makeContent(Form& form) {
    auto* content = new FormWindow(form, views_.maker(), faults_);
    if (scripted_) content->binder().setScripted();
    content->binder().onAction = [this] { window_->tell({}); };
    content->binder().onRefused = [this](const std::string& why) { window_->tell(why); };
    content->binder().onCaption = [this, &form] { refreshTitle(form); };
    places_[&form].content = content;
    return content;
}

void WindowShelf::opened(Form& form) {
    if (auto* child = dynamic_cast<ChildWindow*>(&form)) return openChild(*child);
    if (isMain(form)) return;
    FormWindow* picture = makeContent(form);
    picture->setWindowTitle(qt(form.caption()));
    window_->showStartPicture(picture);
}

void WindowShelf::openChild(ChildWindow& form) {
    const Quiet quiet(quiet_);
    window_->showArea(true);
    auto* frame = new ChildFrame;
    window_->area().addSubWindow(frame);
    leaveKeysToTheMenu(*frame);
    frame->setContent(makeContent(form));
    places_[&form].child = frame;
    frame->onCloseBox = [this, &form] { closeByBox(&form); };
    frame->content().binder().onSettled([this] { refreshTitles(); });
    place(*frame);
    const auto remembered = rememberedPlace(form);
    if (remembered && remembered->maximised)
        frame->showMaximized();
    else
        frame->show();
    // The frame measures its title with every change of its shape.
    refreshTitle(form);
    if (remembered) showPages(form, remembered->pages);
    if (!scripted_)
        QMetaObject::invokeMethod(
            frame, [frame] { selectFirstField(*frame); }, Qt::QueuedConnection);
}

/// Turns to the pages that were in front, as a person does: once the window is the active one.
void WindowShelf::showPages(Form& form, const std::map<std::string, int>& pages) {
    const Place& place = places_.at(&form);
    const auto turn = [&binder = place.content->binder(), pages] {
        for (const auto& [pane, page] : pages) {
            if (!binder.has(pane)) continue;
            if (auto* tabs = qobject_cast<QTabWidget*>(binder.widget(pane)))
                if (page < tabs->count()) tabs->setCurrentIndex(page);
        }
    };
    QMetaObject::invokeMethod(place.content, turn, Qt::QueuedConnection);
}

void WindowShelf::keepPlace(const Form& form, const ChildFrame& frame) {
    if (remembered_ == nullptr || !frame.ownPlace().isValid()) return;
    WindowPlace place{frame.ownPlace(), frame.isMaximized(), {}};
    for (const auto& control : form.controls())
        if (control->kind() == ControlKind::tabs && control->index() >= 0)
            place.pages[control->name()] = control->index();
    remembered_->keep(form.formName(), place);
}

/// Where a person has left the last of its kind, within the area; else in the usual place.
void WindowShelf::place(ChildFrame& frame) {
    const QRect room(QPoint(0, 0), window_->area().viewport()->size());
    const auto remembered = rememberedPlace(*frame.content().binder().form());
    if (remembered)
        frame.setOwnPlace(freeOfOthers(fittedInto(room, remembered->geometry), frame));
    else
        frame.setOwnPlace(usualPlace(frame));
}

/// A step further for each window that stands there already.
QRect WindowShelf::freeOfOthers(QRect place, const ChildFrame& frame) const {
    const QRect room(QPoint(0, 0), window_->area().viewport()->size());
    for (const QMdiSubWindow* open : window_->area().subWindowList(QMdiArea::CreationOrder))
        if (open != &frame && open->pos() == place.topLeft())
            place = fittedInto(room, place.translated(4 * gridStep, 4 * gridStep));
    return place;
}

/// As large as what it shows, within the area: beside the windows that are open where there is
/// room, else a step below and to the right of the last one.
QRect WindowShelf::usualPlace(const ChildFrame& frame) const {
    const QSize room = window_->area().viewport()->size();
    const QSize size = frame.sizeHint().boundedTo(room).expandedTo(QSize(320, 200));
    QPoint corner;
    QRect taken;
    for (const QMdiSubWindow* open : window_->area().subWindowList(QMdiArea::CreationOrder)) {
        if (open == &frame) continue;
        taken |= open->geometry();
        corner = open->pos() + QPoint(4 * gridStep, 4 * gridStep);
    }
    if (!taken.isNull() && taken.right() + size.width() < room.width())
        corner = QPoint(taken.right() + 1, 0);
    const QPoint last(std::max(0, room.width() - size.width()),
                      std::max(0, room.height() - size.height()));
    corner = QPoint(std::min(corner.x(), last.x()), std::min(corner.y(), last.y()));
    return {corner, size};
}

void WindowShelf::closed(Form& form) {
    const auto found = places_.find(&form);
    if (found == places_.end()) return;
    const Place place = found->second;
    places_.erase(found);
    const Quiet quiet(quiet_);
    if (place.child != nullptr) keepPlace(form, *place.child);
    place.content->binder().detach();
    if (place.child == nullptr) {
        window_->showStartPicture(nullptr);
        return;
    }
    place.child->onCloseBox = nullptr;
    place.child->hide();
    window_->area().removeSubWindow(place.child);
    // A handler of one of its widgets may be under way.
    place.child->deleteLater();
    window_->showArea(!window_->area().subWindowList().isEmpty());
}

void WindowShelf::activated(Form& form) {
    const auto found = places_.find(&form);
    if (found == places_.end() || found->second.child == nullptr) return;
    const Quiet quiet(quiet_);
    ChildFrame* frame = found->second.child;
    if (frame->isMinimized()) frame->showNormal();
    window_->area().setActiveSubWindow(frame);
}

void WindowShelf::userActivated(QMdiSubWindow* frame) {
    if (quiet_ > 0 || frame == nullptr) return;
    auto* child = dynamic_cast<ChildWindow*>(formOf(frame));
    if (child == nullptr || !main_->isOpen(child)) return;
    window_->guarded([&] { main_->activate(*child); });
}

Form* WindowShelf::formOf(const QMdiSubWindow* frame) const {
    for (const auto& [form, place] : places_)
        if (place.child == frame) return place.content->binder().form();
    return nullptr;
}

void WindowShelf::closeByBox(Form* form) {
    auto* child = dynamic_cast<ChildWindow*>(form);
    if (child == nullptr) return;
    endVisit();
    window_->guarded([&] { main_->close(*child); });
}

bool WindowShelf::isMain(const Form& form) const {
    return &form == static_cast<const Form*>(main_);
}

void WindowShelf::bringToFront(Form& form) {
    if (auto* frame = qobject_cast<QMdiSubWindow*>(frameOf(form)))
        window_->area().setActiveSubWindow(frame);
}

QAction* WindowShelf::command(const std::string& control) const {
    return window_->menu().action(control);
}

Shown WindowShelf::shownOfMain(const Control& control, Property property) const {
    return window_->menu().shown(control, property);
}

void WindowShelf::pressCloseBox(Form& form) {
    if (isMain(form)) {
        window_->close();
        return;
    }
    const auto found = places_.find(&form);
    if (found == places_.end()) return;
    if (found->second.child != nullptr)
        found->second.child->close();
    else if (found->second.dialog != nullptr)
        found->second.dialog->reject();
    else
        main_->hideSplash();
}

void WindowShelf::modalOpened(Form& form) {
    auto* dialog = new FormDialog(makeContent(form), window_->dialogParent());
    places_[&form].dialog = dialog;
    dialog->show();
}

void WindowShelf::modalClosed(Form& form) {
    const auto found = places_.find(&form);
    if (found == places_.end()) return;
    FormDialog* dialog = found->second.dialog;
    places_.erase(found);
    dialog->content().binder().detach();
    dialog->hide();
    dialog->deleteLater();
}

void WindowShelf::runModal(Form& form) {
    FormDialog dialog(makeContent(form), window_->dialogParent());
    places_[&form].dialog = &dialog;
    if (!form.modalEnded()) dialog.exec();
    places_.erase(&form);
    dialog.content().binder().detach();
}

FormWindow* WindowShelf::windowOf(const Form& form) const {
    const auto found = places_.find(&form);
    return found == places_.end() ? nullptr : found->second.content;
}

QWidget* WindowShelf::frameOf(const Form& form) const {
    if (isMain(form)) return window_;
    const auto found = places_.find(&form);
    if (found == places_.end()) return nullptr;
    const Place& place = found->second;
    if (place.child != nullptr) return place.child;
    if (place.dialog != nullptr) return place.dialog;
    return place.content;
}

/// A command of one window may save or change another.
void WindowShelf::refreshTitles() {
    for (const auto& [form, place] : places_)
        if (place.child != nullptr) refreshTitle(*form);
}

void WindowShelf::refreshTitle(const Form& form) {
    QWidget* frame = frameOf(form);
    if (frame == nullptr) return;
    const QString title = qt(form.caption()) + QStringLiteral("[*]");
    if (frame->windowTitle() != title) frame->setWindowTitle(title);
    // Told again, the frame would draw its title again.
    if (const bool modified = isModified(form); frame->isWindowModified() != modified)
        frame->setWindowModified(modified);
}

}  // namespace varnholt
