// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/work_keeper.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>

#include "persistence/recovery/recovery.h"

namespace varnholt {

WorkKeeper::WorkKeeper(QApplication& application, Recovery& recovery) {
    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this,
            [&recovery] { recovery.tick(std::chrono::steady_clock::now()); });
    clock->start(Recovery::step);
    connect(&application, &QGuiApplication::commitDataRequest, this,
            [&recovery] { recovery.keepNow(); });
    if (signals_.wakeDescriptor() < 0) return;
    auto* asked = new QSocketNotifier(signals_.wakeDescriptor(), QSocketNotifier::Read, this);
    connect(asked, &QSocketNotifier::activated, this, [this, &recovery] {
        recovery.keepNow();
        EndSignals::endBy(signals_.pending());
    });
}

}  // namespace varnholt
