// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/look.h"

#include <algorithm>
#include <cmath>

#include "desktop/widgets/tabular_faces.h"
#include "forms/control.h"

namespace varnholt {
namespace {

QColor ofNumber(int blueGreenRed) {
    return {blueGreenRed & 0xFF, (blueGreenRed >> 8) & 0xFF, (blueGreenRed >> 16) & 0xFF};
}

double luminance(const QColor& colour) {
    const auto channel = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) +
           0.0722 * channel(colour.blueF());
}

/// The same hue, as light as it must be to stand out from a dark surface.
QColor lightened(QColor colour, const QColor& surface) {
    while (contrast(colour, surface) < 4.5 && colour.lightness() < 250)
        colour.setHsl(colour.hslHue(), colour.hslSaturation(),
                      std::min(255, colour.lightness() + 8));
    return colour;
}

QStringList familiesOf(std::initializer_list<const char*> families) {
    QStringList names;
    for (const char* family : families) names << QString::fromLatin1(family);
    return names;
}

}  // namespace

const Look& lightLook() {
    // clang-format off
    static const Look look{
        .dark = false,
        .window = "#EEF0F3", .surface = "#FBFCFD", .field = "#FFFFFF",
        .line = "#B9C1CB", .hairline = "#DCE1E7",
        .ink = "#1B2026", .muted = "#5A6572", .disabled = "#7A838E",
        .accent = "#0F6E66", .onAccent = "#FFFFFF",
        .cooling = "#2463B0", .coolingWash = "#DCE8F7",
        .heating = "#B83A34", .heatingWash = "#FBE3E1",
        .stale = "#F7E9D9", .onStale = "#7A4A12",
        .alarm = "#C4281C", .on = "#1E8E3E",
        .pipe = "#39424E", .grout = "#D5D0C6", .ground = "#EADFCB"};
    // clang-format on
    return look;
}

const Look& darkLook() {
    // clang-format off
    static const Look look{
        .dark = true,
        .window = "#1A1D21", .surface = "#22262B", .field = "#16181C",
        .line = "#4A525D", .hairline = "#363D46",
        .ink = "#E7EAEE", .muted = "#A3ADB9", .disabled = "#7F8893",
        .accent = "#4DB6A9", .onAccent = "#0B1F1D",
        .cooling = "#74AEF2", .coolingWash = "#22344B",
        .heating = "#F0857C", .heatingWash = "#4A2A28",
        .stale = "#5A4526", .onStale = "#FFDFA8",
        .alarm = "#FF7B6E", .on = "#58C878",
        .pipe = "#C4CCD6", .grout = "#4A4741", .ground = "#3A342A"};
    // clang-format on
    return look;
}

const Look& lookOf(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Active, QPalette::Window).lightness() < 128;
    return dark ? darkLook() : lightLook();
}

QColor textColour(int number, const Look& look) {
    if (number == colours::black) return look.ink;
    if (!look.dark) return ofNumber(number);
    switch (number) {
        case colours::greyed:
            return "#98A1AC";
        case colours::heatingGoverns:
            return look.heating;
        case colours::coolingGoverns:
            return look.cooling;
        default:
            return lightened(ofNumber(number), look.surface);
    }
}

QColor backColour(int number, const Look& look) {
    switch (number) {
        case colours::window:
            return look.field;
        case colours::buttonFace:
            return look.surface;
        case colours::stale:
            return look.stale;
        default:
            break;
    }
    if (look.dark && (number == colours::coolingCells || number == colours::heatingCells))
        return number == colours::coolingCells ? look.coolingWash : look.heatingWash;
    if (look.dark && (number == colours::coolingFactors || number == colours::heatingFactors))
        return (number == colours::coolingFactors ? look.coolingWash : look.heatingWash)
            .lighter(125);
    const QColor colour = ofNumber(number);
    return look.dark ? colour.darker(180) : colour;
}

double contrast(const QColor& a, const QColor& b) {
    const double one = luminance(a), other = luminance(b);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QFont figureFont(const QFont& around) {
    QStringList families;
    for (const QString& family : around.families()) {
        // A face of figures has no sister of its own.
        if (family.endsWith(tabularFamily({}))) return around;
        families << tabularFamily(family);
    }
    families += familiesOf({"DejaVu Sans Condensed", "DejaVu Sans", "Liberation Sans"});
    QFont font = around;
    font.setFamilies(families);
    return font;
}

QFont fixedPitchFont(const QFont& around) {
    QFont font = around;
    font.setFamilies(familiesOf({"DejaVu Sans Mono", "Liberation Mono", "monospace"}));
    font.setStyleHint(QFont::Monospace);
    return font;
}

}  // namespace varnholt
