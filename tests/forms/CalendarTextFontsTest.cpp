#include "core/forms/CalendarTextFonts.h"

#include <gtest/gtest.h>

#include "core/forms/LeftColumn.h"
#include "forms/CalendarFixture.h"
#include "platform/controls/EntryList.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using CalendarTextFontsTest = test::CalendarFixture;

TEST_F(CalendarTextFontsTest, AFontIsAppliedPieceByPiece) {
    calendar.textFonts().setFont(FontTarget::DocPad,
                                 {.face = "Liberation Mono", .size = {}, .colour = 255});
    EXPECT_EQ(calendar.text().font().families(), QStringList("Liberation Mono"));
    EXPECT_EQ(calendar.text().ink(), QColor(255, 0, 0));
    const double size = calendar.leftColumn().list()->font().pointSizeF();
    calendar.textFonts().setFont(FontTarget::EntryList,
                                 {.face = {}, .size = 12.0, .colour = 0x00FF00});
    EXPECT_NE(size, 12.0);
    EXPECT_EQ(calendar.leftColumn().list()->font().pointSizeF(), 12.0);
    EXPECT_EQ(calendar.leftColumn().list()->palette().color(QPalette::Active, QPalette::Text),
              QColor(0, 255, 0));
    calendar.textFonts().setFont(FontTarget::DayView, {.face = {}, .size = {}, .colour = 0xFF0000});
    EXPECT_EQ(calendar.day().textColor(), QColor(0, 0, 255));
    calendar.textFonts().setFont(FontTarget::DocPad, {.face = {}, .size = 0.0, .colour = -1});
    EXPECT_EQ(calendar.text().ink(), std::nullopt);
}

TEST_F(CalendarTextFontsTest, TellsWhatWasSetLastAndTheThemesColourBeforeThat) {
    CalendarTextFonts& fonts = calendar.textFonts();
    for (const FontTarget target :
         {FontTarget::DocPad, FontTarget::DayView, FontTarget::EntryList}) {
        EXPECT_EQ(fonts.colourOf(target), -1);
        fonts.setFont(target, {.face = "Liberation Serif", .size = 14.0, .colour = 0x0000FF});
        EXPECT_EQ(fonts.colourOf(target), 0x0000FF);
        EXPECT_EQ(fonts.fontOf(target).families(), QStringList("Liberation Serif"));
        EXPECT_EQ(fonts.fontOf(target).pointSizeF(), 14.0);
        fonts.setFont(target, {.face = {}, .size = {}, .colour = -5});
        EXPECT_EQ(fonts.colourOf(target), -5);
    }
    EXPECT_FALSE(calendar.day().textColor().isValid());
    EXPECT_EQ(calendar.leftColumn().list()->palette().color(QPalette::Active, QPalette::Text),
              Theme::of(calendar).ink);
}

}  // namespace
}  // namespace velmora
