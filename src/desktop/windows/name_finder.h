// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QIcon>
#include <functional>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;

namespace varnholt {

/// Something that can be found by its name and then done.
struct NamedThing {
    enum class Kind { command, field, example };

    Kind kind;
    QString name;
    QString place;  ///< the menu, the window or the folder that it is in
    QString keys;   ///< its shortcut; empty for none
    bool usable = true;
    std::function<void()> run;
};

/// The things whose names or places hold every word that is typed, those first whose names begin
/// with it; among equals in their own order.
std::vector<NamedThing> found(const std::vector<NamedThing>& things, const QString& typed);

/// Words of the list.
struct NameFinderWords {
    QString title, prompt, empty, nothing;
    QString command, field, example;
};

/// A list of everything that has a name, narrowed by typing; Enter does the one that is marked.
class NameFinder : public QDialog {
 public:
    NameFinder(QWidget* parent, std::vector<NamedThing> things, NameFinderWords words);

    QLineEdit& typed() { return *typed_; }
    QListWidget& list() { return *list_; }

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void fill();
    void addLine(const NamedThing& thing);
    void doMarked();
    QString wordOf(NamedThing::Kind kind) const;

    std::vector<NamedThing> things_, shown_;
    NameFinderWords words_;
    QLineEdit* typed_;
    QListWidget* list_;
    QLabel* nothing_;
};

}  // namespace varnholt
