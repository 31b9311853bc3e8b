// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/land_lines.h"

#include <cmath>
#include <string>

#include "basis/number_text.h"
#include "forms/quantity.h"

namespace varnholt {
namespace {

constexpr std::size_t leastCorners = 3;

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

bool isEmptyLine(std::string_view line) { return line.find_first_not_of(" \t") == line.npos; }

std::optional<Point> pointOf(std::string_view line, UnitSystem units) {
    const std::size_t tab = line.find('\t');
    if (tab == line.npos) return std::nullopt;
    const auto x = readPlainNumber(line.substr(0, tab));
    const auto y = readPlainNumber(line.substr(tab + 1));
    if (!x || !y || !std::isfinite(*x) || !std::isfinite(*y)) return std::nullopt;
    return Point{quantities::length.stored(*x, units), quantities::length.stored(*y, units)};
}

}  // namespace

LandLines readLandLines(std::string_view text, UnitSystem units) {
    LandLines land;
    bool between = true;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::string_view line = takeLine(text);
        if (isEmptyLine(line)) {
            between = true;
            continue;
        }
        const std::optional<Point> point = pointOf(line, units);
        if (!point) return {{}, LandFault::noNumbers, number, 0};
        if (between) land.polygons.emplace_back();
        between = false;
        land.polygons.back().push_back(*point);
    }
    if (land.polygons.empty()) return {{}, LandFault::tooFewCorners, 0, 0};
    for (std::size_t i = 0; i < land.polygons.size(); ++i) {
        if (land.polygons[i].size() < leastCorners) return {{}, LandFault::tooFewCorners, 0, i};
        if (!isSimple(land.polygons[i])) return {{}, LandFault::sidesCross, 0, i};
    }
    return land;
}

std::string landLines(const std::vector<Point>& points, UnitSystem units) {
    std::string lines;
    for (const Point& point : points) {
        const auto shown = [units](double feet) {
            return formatNumber(quantities::length.shown(feet, units), "###0.00");
        };
        lines += shown(point.x) + '\t' + shown(point.y) + "\r\n";
    }
    return lines;
}

}  // namespace varnholt
