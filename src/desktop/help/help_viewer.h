// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include "desktop/help/help_collection.h"
#include "desktop/reading/help_module.h"

class QAction;
class QHelpContentWidget;
class QHelpIndexWidget;
class QLineEdit;
class QListWidget;
class QLabel;
class QTabWidget;

namespace varnholt {

/// The window of the help: contents, index and search at the left, the page at the right, its
/// history in the tool bar.
class HelpViewer : public QMainWindow, public HelpWindow {
 public:
    explicit HelpViewer(HelpPlaces places);

    QWidget* window() override { return this; }
    bool display(const HelpRequest& request) override;
    void close() override { QMainWindow::close(); }
    std::string page() const override;

 private:
    QString text(int number) const;
    QAction* addTool(int caption, const char* icon, const QKeySequence& keys,
                     void (HelpViewer::*run)());
    bool openFile(const QString& file);
    void addPanes();
    void makeSearch(QLineEdit& line, const QString& prompt) const;
    QWidget* indexPane();
    QWidget* searchPane();
    /// Brings a pane to the front, where one begins at the widget.
    void choose(int pane, QWidget* first);
    void lookUp(const QString& keyword);
    void search();
    void showResults(const QString& words);
    /// Shows a topic, and makes it the end of the history.
    void visit(const QString& topic);
    bool showTopic(const QString& topic);
    void follow(const QUrl& link);
    void refreshTools();
    void showInContents();
    void back() { step(-1); }
    void forward() { step(1); }
    void home() { visit(QStringLiteral("index.html")); }
    void print();
    void step(int by);

    HelpPlaces places_;
    HelpCollection collection_;
    PageDisplay* display_;
    QTabWidget* panes_;
    QPointer<QHelpContentWidget> contents_;
    QLineEdit* lookFor_ = nullptr;
    QLineEdit* words_ = nullptr;
    QHelpIndexWidget* index_ = nullptr;
    QListWidget* results_ = nullptr;
    QLabel* told_ = nullptr;
    QAction* back_;
    QAction* forward_;
    QStringList history_;
    qsizetype place_ = -1;
    bool searchable_ = false;
};

}  // namespace varnholt
