// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <string>

class QVBoxLayout;

namespace varnholt {

class Varnmain;

/// What the main window shows while no window is open: what to do first, one line a command.
class StartPage : public QWidget {
 public:
    /// @param run runs a menu entry's command
    StartPage(const Varnmain& main, std::function<void(const std::string& entry)> run);

    /// Puts the start picture above the lines; null takes it away. The picture is deleted later.
    void setPicture(QWidget* picture);

 private:
    QWidget* line(const Varnmain& main, const std::string& entry, const char* icon, int hint);

    std::function<void(const std::string&)> run_;
    QVBoxLayout* card_;
    QWidget* picture_ = nullptr;
};

}  // namespace varnholt
