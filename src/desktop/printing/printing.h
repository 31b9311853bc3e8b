// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include "desktop/paper/print_module.h"

namespace varnholt {

/// The module as the program loads it.
class Printing : public QObject, public PrintModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "varnholt.PrintModule/1")
    Q_INTERFACES(varnholt::PrintModule)

 public:
    bool hasPrinter() const override;
    void print(QWidget* parent, const PrintJob& job) override;
    bool setUp(QWidget* parent, QPageLayout& paper) override;
};

}  // namespace varnholt
