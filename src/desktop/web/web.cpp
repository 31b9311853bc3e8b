// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/web/web.h"

#include "desktop/web/web_pages.h"

namespace varnholt {

std::unique_ptr<PageEngine> Web::newEngine(PageEvents& events, const PagePlaces& places) {
    return std::make_unique<WebPages>(events, places);
}

}  // namespace varnholt
