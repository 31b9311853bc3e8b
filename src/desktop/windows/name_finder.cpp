// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/name_finder.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

constexpr int usualWidth = 70 * gridStep, usualHeight = 52 * gridStep;

bool holdsWords(const NamedThing& thing, const QStringList& words) {
    const QString text = thing.name + u' ' + thing.place;
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

/// 0 for the best.
int rankOf(const NamedThing& thing, const QString& typed) {
    if (thing.name.startsWith(typed, Qt::CaseInsensitive)) return 0;
    return thing.name.contains(typed, Qt::CaseInsensitive) ? 1 : 2;
}

}  // namespace

std::vector<NamedThing> found(const std::vector<NamedThing>& things, const QString& typed) {
    const QString text = typed.simplified();
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    std::vector<NamedThing> suiting;
    for (const NamedThing& thing : things)
        if (holdsWords(thing, words)) suiting.push_back(thing);
    std::stable_sort(suiting.begin(), suiting.end(), [&](const auto& a, const auto& b) {
        return rankOf(a, text) < rankOf(b, text);
    });
    return suiting;
}

NameFinder::NameFinder(QWidget* parent, std::vector<NamedThing> things, NameFinderWords words)
    : QDialog(parent),
      things_(std::move(things)),
      words_(std::move(words)),
      typed_(new QLineEdit),
      list_(new QListWidget),
      nothing_(new QLabel(words_.nothing)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(words_.title);
    makeSearch(*typed_, words_.prompt, words_.empty);
    list_->setAccessibleName(words_.title);
    list_->setUniformItemSizes(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(typed_);
    layout->addWidget(list_, 1);
    layout->addWidget(nothing_);
    resize(usualWidth, usualHeight);
    typed_->installEventFilter(this);
    connect(typed_, &QLineEdit::textChanged, this, [this] { fill(); });
    connect(list_, &QListWidget::itemActivated, this, [this] { doMarked(); });
    connect(list_, &QListWidget::itemClicked, this, [this] { doMarked(); });
    fill();
}

QString NameFinder::wordOf(NamedThing::Kind kind) const {
    switch (kind) {
        case NamedThing::Kind::command:
            return words_.command;
        case NamedThing::Kind::field:
            return words_.field;
        case NamedThing::Kind::example:
            break;
    }
    return words_.example;
}

void NameFinder::addLine(const NamedThing& thing) {
    QString line = thing.name + QStringLiteral("   ") + wordOf(thing.kind);
    if (!thing.place.isEmpty()) line += QStringLiteral(", ") + thing.place;
    if (!thing.keys.isEmpty()) line += QStringLiteral("   ") + thing.keys;
    auto* item = new QListWidgetItem(line, list_);
    if (!thing.usable) item->setFlags(Qt::NoItemFlags);
}

void NameFinder::fill() {
    list_->clear();
    shown_ = found(things_, typed_->text());
    for (const NamedThing& thing : shown_) addLine(thing);
    const auto first = std::find_if(shown_.begin(), shown_.end(),
                                    [](const NamedThing& thing) { return thing.usable; });
    if (first != shown_.end()) list_->setCurrentRow(static_cast<int>(first - shown_.begin()));
    nothing_->setVisible(shown_.empty());
}

/// The dialog is gone before the command runs, which may open others or move the focus.
void NameFinder::doMarked() {
    const int row = list_->currentRow();
    if (row < 0 || !shown_[static_cast<std::size_t>(row)].usable) return;
    const std::function<void()> run = shown_[static_cast<std::size_t>(row)].run;
    QTimer::singleShot(0, parentWidget(), run);
    close();
}

/// The arrows go through the list while one types.
bool NameFinder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        doMarked();
        return true;
    }
    const bool moves = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
                       key == Qt::Key_PageDown;
    if (moves) QCoreApplication::sendEvent(list_, event);
    return moves;
}

}  // namespace varnholt
