// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QWidget;

namespace varnholt {

/// Lays out a part of a view.
using PartMaker = std::function<QWidget*()>;

/// A control that holds parts of a view which are built when they come into sight for the first
/// time, since most of them are not looked at in most sessions.
class LateParts {
 public:
    virtual ~LateParts() = default;
    /// Builds the first part that is still missing. False when there is none.
    virtual bool buildNext() = 0;
};

}  // namespace varnholt
