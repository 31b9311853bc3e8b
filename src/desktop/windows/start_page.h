// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <functional>
#include <string>
#include <vector>

#include "desktop/windows/named_things.h"

class QBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace varnholt {

class Varnmain;

/// The files that the start page offers.
struct StartFiles {
    std::function<std::vector<std::string>()> recent;
    std::function<std::vector<ExampleFile>()> examples;
    std::function<void(const std::string& path)> open;
    /// Opens a design that starts with the file's values and has no file of its own.
    std::function<void(const std::string& path)> openAsTemplate;
};

/// What the main window shows while no window is open: what to do first, one line a command; beside
/// it, or below in a narrow window, the files used last, templates and examples.
class StartPage : public QScrollArea {
 public:
    /// @param run runs a menu entry's command
    StartPage(const Varnmain& main, std::function<void(const std::string& entry)> run,
              StartFiles files);

    /// Puts the start picture above the lines; null takes it away. The picture is deleted later.
    void setPicture(QWidget* picture);

 private:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QWidget* line(const Varnmain& main, const std::string& entry, const char* icon, int hint);
    void addSection(int head, const std::vector<QWidget*>& buttons);
    QWidget* fileButton(QPushButton* button, const std::function<void()>& open);
    std::vector<QWidget*> recentButtons();
    void fillFiles();
    int columnsIn(int width) const;

    const Varnmain& main_;
    std::function<void(const std::string&)> run_;
    StartFiles files_;
    QBoxLayout* across_;
    QWidget* fileCard_;
    QVBoxLayout* fileLines_;
    QVBoxLayout* card_;
    QWidget* picture_ = nullptr;
    int columns_ = 0;
    int widestFile_ = 0;  ///< of the buttons, in pixels
};

}  // namespace varnholt
