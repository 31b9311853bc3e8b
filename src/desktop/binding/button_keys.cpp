// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/button_keys.h"

#include <QAction>
#include <QHash>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>
#include <limits>
#include <vector>

#include "desktop/binding/mnemonics.h"
#include "desktop/widgets/notice_bar.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr const char* givenKey = "givenKey";
/// Of a letter that opens a menu: no button takes it.
constexpr int keyOfAMenu = std::numeric_limits<int>::max();

using KeyUses = QHash<QChar, int>;

/// The letter that the text marks as its key; null for none.
QChar markedLetter(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&') continue;
        if (text[i + 1] != u'&') return text[i + 1].toLower();
        ++i;
    }
    return {};
}

KeyUses keysOfMenus(const QWidget& window) {
    KeyUses uses;
    const auto* bar = window.window()->findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
    if (bar == nullptr) return uses;
    for (const QAction* menu : bar->actions()) uses.insert(markedLetter(menu->text()), keyOfAMenu);
    return uses;
}

/// Where the letter stands that is a key least often; of several the first at the start of a word.
qsizetype placeOfKey(const QString& words, const KeyUses& uses) {
    qsizetype place = -1;
    int least = keyOfAMenu;
    for (const bool startsOnly : {true, false})
        for (qsizetype i = 0; i < words.size(); ++i) {
            const bool starts = i == 0 || !words[i - 1].isLetterOrNumber();
            if (!words[i].isLetterOrNumber() || (startsOnly && !starts)) continue;
            const int used = uses.value(words[i].toLower());
            if (used >= least) continue;
            place = i;
            least = used;
        }
    return place;
}

bool hasWords(const QAbstractButton& button) {
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    const bool shows = tool == nullptr ? qobject_cast<const QPushButton*>(&button) != nullptr
                                       : tool->toolButtonStyle() == Qt::ToolButtonTextOnly;
    return shows && !button.text().isEmpty();
}

/// True when the button has a key of its own, which is not to be given another.
bool keepsItsKey(const QAbstractButton& button) {
    return !button.property(givenKey).toBool() && !markedLetter(button.text()).isNull();
}

/// The buttons on show that say in words what they do: the one that the window is about, whose key
/// is the same on every page, then the others in reading order.
std::vector<QAbstractButton*> buttonsWithWords(QWidget& window) {
    std::vector<QAbstractButton*> buttons;
    for (QWidget* widget = window.nextInFocusChain(); widget != &window && widget != nullptr;
         widget = widget->nextInFocusChain()) {
        auto* button = qobject_cast<QAbstractButton*>(widget);
        if (button != nullptr && window.isAncestorOf(button) && hasWords(*button) &&
            button->isVisibleTo(&window))
            buttons.push_back(button);
    }
    std::stable_partition(buttons.begin(), buttons.end(), [](const QAbstractButton* button) {
        return button->property(mainButtonProperty).toBool();
    });
    return buttons;
}

/// True for a button that only stands in for another one: a view's own for beginners, and the one
/// of a notice, which comes and goes.
bool standsIn(const QAbstractButton& button) {
    return button.objectName().isEmpty() ||
           dynamic_cast<const NoticeBar*>(button.parentWidget()) != nullptr;
}

/// True for a button that does what the form's own one does, by that one's key: if both had it, it
/// would only take the focus from one to the other.
bool repeats(const QAbstractButton& button, const std::vector<QAbstractButton*>& buttons) {
    return standsIn(button) &&
           std::any_of(buttons.begin(), buttons.end(), [&button](const QAbstractButton* other) {
               return !standsIn(*other) && other->isEnabled() &&
                      wordsOfButton(*other) == wordsOfButton(button);
           });
}

void giveKey(QAbstractButton& button, qsizetype place) {
    const QString marked = withMark(wordsOfButton(button), place);
    button.setProperty(givenKey, true);
    if (button.text() != marked) button.setText(marked);
}

}  // namespace

void giveKeys(QWidget& window) {
    KeyUses uses = keysOfMenus(window);
    const std::vector<QAbstractButton*> buttons = buttonsWithWords(window);
    for (QAbstractButton* button : buttons) {
        if (keepsItsKey(*button)) {
            ++uses[markedLetter(button->text())];
            continue;
        }
        const QString words = wordsOfButton(*button);
        const qsizetype place = repeats(*button, buttons) ? -1 : placeOfKey(words, uses);
        if (place >= 0) ++uses[words[place].toLower()];
        giveKey(*button, place);
    }
}

QString wordsOfButton(const QAbstractButton& button) {
    if (!button.property(givenKey).toBool()) {
        QString words = button.text();
        return words.replace(QLatin1String("&&"), QLatin1String("&"));
    }
    return qt(withoutMnemonic(button.text()));
}

}  // namespace varnholt
