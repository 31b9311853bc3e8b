// SPDX-License-Identifier: GPL-3.0-or-later
// Reports on paper. Budgets for the long form of 1,000 zones: from the filled report to the first
// page on the screen in 300 ms, to a PDF in 3 s.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "desktop/desk.h"
#include "desktop/paper/page_painter.h"
#include "desktop/paper/page_setup.h"
#include "desktop/paper/pdf_file.h"
#include "desktop/report_samples.h"

namespace varnholt {
namespace {

void FirstPage(benchmark::State& state) {
    Desk desk;
    const auto report = ReportSamples(desk).zones(static_cast<std::size_t>(state.range(0)), 2);
    QImage image(1000, 1300, QImage::Format_RGB32);
    for (auto _ : state) {
        const PageLayout pages(report, PageSetup().layoutFor(*report));
        QPainter painter(&image);
        painter.scale(0.16, 0.16);
        PagePainter(pages, desk.program.texts()).paint(painter, 0);
    }
}
BENCHMARK(FirstPage)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

void WholePdf(benchmark::State& state) {
    Desk desk;
    const auto report = ReportSamples(desk).zones(static_cast<std::size_t>(state.range(0)), 2);
    const QPageLayout paper = PageSetup().layoutFor(*report);
    for (auto _ : state) {
        const PageLayout pages(report, paper);
        benchmark::DoNotOptimize(pdfOf(pages, paper, desk.program.texts()));
    }
}
BENCHMARK(WholePdf)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
