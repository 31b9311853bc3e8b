// SPDX-License-Identifier: GPL-3.0-or-later
// The land of the layout page: a rectangle, or an outline by its corners, and areas without bores.
#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "design/land_lines.h"
#include "design/shared_texts.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

constexpr const char* landFrame = "WLLandFrame";
constexpr const char* landHelp = "land";
constexpr double farthest = 1e6;  // ft, of a corner from the origin

}  // namespace

void frmWhatIf::addLand() {
    add(landFrame, ControlKind::frame, Text::whatIfLand);
    const auto length = [this](const char* control, const char* stored, int caption) {
        addNumber({control,
                   stored,
                   landFrame,
                   {caption, caption},
                   "###0.0",
                   &quantities::length,
                   lengthUnit},
                  landHelp);
    };
    length("WLAcrossText", "landAcross", Text::whatIfAcross);
    length("WLDownText", "landDown", Text::whatIfDown);
    length("WLBoundaryText", "boundaryClearance", Text::whatIfBoundary);
    length("WLClearText", "noGoClearance", Text::whatIfClear);
    add("WLPasteCommand", ControlKind::button, Text::whatIfPasteLand)
        .in(landFrame)
        .helpedBy("what_if#land");
    add("WLRectangleCommand", ControlKind::button, Text::whatIfRectangle)
        .in(landFrame)
        .helpedBy("what_if#land");
    onClick("WLPasteCommand", [this] { WLPasteCommand_Click(); });
    onClick("WLRectangleCommand", [this] { WLRectangleCommand_Click(); });
    add("WLCornerLabel", ControlKind::label, Text::whatIfCorners).in(landFrame);
    add("WLCornerList", ControlKind::list)
        .in(landFrame)
        .captionedBy("WLCornerLabel")
        .helpedBy("what_if#land");
    onClick("WLCornerList", [this] { showCornerFields(); });
    addCornerField("WLCornerXText", Text::whatIfCornerX, &Point::x);
    addCornerField("WLCornerYText", Text::whatIfCornerY, &Point::y);
}

void frmWhatIf::addCornerField(const char* control, int caption, double Point::*part) {
    const std::string name = control;
    const std::string stem = name.substr(0, name.size() - 4);
    addField({.control = name,
              .stored = StoredNumber([this, part] { return cornerPart(part); },
                                     [this, part](double value) { typeCorner(part, value); }),
              .quantity = &quantities::length,
              .lowest = -farthest,
              .highest = farthest,
              .beside = {.frame = landFrame,
                         .label = stem + "Label",
                         .caption = {caption, caption},
                         .unitLabel = stem + "UnitsLabel",
                         .unit = lengthUnit,
                         .help = "what_if#land"},
              .left = [this] { showCorners(); }});
}

/// Corners of the outline, then those of the no-go areas.
std::size_t frmWhatIf::cornerCount() const {
    const LandValues& land = inputs().land;
    std::size_t count = landOf(land).outline.size();
    for (const Polygon& area : land.noGo) count += area.size();
    return count;
}

/// Null where the land is the rectangle of its fields, whose corners are nobody's own.
Point* frmWhatIf::corner(std::size_t index) const {
    LandValues& land = inputs().land;
    const std::size_t outline = landOf(land).outline.size();
    if (index < outline) return land.corner.empty() ? nullptr : &land.corner[index];
    index -= outline;
    for (Polygon& area : land.noGo) {
        if (index < area.size()) return &area[index];
        index -= area.size();
    }
    return nullptr;
}

double frmWhatIf::cornerPart(double Point::*part) const {
    const int chosen = control("WLCornerList").index();
    if (chosen < 0) return 0;
    const auto index = static_cast<std::size_t>(chosen);
    if (const Point* own = corner(index)) return own->*part;
    const Polygon rectangle = landOf(inputs().land).outline;
    return index < rectangle.size() ? rectangle[index].*part : 0;
}

/// A rectangle whose corner is moved is an outline of its own from then on.
void frmWhatIf::typeCorner(double Point::*part, double value) {
    const int chosen = control("WLCornerList").index();
    if (chosen < 0 || static_cast<std::size_t>(chosen) >= cornerCount()) return;
    LandValues& land = inputs().land;
    if (land.corner.empty()) land.corner = landOf(land).outline;
    corner(static_cast<std::size_t>(chosen))->*part = value;
}

void frmWhatIf::showCorners() {
    const LandValues& land = inputs().land;
    std::vector<std::string> lines;
    const auto add = [&](const std::string& name, const Polygon& polygon) {
        for (std::size_t i = 0; i < polygon.size(); ++i)
            lines.push_back(filledIn(
                text(Text::whatIfCornerLine),
                {name, std::to_string(i + 1),
                 formatNumber(quantities::length.shown(polygon[i].x, units()), "###0.0"),
                 formatNumber(quantities::length.shown(polygon[i].y, units()), "###0.0")}));
    };
    add(text(Text::whatIfOutline), landOf(land).outline);
    for (std::size_t n = 0; n < land.noGo.size(); ++n)
        add(filledIn(text(Text::whatIfNoGoArea), {std::to_string(n + 1)}), land.noGo[n]);
    showLines("WLCornerList", std::move(lines));
    control("WLRectangleCommand").setEnabled(!land.corner.empty() || !land.noGo.empty());
    showCornerFields();
}

void frmWhatIf::showCornerFields() {
    const bool chosen = control("WLCornerList").index() >= 0;
    for (const char* field : {"WLCornerXText", "WLCornerYText"}) {
        control(field).setEnabled(chosen);
        if (visitedField() != field) fields().show(field);
    }
}

void frmWhatIf::WLPasteCommand_Click() {
    const LandLines lines = readLandLines(platform().clipboard(), units());
    const std::string name =
        lines.polygon == 0 ? text(Text::whatIfOutline)
                           : filledIn(text(Text::whatIfNoGoArea), {std::to_string(lines.polygon)});
    switch (lines.fault) {
        case LandFault::noNumbers:
            pasteFault_ = filledIn(text(Text::whatIfPasteNumbers), {std::to_string(lines.line)});
            break;
        case LandFault::tooFewCorners:
            pasteFault_ = filledIn(text(Text::whatIfPasteCorners), {name});
            break;
        case LandFault::sidesCross:
            pasteFault_ = filledIn(text(Text::whatIfPasteCrosses), {name});
            break;
        case LandFault::none:
            inputs().land.corner = lines.polygons.front();
            inputs().land.noGo.assign(lines.polygons.begin() + 1, lines.polygons.end());
            fields().forgetRefused();
            control("WLCornerList").setIndex(-1);
            showCorners();
    }
    write("WLMessageLabel", layoutMessageNow());
}

void frmWhatIf::WLRectangleCommand_Click() {
    inputs().land.corner.clear();
    inputs().land.noGo.clear();
    control("WLCornerList").setIndex(-1);
    showCorners();
}

}  // namespace varnholt
