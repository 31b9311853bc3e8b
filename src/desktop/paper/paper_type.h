// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <array>
#include <memory>

#include "reports/report.h"

namespace varnholt {

/// A page is measured in tenths of a point, so that fonts have whole sizes.
constexpr double unitsPerPoint = 10;
constexpr double unitsPerMillimetre = unitsPerPoint * 72 / 25.4;

/// How a style of a report is set on paper.
struct PaperStyle {
    QFont font;
    QColor colour;
    double ascent = 0, descent = 0;
    double lineHeight = 0;
    double widest = 0;  ///< no character of the western alphabets is wider
    double before = 0;  ///< room above a row that begins with it
    bool right = false;
    bool bottom = false;     ///< stands at the foot of its row
    bool keepsNext = false;  ///< a row with it never ends a page

    double widthOf(const QString& text) const;

 private:
    friend class PaperType;
    std::shared_ptr<QFontMetricsF> metrics_;
};

/// The type of a report on paper: one family, a clear order of sizes, figures with digits of one
/// width.
class PaperType {
 public:
    /// @param face  the language's font; empty for the house's own
    explicit PaperType(const QString& face);

    const PaperStyle& of(ItemStyle style) const { return styles_[static_cast<std::size_t>(style)]; }
    /// The same for what governs.
    const PaperStyle& strongOf(ItemStyle style) const {
        return strong_[static_cast<std::size_t>(style)];
    }
    const PaperStyle& of(const ReportItem& item) const {
        return item.strong ? strongOf(item.style) : of(item.style);
    }

 private:
    static constexpr std::size_t count = static_cast<std::size_t>(ItemStyle::drawing) + 1;
    std::array<PaperStyle, count> styles_, strong_;
};

QColor tintColour(Tint tint, const QColor& plain);
QColor paperMuted();
QColor paperRule();

}  // namespace varnholt
