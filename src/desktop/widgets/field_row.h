// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

class QWidget;

namespace varnholt {

/// One row of a grid: a caption at the left, fields or figures, their unit, and what goes along.
/// Any part may be missing.
struct FieldRow {
    QWidget* caption = nullptr;
    std::vector<QWidget*> fields;
    QWidget* unit = nullptr;
    std::vector<QWidget*> more;
    /// The one widget takes the row's whole width.
    bool wide = false;
};

}  // namespace varnholt
