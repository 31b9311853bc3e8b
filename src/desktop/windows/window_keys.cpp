// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/window_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <vector>

#include "desktop/binding/form_window.h"
#include "desktop/windows/main_window.h"

namespace varnholt {
namespace {

QAbstractButton* buttonOf(FormWindow& content, const std::string& name) {
    if (!content.binder().has(name)) return nullptr;
    const BoundControl* bound = content.binder().require(name);
    return bound == nullptr ? nullptr : qobject_cast<QAbstractButton*>(bound->widget());
}

void calculate(MainWindow& window) {
    FormWindow* content = window.activeContent();
    QAbstractButton* button =
        content == nullptr ? nullptr : buttonOf(*content, "CACalculateCommand");
    if (button != nullptr) button->click();
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

/// The toolbar, what stands above the pages, the tabs, the page in front.
std::vector<Pane> panesOf(MainWindow& window) {
    std::vector<QWidget*> wholes;
    if (FormWindow* content = window.activeContent()) {
        auto* tabs = content->findChild<QTabWidget*>();
        if (tabs != nullptr) {
            wholes = {tabs->currentWidget(), tabs->tabBar()};
            wholes.push_back(content->view()->layout() == nullptr
                                 ? nullptr
                                 : content->view()->layout()->itemAt(0)->widget());
        } else {
            wholes = {content};
        }
    }
    wholes.push_back(window.findChild<QToolBar*>());
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

/// The buttons that lead out of panels, each with the frame of its panel.
void leavePanel(MainWindow& window) {
    FormWindow* content = window.activeContent();
    const Form* form = content == nullptr ? nullptr : content->binder().form();
    if (form == nullptr) return;
    for (const char* name : {"LOCancelCommand", "LOReturnCommand", "LOReturnFromSummaryCommand"}) {
        if (!form->has(name) || !form->isShown(form->control(name))) continue;
        if (QAbstractButton* button = buttonOf(*content, name)) return button->click();
    }
}

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
}

}  // namespace varnholt
