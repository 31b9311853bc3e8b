// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QLineEdit>
#include <QTest>
#include <QWindow>
#include <functional>
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

/// Measures keys: a figure typed over the text of a field, to the painted pixel.
///
/// @param window   that the keys are given to
/// @param field    has the focus, its text selected
/// @param painted  waits for what a person watches
/// @param between  what follows each key unmeasured, once the text is selected again
inline void typeToPainted(benchmark::State& state, QWindow* window, QLineEdit& field,
                          Painted& painted, const std::function<void()>& between) {
    int digit = 0;
    for (auto _ : state) {
        QTest::keyClick(window, static_cast<char>('8' + digit));
        painted.wait();
        state.PauseTiming();
        digit = 1 - digit;
        field.selectAll();
        between();
        state.ResumeTiming();
    }
}

}  // namespace varnholt
