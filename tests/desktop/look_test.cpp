// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/look.h"

#include <gtest/gtest.h>

#include <QFontMetrics>

#include "forms/control.h"

namespace varnholt {
namespace {

/// Small text needs 4.5 (Web Content Accessibility Guidelines 2.1, level AA). The forms' own
/// grey is a little below it on the light surface, where the numbers stand as they are.
constexpr double enough = 4.5;
constexpr double asItStands = 4.3;

TEST(Contrast, IsThatOfTheGuidelines) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 1e-9);
    // #777777 on white is 4.48 in every published table.
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
}

TEST(Look, OfEitherSchemeHasEnoughContrast) {
    for (const Look* look : {&lightLook(), &darkLook()}) {
        SCOPED_TRACE(look->dark ? "dark" : "light");
        for (const QColor& ground : {look->window, look->surface, look->field})
            for (const QColor& text :
                 {look->ink, look->muted, look->cooling, look->heating, look->accent, look->alarm})
                EXPECT_GE(contrast(text, ground), enough)
                    << text.name().toStdString() << " on " << ground.name().toStdString();
        EXPECT_GE(contrast(look->onStale, look->stale), enough);
        EXPECT_GE(contrast(look->onAccent, look->accent), enough);
        EXPECT_GE(contrast(look->alarm, look->heatingWash), 3);
        EXPECT_GE(contrast(look->ink, look->heatingWash), enough);
    }
}

TEST(Look, ShowsTheFocusByARingThatStandsOutFromGroundAndRestingEdge) {
    constexpr double ring = 3;  // level AA for what is no text
    for (const Look* look : {&lightLook(), &darkLook()}) {
        SCOPED_TRACE(look->dark ? "dark" : "light");
        for (const QColor& ground : {look->window, look->surface, look->field, look->line})
            EXPECT_GE(contrast(look->accent, ground), ring) << ground.name().toStdString();
        EXPECT_GE(contrast(look->onAccent, look->accent), ring);  // the primary button turns round
        EXPECT_GE(contrast(look->onStale, look->stale), ring);
        EXPECT_GE(contrast(look->alarm, look->heatingWash), ring);
    }
}

TEST(Look, HasReadableHintsAndWarnings) {
    for (const Look* look : {&lightLook(), &darkLook()})
        EXPECT_GE(contrast(look->ink, look->heatingWash), enough);
}

TEST(Look, KeepsTheNumbersOfTheFormsInTheLightScheme) {
    const Look& look = lightLook();
    // Blue-green-red: 7829367 is 0x777777, 5263547 is 0x5050BB, 8925232 is 0x883030,
    // 14281207 is 0xD9E9F7, 255 is red.
    EXPECT_EQ(textColour(7829367, look), QColor(0x77, 0x77, 0x77));
    EXPECT_EQ(textColour(5263547, look), QColor(0xBB, 0x50, 0x50));
    EXPECT_EQ(textColour(8925232, look), QColor(0x30, 0x30, 0x88));
    EXPECT_EQ(textColour(255, look), QColor(255, 0, 0));
    EXPECT_EQ(backColour(14281207, look), QColor(0xF7, 0xE9, 0xD9));
}

TEST(Look, ShowsTheMeaningsOfTheFormsReadablyInBothSchemes) {
    for (const Look* look : {&lightLook(), &darkLook()})
        for (const int number :
             {colours::black, colours::greyed, colours::heatingGoverns, colours::coolingGoverns})
            EXPECT_GE(contrast(textColour(number, *look), look->surface), asItStands) << number;
    for (const int number : {255, 0x800000, 0x000080})
        EXPECT_GE(contrast(textColour(number, darkLook()), darkLook().surface), enough) << number;
}

TEST(Look, TellsGreyedFromBlackInBothSchemes) {
    for (const Look* look : {&lightLook(), &darkLook()})
        EXPECT_GE(contrast(textColour(colours::black, *look), textColour(colours::greyed, *look)),
                  1.8);
}

TEST(Look, FollowsThePalette) {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor("#202020"));
    EXPECT_TRUE(lookOf(palette).dark);
    palette.setColor(QPalette::Window, QColor("#f0f0f0"));
    EXPECT_FALSE(lookOf(palette).dark);
}

TEST(Figures, AreAllEquallyWide) {
    const QFontMetrics metrics(figureFont(QFont()));
    for (const char digit : {'0', '2', '3', '4', '5', '6', '7', '8', '9'})
        EXPECT_EQ(metrics.horizontalAdvance(QLatin1Char(digit)),
                  metrics.horizontalAdvance(QLatin1Char('1')))
            << digit;
}

TEST(Figures, KeepTheirFaceWhereTheyAreMadeFiguresOnceMore) {
    QFont labels;
    labels.setFamilies({QStringLiteral("Inter"), QStringLiteral("DejaVu Sans")});
    const QFont once = figureFont(labels);
    EXPECT_NE(once.families(), labels.families());
    EXPECT_EQ(figureFont(once).families(), once.families());
}

}  // namespace
}  // namespace varnholt
