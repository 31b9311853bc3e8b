// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/text_label.h"

#include <gtest/gtest.h>

#include <QImage>

#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/theme.h"

namespace varnholt {
namespace {

template <class Label>
QImage pictureOf(const QString& text, Qt::Alignment alignment, bool wraps, const QSize& size) {
    Label label(text);
    label.setTextFormat(Qt::PlainText);
    label.setAlignment(alignment);
    label.setWordWrap(wraps);
    label.resize(size);
    return label.grab().toImage();
}

TEST(TextLabel, LooksLikeALabelOfTheToolkit) {
    applyTheme(*qApp, Scheme::light);
    for (const char* text : {"Total Bore Length (ft):", "3124.7", "two\nlines", "W, T & AV ffi"})
        for (const Qt::Alignment side :
             {Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignVCenter,
              Qt::AlignHCenter | Qt::AlignTop, Qt::AlignRight | Qt::AlignBottom})
            for (const bool wraps : {false, true}) {
                const QString shown = QString::fromUtf8(text);
                EXPECT_EQ(pictureOf<TextLabel>(shown, side, wraps, {171, 38}),
                          pictureOf<QLabel>(shown, side, wraps, {171, 38}))
                    << text << ' ' << side << ' ' << wraps;
            }
}

TEST(TextLabel, IsAsLargeAsALabelOfTheToolkit) {
    for (const char* text : {"", "0", "Total Bore Length (ft):", "two\nlines"}) {
        const TextLabel label(QString::fromUtf8(text));
        QLabel usual(QString::fromUtf8(text));
        usual.setTextFormat(Qt::PlainText);
        EXPECT_EQ(label.sizeHint(), usual.sizeHint()) << text;
        EXPECT_EQ(label.minimumSizeHint(), usual.minimumSizeHint()) << text;
    }
}

TEST(TextLabel, TakesAnotherTextAndFont) {
    TextLabel label(QStringLiteral("one"));
    const int before = label.sizeHint().width();
    label.setText(QStringLiteral("one and more"));
    const int longer = label.sizeHint().width();
    EXPECT_GT(longer, before);
    QFont large = label.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    label.setFont(large);
    EXPECT_GT(label.sizeHint().width(), longer);
}

TEST(TextLabel, IsMutedInEitherScheme) {
    for (const Scheme scheme : {Scheme::dark, Scheme::light}) {
        applyTheme(*qApp, scheme);
        TextLabel label(QStringLiteral("ll"));
        QFont large = label.font();
        large.setPointSizeF(40);
        label.setFont(large);
        label.setMuted();
        const QImage picture = label.grab().toImage();
        bool found = false;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                found = found || picture.pixelColor(x, y) == lookOf(label.palette()).muted;
        EXPECT_TRUE(found);
    }
}

TEST(Icons, AreDrawnOnceASize) {
    const QIcon icon = houseIcon(QStringLiteral("open"));
    EXPECT_EQ(icon.pixmap(20).cacheKey(), houseIcon(QStringLiteral("open")).pixmap(20).cacheKey());
    EXPECT_NE(icon.pixmap(20).cacheKey(), icon.pixmap(24).cacheKey());
    EXPECT_NE(icon.pixmap(20).cacheKey(), icon.pixmap(20, QIcon::Disabled).cacheKey());
}

}  // namespace
}  // namespace varnholt
