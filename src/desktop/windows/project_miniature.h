// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <memory>
#include <string>
#include <variant>

#include "design/circuit_plan.h"
#include "design/field_plan.h"
#include "design/trench_plan.h"

class QPainter;
class QWidget;

namespace varnholt {

/// What a project file holds, at a glance: its field of bores, its trenches or its loops in the
/// water. The file is read when the picture is painted for the first time.
class ProjectMiniature {
 public:
    explicit ProjectMiniature(std::string path) : path_(std::move(path)) {}

    /// @return  whether there is anything to paint; a file that cannot be read shows nothing
    bool paint(QPainter& painter, const QRectF& area, const QWidget& widget);

 private:
    using Plan = std::variant<std::monostate, FieldPlan, TrenchPlan, CircuitPlan>;
    static Plan planOf(const std::string& path);

    std::string path_;
    std::unique_ptr<const Plan> plan_;
};

}  // namespace varnholt
