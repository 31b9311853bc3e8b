// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/tabular_faces.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QRawFont>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

const QString inter = QStringLiteral("Inter");
const QString letters = QStringLiteral("Heat Pump EER/COP (MBtu/Hr) é – °");

class TabularFaces : public testing::Test {
 protected:
    void SetUp() override {
        ASSERT_TRUE(QFontDatabase::hasFamily(inter));
        registerTabularFaces(labels());
    }

    static QFont labels(QFont::Weight weight = QFont::Normal) {
        QFont font(inter);
        font.setFamilies({inter});
        font.setPixelSize(200);
        font.setWeight(weight);
        return font;
    }
    static double width(const QFont& font, const QString& text) {
        return QFontMetricsF(font).horizontalAdvance(text);
    }
};

TEST_F(TabularFaces, AreTheFaceOfTheLabels) {
    EXPECT_EQ(QFontInfo(figureFont(labels())).family(), QStringLiteral("Inter Tabular"));
    EXPECT_EQ(width(figureFont(labels()), letters), width(labels(), letters));
    EXPECT_EQ(QFontMetricsF(figureFont(labels())).height(), QFontMetricsF(labels()).height());
}

// The face's own tabular 4 is up to 0.4 of 200 pixels narrower than the others in its bold weights,
// a fortieth of a pixel in a field.
TEST_F(TabularFaces, HaveDigitsOfOneWidthInEveryWeight) {
    const auto zero = QStringLiteral("0"), one = QStringLiteral("1");
    ASSERT_GT(width(labels(), zero) - width(labels(), one), 20) << "which the labels have not";
    for (const auto weight : {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold}) {
        const QFont font = figureFont(labels(weight));
        for (int digit = 1; digit < 10; ++digit)
            EXPECT_NEAR(width(font, QString::number(digit)), width(font, zero), 0.4)
                << digit << " at " << weight;
    }
}

TEST_F(TabularFaces, KeepTheWeightsApart) {
    const auto weightOf = [](QFont::Weight weight) {
        return QRawFont::fromFont(figureFont(labels(weight))).weight();
    };
    EXPECT_EQ(weightOf(QFont::Normal), QFont::Normal);
    EXPECT_EQ(weightOf(QFont::Medium), QFont::Medium);
    EXPECT_EQ(weightOf(QFont::DemiBold), QFont::DemiBold);
    EXPECT_EQ(weightOf(QFont::Bold), QFont::Bold);
}

TEST_F(TabularFaces, StandBesideTheFaceAndChangeNothingOfIt) {
    EXPECT_EQ(QFontInfo(labels()).family(), inter);
}

// Each digit of the condensed face is as wide as every other: it has no second ones.
TEST_F(TabularFaces, AreNotMadeOfAFaceThatHasNoOtherDigits) {
    QFont other;
    other.setFamilies({QStringLiteral("DejaVu Sans Condensed"), QStringLiteral("No Such Face")});
    registerTabularFaces(other);
    EXPECT_FALSE(QFontDatabase::hasFamily(tabularFamily(QStringLiteral("DejaVu Sans Condensed"))));
    EXPECT_FALSE(QFontDatabase::hasFamily(tabularFamily(QStringLiteral("No Such Face"))));
    EXPECT_EQ(QFontInfo(figureFont(other)).family(), QStringLiteral("DejaVu Sans Condensed"));
}

}  // namespace
}  // namespace varnholt
