// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <stdexcept>

namespace varnholt {

/// Waits until a widget has been painted, so that a clock counts to the pixel and not to the call.
class Painted : public QObject {
 public:
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints_;
        return false;
    }

    /// Lets events be handled until the widget has been painted since the last call, and until
    /// nothing more is due.
    void wait() {
        QElapsedTimer clock;
        clock.start();
        while (paints_ == 0) {
            QCoreApplication::processEvents();
            if (clock.elapsed() > 5000) throw std::runtime_error("the widget is never painted");
        }
        QCoreApplication::processEvents();
        paints_ = 0;
    }

 private:
    int paints_ = 0;
};

}  // namespace varnholt
