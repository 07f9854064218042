#include "platform/qt/Theme.h"

#include <gtest/gtest.h>

#include <QPalette>
#include <cmath>

namespace velmora {
namespace {

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

class ThemeTest : public testing::TestWithParam<const Theme*> {};

TEST_P(ThemeTest, TextCanBeReadOnEveryGroundItStandsOn) {
    const Theme& theme = *GetParam();
    constexpr double kText = 4.5;
    for (const QColor& ground : {theme.surface, theme.canvas, theme.chrome, theme.alt, theme.tint,
                                 theme.tint2, theme.hover, theme.wtab})
        EXPECT_GE(contrast(theme.ink, ground), kText);
    for (const QColor& ground : {theme.surface, theme.chrome, theme.tint, theme.tint2})
        EXPECT_GE(contrast(theme.ink2, ground), kText);
    EXPECT_GE(contrast(theme.onaccent, theme.accentfill), kText);
    EXPECT_GE(contrast(theme.onamber, theme.amber), kText);
    EXPECT_GE(contrast(theme.onGo, theme.go), kText);
    EXPECT_GE(contrast(theme.danger, theme.surface), kText);
    EXPECT_GE(contrast(theme.ontip, theme.tip), kText);
}

TEST_P(ThemeTest, OutlinesOfInputsAndFocusCanBeSeen) {
    const Theme& theme = *GetParam();
    EXPECT_GE(contrast(theme.line2, theme.surface), 3);
    EXPECT_GE(contrast(theme.accent, theme.surface), 3);
    EXPECT_GE(contrast(theme.accent, theme.canvas), 3);
}

TEST_P(ThemeTest, ItsPaletteLeadsBackToIt) {
    EXPECT_EQ(&Theme::of(GetParam()->toPalette()), GetParam());
}

TEST_P(ThemeTest, FillsEveryTokenOfTheStyleSheet) {
    const QString filled = GetParam()->fill("a { color: {ink}; background: {accentfill}; }");
    EXPECT_EQ(filled, QString("a { color: %1; background: %2; }")
                          .arg(GetParam()->ink.name(), GetParam()->accentfill.name()));
}

TEST_P(ThemeTest, DaysWithAppointmentsAreExactlyRed) {
    EXPECT_EQ(GetParam()->event, QColor(255, 0, 0));
}

INSTANTIATE_TEST_SUITE_P(Both, ThemeTest, testing::Values(&Theme::light(), &Theme::dark()));

}  // namespace
}  // namespace velmora
