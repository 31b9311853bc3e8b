// SPDX-License-Identifier: GPL-3.0-or-later
// The windows need an application and a screen; one of memory does for the clock.
#include <benchmark/benchmark.h>

#include <QApplication>

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // The screen of memory remarks on every size hint.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&count, arguments);
    const QApplication application(count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
