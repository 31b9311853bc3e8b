// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include "basis/system/end_signals.h"

class QApplication;

namespace varnholt {

class Recovery;

/// Keeps unsaved work of a person's windows: by the clock, when a signal asks the program to end,
/// and when the desktop's session ends.
class WorkKeeper : public QObject {
 public:
    WorkKeeper(QApplication& application, Recovery& recovery);

 private:
    EndSignals signals_;
};

}  // namespace varnholt
