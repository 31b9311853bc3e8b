// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include "desktop/reading/help_module.h"

namespace varnholt {

/// What the program finds when it loads the library of the help.
class Help : public QObject, public HelpModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "varnholt.HelpModule/1")
    Q_INTERFACES(varnholt::HelpModule)

 public:
    HelpWindow* newWindow(const HelpPlaces& places) override;
};

}  // namespace varnholt
