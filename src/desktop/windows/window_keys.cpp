// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/window_keys.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "desktop/binding/form_window.h"
#include "desktop/windows/child_frame.h"
#include "desktop/windows/main_window.h"
#include "forms/text_numbers/feedback.h"
#include "loads/linked_design.h"
#include "loads/loads_window.h"

namespace varnholt {
namespace {

QAbstractButton* buttonOf(FormWindow& content, const std::string& name) {
    if (!content.binder().has(name)) return nullptr;
    const BoundControl* bound = content.binder().require(name);
    return bound == nullptr ? nullptr : qobject_cast<QAbstractButton*>(bound->widget());
}

FormWindow* contentOf(QMdiSubWindow* frame) {
    auto* child = dynamic_cast<ChildFrame*>(frame);
    return child == nullptr || child->content().binder().form() == nullptr ? nullptr
                                                                           : &child->content();
}

/// The window to calculate from another one: a design itself, or the only one that is linked with
/// the loads in front.
FormWindow* windowToCalculate(MainWindow& window) {
    FormWindow* front = window.activeContent();
    if (front == nullptr) return nullptr;
    const auto* loads = dynamic_cast<const LoadsWindow*>(front->binder().form());
    if (loads == nullptr) return front;
    std::vector<FormWindow*> linked;
    for (QMdiSubWindow* frame : window.area().subWindowList()) {
        FormWindow* content = contentOf(frame);
        const auto* design = content == nullptr
                                 ? nullptr
                                 : dynamic_cast<const LinkedDesign*>(content->binder().form());
        if (design != nullptr && design->LoadsHome() == loads) linked.push_back(content);
    }
    return linked.size() == 1 ? linked.front() : front;
}

void calculate(MainWindow& window) {
    FormWindow* content = windowToCalculate(window);
    if (content == nullptr) return;
    const Form& form = *content->binder().form();
    QAbstractButton* button = buttonOf(*content, "CACalculateCommand");
    if (button != nullptr)
        button->click();
    else
        window.tell(form.text(Text::noDesignToCalculate));
}

void turnPage(MainWindow& window, int pages) {
    FormWindow* content = window.activeContent();
    auto* tabs = content == nullptr ? nullptr : content->findChild<QTabWidget*>();
    if (tabs == nullptr || tabs->count() == 0) return;
    for (int next = tabs->currentIndex() + pages; next != tabs->currentIndex(); next += pages) {
        next = (next + tabs->count()) % tabs->count();
        if (next == tabs->currentIndex()) return;
        if (tabs->isTabVisible(next) && tabs->isTabEnabled(next))
            return tabs->setCurrentIndex(next);
    }
}

/// The first widget within the pane that takes the keyboard; null for none.
QWidget* firstOf(QWidget* pane) {
    if (pane == nullptr || !pane->isVisible()) return nullptr;
    const auto takes = [](const QWidget* widget) {
        return (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() &&
               widget->isEnabled();
    };
    if (takes(pane)) return pane;
    for (QWidget* widget = pane->nextInFocusChain(); widget != pane && widget != nullptr;
         widget = widget->nextInFocusChain())
        if (pane->isAncestorOf(widget) && takes(widget)) return widget;
    return nullptr;
}

struct Pane {
    QWidget* whole;
    QWidget* first;
};

/// What stands around the pages at any depth, from top to bottom.
void addAround(const QWidget& pages, QWidget* around, std::vector<QWidget*>& wholes) {
    std::vector<QWidget*> parts;
    for (QObject* child : around->children()) {
        auto* part = qobject_cast<QWidget*>(child);
        if (part != nullptr && part != &pages && part->isVisible()) parts.push_back(part);
    }
    std::sort(parts.begin(), parts.end(),
              [](const QWidget* a, const QWidget* b) { return a->y() < b->y(); });
    for (QWidget* part : parts)
        if (part->isAncestorOf(&pages))
            addAround(pages, part, wholes);
        else
            wholes.push_back(part);
}

/// The page in front, the tabs, what stands above and below the pages.
std::vector<QWidget*> panesOfForm(const FormWindow& content) {
    auto* tabs = content.findChild<QTabWidget*>();
    if (tabs == nullptr) return {content.view()};
    std::vector<QWidget*> wholes{tabs->currentWidget(), tabs->tabBar()};
    addAround(*tabs, content.view(), wholes);
    return wholes;
}

/// The parts of a window that shows no form, such as a report's, the last one first: that is what
/// it is about.
std::vector<QWidget*> panesOfOther(const QWidget& content) {
    std::vector<QWidget*> wholes;
    for (QObject* part : content.children())
        if (auto* widget = qobject_cast<QWidget*>(part)) wholes.insert(wholes.begin(), widget);
    std::reverse(wholes.begin() + (wholes.empty() ? 0 : 1), wholes.end());
    return wholes;
}

/// The panes of the window in front, and the toolbar.
std::vector<Pane> panesOf(MainWindow& window) {
    std::vector<QWidget*> wholes;
    const QMdiSubWindow* front = window.area().activeSubWindow();
    if (const FormWindow* content = window.activeContent())
        wholes = panesOfForm(*content);
    else if (front != nullptr && front->widget() != nullptr)
        wholes = panesOfOther(*front->widget());
    wholes.push_back(window.findChild<QToolBar*>(QString(), Qt::FindDirectChildrenOnly));
    std::vector<Pane> panes;
    for (QWidget* whole : wholes)
        if (QWidget* first = firstOf(whole)) panes.push_back({whole, first});
    return panes;
}

void nextPane(MainWindow& window, bool back) {
    const std::vector<Pane> panes = panesOf(window);
    if (panes.empty()) return;
    QWidget* focused = QApplication::focusWidget();
    std::size_t at = back ? 0 : panes.size() - 1;
    for (std::size_t i = panes.size(); focused != nullptr && i-- > 0;)
        if (panes[i].whole == focused || panes[i].whole->isAncestorOf(focused)) at = i;
    const std::size_t step = back ? panes.size() - 1 : 1;
    panes[(at + step) % panes.size()].first->setFocus(back ? Qt::BacktabFocusReason
                                                           : Qt::TabFocusReason);
}

/// Whether the window holds nothing of its own: closed, it can be opened again as it was.
bool standsBesideAnother(const Form& form) {
    static const std::set<std::string> beside{"frmSecondOpinion", "frmWhatIf", "frmDiffusivityCalc",
                                              "frmEqvHoursCalc", "frmPumpPowerCalc"};
    return beside.count(form.formName()) > 0;
}

/// From the tools of a report to its pages, and from there out of it.
void leaveReport(QMdiSubWindow& frame) {
    QWidget* pages = frame.widget() == nullptr ? nullptr : frame.widget()->focusProxy();
    if (pages == nullptr || pages->hasFocus())
        frame.close();
    else
        pages->setFocus(Qt::OtherFocusReason);
}

/// Presses the button that leads out of the panel that is open, if one is; a window that stands
/// beside another one is left itself.
void leavePanel(MainWindow& window) {
    FormWindow* content = window.activeContent();
    QMdiSubWindow* frame = window.area().activeSubWindow();
    if (frame == nullptr) return;
    if (content == nullptr) return leaveReport(*frame);
    const Form& form = *content->binder().form();
    for (const char* name : {"LOCancelCommand", "LOReturnCommand", "LOReturnFromSummaryCommand"}) {
        if (!form.has(name) || !form.isShown(form.control(name))) continue;
        if (QAbstractButton* button = buttonOf(*content, name)) return button->click();
    }
    if (standsBesideAnother(form)) frame->close();
}

/// An open list takes Escape for itself: else the key would leave the panel around it as well.
class ListsKeepEscape : public QObject {
 public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
            QApplication::activePopupWidget() != nullptr)
            event->accept();
        return false;
    }
};

template <class Run>
void addKey(MainWindow& window, const QKeySequence& keys, Run run) {
    auto* shortcut = new QShortcut(keys, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, run);
}

}  // namespace

void addWindowKeys(MainWindow& window) {
    addKey(window, Qt::Key_F9, [&window] { calculate(window); });
    addKey(window, Qt::CTRL | Qt::Key_PageDown, [&window] { turnPage(window, 1); });
    addKey(window, Qt::CTRL | Qt::Key_PageUp, [&window] { turnPage(window, -1); });
    addKey(window, Qt::Key_F6, [&window] { nextPane(window, false); });
    addKey(window, Qt::SHIFT | Qt::Key_F6, [&window] { nextPane(window, true); });
    addKey(window, Qt::Key_Escape, [&window] { leavePanel(window); });
    qApp->installEventFilter(new ListsKeepEscape(&window));
}

void leaveKeysToTheMenu(const QMdiSubWindow& frame) {
    if (frame.systemMenu() == nullptr) return;
    for (QAction* action : frame.systemMenu()->actions()) action->setShortcuts({});
}

}  // namespace varnholt
