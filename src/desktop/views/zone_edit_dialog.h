// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "loads/modLoads/zone_window.h"

class QCheckBox;
class QLineEdit;

namespace varnholt {

class Binder;

/// Asks what several zones are to have: hours, days, labels. What stays empty stays as it is.
class ZoneEditDialog : public QDialog {
 public:
    ZoneEditDialog(const ZoneWindow& window, QWidget* parent);

    ZoneWindow::ZoneEdits edits() const;

 private:
    QLineEdit* hours_[2];
    QLineEdit* days_;
    QLineEdit* label_;
    QCheckBox* numbered_;
};

/// Asks, and edits the zones that are selected in the binder's loads window.
void editSelectedZones(Binder& bind);

}  // namespace varnholt
