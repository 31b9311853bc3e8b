// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/printing/printing.h"

#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

namespace varnholt {
namespace {

/// Units of the layout, tenths of a point, for an inch.
constexpr double unitsPerInch = 720;

/// The pages that the user has asked for, from 0.
std::pair<int, int> rangeOf(const QPrinter& printer, int pages) {
    if (printer.printRange() != QPrinter::PageRange) return {0, pages};
    const int from = std::clamp(printer.fromPage(), 1, pages);
    return {from - 1, std::clamp(printer.toPage(), from, pages)};
}

void printPages(QPrinter& printer, const PrintJob& job) {
    QPageLayout paper = printer.pageLayout();
    paper.setMode(QPageLayout::StandardMode);
    const int pages = job.layOut(paper);
    if (pages == 0) return;
    const auto [from, to] = rangeOf(printer, pages);
    printer.setFullPage(true);
    QPainter painter(&printer);
    const double scale = printer.resolution() / unitsPerInch;
    for (int copy = 0; copy < (printer.supportsMultipleCopies() ? 1 : printer.copyCount()); ++copy)
        for (int page = from; page < to; ++page) {
            if (copy > 0 || page > from) printer.newPage();
            painter.save();
            painter.scale(scale, scale);
            job.paint(painter, page);
            painter.restore();
        }
}

}  // namespace

bool Printing::hasPrinter() const { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

void Printing::print(QWidget* parent, const PrintJob& job) {
    const int pages = job.layOut(job.paper);
    if (pages == 0) return;
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(job.title);
    printer.setPageLayout(job.paper);
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, pages);
    if (dialog.exec() == QDialog::Accepted) printPages(printer, job);
}

bool Printing::setUp(QWidget* parent, QPageLayout& paper) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(paper);
    QPageSetupDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) return false;
    paper = printer.pageLayout();
    return true;
}

}  // namespace varnholt
