// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace varnholt {

/// What an engine for pages is besides, when it shows them in a widget. Whoever lays the widget out
/// owns it from then on; the engine may end before it or after it.
class PageWidget {
 public:
    virtual ~PageWidget() = default;
    virtual QWidget* widget() = 0;
};

}  // namespace varnholt
