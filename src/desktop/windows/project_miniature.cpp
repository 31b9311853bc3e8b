// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/project_miniature.h"

#include <QPainter>
#include <QWidget>
#include <type_traits>

#include "basis/file_system.h"
#include "basis/line_file.h"
#include "basis/run_time_error.h"
#include "desktop/drawings/miniatures.h"
#include "persistence/design_files.h"

namespace varnholt {
namespace {

template <class Project>
Project projectIn(const std::string& bytes) {
    Project project;
    readProjectText(bytes, project);
    return project;
}

DesignKind designKindIn(const std::string& bytes) {
    LineFileReader file(bytes);
    file.line();
    return fileKindOfTitle(file.line()).kind;
}

}  // namespace

ProjectMiniature::Plan ProjectMiniature::planOf(const std::string& path) {
    try {
        const std::string bytes = readWholeFile(path);
        switch (designKindIn(bytes)) {
            case DesignKind::borehole:
                return drawField(projectIn<BoreholeProject>(bytes).arrangement);
            case DesignKind::horizontal: {
                const auto project = projectIn<HorizontalProject>(bytes);
                return drawTrenches(project.trench, project.arrangement);
            }
            case DesignKind::surfaceWater: {
                const auto project = projectIn<SurfaceWaterProject>(bytes);
                return drawCircuit(project.loop, project.header);
            }
        }
    } catch (const RunTimeError&) {
        // Its window will tell, should the file be opened.
    }
    return {};
}

bool ProjectMiniature::paint(QPainter& painter, const QRectF& area, const QWidget& widget) {
    if (plan_ == nullptr) plan_ = std::make_unique<const Plan>(planOf(path_));
    return std::visit(
        [&](const auto& plan) {
            if constexpr (std::is_same_v<std::decay_t<decltype(plan)>, std::monostate>) {
                return false;
            } else {
                painter.save();
                paintMiniature(canvasFor(painter, area, widget.palette(), widget.font()), plan);
                painter.restore();
                return true;
            }
        },
        *plan_);
}

}  // namespace varnholt
