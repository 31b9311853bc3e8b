// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageLayout>
#include <QPainter>
#include <QString>
#include <QtPlugin>
#include <functional>

class QWidget;

namespace varnholt {

/// A report on its way to a printer.
struct PrintJob {
    QString title;
    QPageLayout paper;
    /// Lays the report out for the printer's paper; the number of its pages, 0 where the user has
    /// broken it off.
    std::function<int(const QPageLayout& paper)> layOut;
    /// Paints a page, from 0; the painter measures in tenths of a point from the sheet's corner.
    std::function<void(QPainter& painter, int page)> paint;
};

/// The part of the program that speaks to printers. It stands in a library of its own, which is
/// loaded with the first print or set-up.
class PrintModule {
 public:
    virtual ~PrintModule() = default;
    virtual bool hasPrinter() const = 0;
    /// Asks which printer and which pages, and prints.
    virtual void print(QWidget* parent, const PrintJob& job) = 0;
    /// Asks for paper and orientation. False when the user cancels.
    virtual bool setUp(QWidget* parent, QPageLayout& paper) = 0;
};

/// The module that lies beside the program or in ../lib/varnholt/modules; null where it is missing.
PrintModule* findPrintModule();

}  // namespace varnholt

Q_DECLARE_INTERFACE(varnholt::PrintModule, "varnholt.PrintModule/1")
