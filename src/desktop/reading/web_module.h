// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtPlugin>
#include <memory>

#include "tools/page_engine.h"

namespace varnholt {

/// The part of the program that shows pages of the web. It stands in a library of its own, in a
/// package of its own: the engine behind it is larger than all the rest.
class WebModule {
 public:
    virtual ~WebModule() = default;
    /// An engine that is a PageWidget too.
    virtual std::unique_ptr<PageEngine> newEngine(PageEvents& events, const PagePlaces& places) = 0;
};

/// The module that lies beside the program or in ../lib/varnholt/modules; null where it is missing.
/// It is loaded by the first call.
WebModule* findWebModule();

}  // namespace varnholt

Q_DECLARE_INTERFACE(varnholt::WebModule, "varnholt.WebModule/2")
