// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include "desktop/reading/web_module.h"

namespace varnholt {

/// What the program finds when it loads the library for pages of the web.
class Web : public QObject, public WebModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "varnholt.WebModule/2")
    Q_INTERFACES(varnholt::WebModule)

 public:
    std::unique_ptr<PageEngine> newEngine(PageEvents& events, const PagePlaces& places) override;
};

}  // namespace varnholt
