// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/paper_type.h"

#include <QFontDatabase>
#include <algorithm>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

struct StyleRow {
    ItemStyle style;
    int size;  ///< tenths of a point
    QFont::Weight weight;
    bool muted;
    int before;
    bool right, bottom, keepsNext;
};

// clang-format off
constexpr StyleRow rows[] = {
    {ItemStyle::brand,       92, QFont::DemiBold, true,    0, false, false, true},
    {ItemStyle::title,      185, QFont::Bold,     false,  10, false, false, true},
    {ItemStyle::notice,      92, QFont::DemiBold, false,  30, false, false, true},
    {ItemStyle::heading,    122, QFont::Bold,     false, 130, false, false, true},
    {ItemStyle::subheading,  90, QFont::Bold,     false,  70, false, false, true},
    {ItemStyle::zone,        90, QFont::Bold,     false,  40, false, false, false},
    {ItemStyle::caption,     82, QFont::Normal,   true,    0, false, false, false},
    {ItemStyle::value,       85, QFont::Normal,   false,   0, false, false, false},
    {ItemStyle::figure,      84, QFont::Normal,   false,   0, true,  false, false},
    {ItemStyle::columnHead,  76, QFont::DemiBold, false,   0, true,  true,  true},
    {ItemStyle::textHead,    76, QFont::DemiBold, false,   0, false, true,  true},
    {ItemStyle::unit,        74, QFont::Normal,   true,    0, true,  true,  true},
    {ItemStyle::note,        88, QFont::Normal,   false,   0, false, false, false},
    {ItemStyle::small,       72, QFont::Normal,   true,    0, false, false, false},
    {ItemStyle::smallRight,  72, QFont::Normal,   true,    0, true,  false, false},
    {ItemStyle::rule,        30, QFont::Normal,   true,    0, false, false, false},
    {ItemStyle::logo,        76, QFont::Normal,   true,    0, true,  false, true},
    {ItemStyle::drawing,     76, QFont::DemiBold, true,   40, false, false, false},
};
// clang-format on

QFont familyFor(const QString& face) {
    QStringList families{QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
                         QStringLiteral("DejaVu Sans")};
    if (!face.isEmpty() && QFontDatabase::hasFamily(face)) families.prepend(face);
    QFont font;
    font.setFamilies(families);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Inter sets another hyphen or colon between figures and capitals, which a file's text would
    // not tell for what it is. Scripts that need shaping are shaped nevertheless.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

}  // namespace

double PaperStyle::widthOf(const QString& text) const { return metrics_->horizontalAdvance(text); }

PaperType::PaperType(const QString& face) {
    const QFont family = familyFor(face);
    const Look& look = lightLook();
    for (const StyleRow& row : rows)
        for (auto* styles : {&styles_, &strong_}) {
            PaperStyle& style = (*styles)[static_cast<std::size_t>(row.style)];
            style.font = row.style == ItemStyle::figure ? figureFont(family) : family;
            style.font.setPixelSize(row.size);
            style.font.setWeight(styles == &strong_ ? QFont::Bold : row.weight);
            style.colour = row.muted ? look.muted : look.ink;
            style.metrics_ = std::make_shared<QFontMetricsF>(style.font);
            style.ascent = style.metrics_->ascent();
            style.descent = style.metrics_->descent();
            style.lineHeight = 1.05 * style.metrics_->height();
            style.widest = style.metrics_->horizontalAdvance(QLatin1Char('W'));
            style.before = row.before;
            style.right = row.right;
            style.bottom = row.bottom;
            style.keepsNext = row.keepsNext;
        }
}

QColor tintColour(Tint tint, const QColor& plain) {
    if (tint == Tint::cooling) return lightLook().cooling;
    return tint == Tint::heating ? lightLook().heating : plain;
}

QColor paperMuted() { return lightLook().muted; }
QColor paperRule() { return lightLook().line; }

}  // namespace varnholt
