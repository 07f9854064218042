#include "platform/Format.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono;

Moment at(int y, unsigned m, unsigned d, int h = 0, int n = 0, int s = 0) {
    return Moment(local_days(year(y) / month(m) / day(d))) + hours(h) + minutes(n) + seconds(s);
}

TEST(Format, PatternLettersWriteTheirParts) {
    const LocaleFormats english;
    const Moment moment = at(2001, 3, 9, 14, 5, 7);
    struct Row {
        const char* pattern;
        const char* text;
    };
    for (const Row& row :
         {Row{"dddd, mmmm dd, yyyy", "Friday, March 09, 2001"}, Row{"MM/dd/yy", "03/09/01"},
          Row{"d.m.yyyy", "9.3.2001"}, Row{"h:NN AM/PM", "2:05 PM"}, Row{"hh:mm AMPM", "02:05 PM"},
          Row{"hh:mm", "14:05"}, Row{"Hh:Nn", "14:05"}, Row{"hh:mm mm", "14:05 03"},
          Row{"ddd mmm", "Fri Mar"}, Row{"n:s", "5:7"}, Row{"nn:ss", "05:07"},
          Row{"d 'de' mmmm", "9 de March"}, Row{"m h:m", "3 14:5"}, Row{"", ""}}) {
        SCOPED_TRACE(row.pattern);
        EXPECT_EQ(formatMoment(moment, row.pattern, english), row.text);
    }
}

TEST(Format, HoursOfTheHalfDayRunFromTwelveToEleven) {
    const LocaleFormats english;
    EXPECT_EQ(formatMoment(at(2001, 1, 1, 0, 0), "h:NN AM/PM", english), "12:00 AM");
    EXPECT_EQ(formatMoment(at(2001, 1, 1, 0, 5), "hh:mm AMPM", english), "12:05 AM");
    EXPECT_EQ(formatMoment(at(2001, 1, 1, 12, 0), "hh:mm AMPM", english), "12:00 PM");
    EXPECT_EQ(formatMoment(at(2001, 1, 1, 13, 5), "h:NN AM/PM", english), "1:05 PM");
}

TEST(Format, NamedFormatsFollowTheLocaleButShortTimeHasTwentyFourHours) {
    LocaleFormats german;
    german.months[2] = "M\xE4rz";
    german.shortMonths[2] = "M\xE4r";
    german.weekdays[5] = "Freitag";
    german.longDate = "dddd, d. mmmm yyyy";
    const Moment moment = at(2001, 3, 9, 17, 34);
    EXPECT_EQ(formatMoment(moment, NamedFormat::LongDate, german), "Freitag, 9. M\xE4rz 2001");
    EXPECT_EQ(formatMoment(moment, NamedFormat::MediumDate, german), "09-M\xE4r-01");
    EXPECT_EQ(formatMoment(moment, NamedFormat::MediumTime, german), "05:34 PM");
    EXPECT_EQ(formatMoment(moment, NamedFormat::ShortTime, german), "17:34");
    EXPECT_EQ(formatMoment(at(2001, 11, 15, 0, 5), NamedFormat::MediumTime, german), "12:05 AM");
    EXPECT_EQ(formatMoment(moment, NamedFormat::LongDate, LocaleFormats()),
              "Friday, March 09, 2001");
}

TEST(Format, AMonthBesideTheNumberOfADayTakesTheFormForDates) {
    LocaleFormats polish;
    polish.months[2] = "marzec";
    polish.monthsInDate[2] = "marca";
    polish.shortMonths[2] = "mrz";
    const Moment moment = at(2001, 3, 9);
    EXPECT_EQ(formatMoment(moment, "dddd, d mmmm yyyy", polish), "Friday, 9 marca 2001");
    EXPECT_EQ(formatMoment(moment, "dd-mmm-yy", polish), "09-mrz-01");
    EXPECT_EQ(formatMoment(moment, "mmmm yyyy", polish), "marzec 2001");
    EXPECT_EQ(formatMoment(moment, "dddd mmmm", polish), "Friday marzec");
    EXPECT_EQ(formatMoment(moment, "'d' mmmm", polish), "d marzec");
    EXPECT_EQ(formatMoment(moment, "mmm", polish), "mrz");
}

TEST(Format, TimesAreReadInTheirUsualForms) {
    EXPECT_EQ(readTimeOfDay("9:5"), hours(9) + minutes(5));
    EXPECT_EQ(readTimeOfDay("09:05:30"), hours(9) + minutes(5) + seconds(30));
    EXPECT_EQ(readTimeOfDay("2:05 PM"), hours(14) + minutes(5));
    EXPECT_EQ(readTimeOfDay("2:05pm"), hours(14) + minutes(5));
    EXPECT_EQ(readTimeOfDay("12:00 a"), hours(0));
    EXPECT_EQ(readTimeOfDay("2pm"), hours(14));
    EXPECT_EQ(readTimeOfDay(" 14:05 "), hours(14) + minutes(5));
    for (const char* text : {"", "24:00", "x:00", "9", "9:60", "13:00 PM", "0:10 AM", "9:", "9:5x",
                             "9:05 XM", "12345:00"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(readTimeOfDay(text), std::nullopt);
    }
}

TEST(Format, ATextThatIsNoTimeFormatsToItself) {
    const LocaleFormats english;
    EXPECT_EQ(formatTimeText("9:00", "h:NN AM/PM", english), "9:00 AM");
    EXPECT_EQ(formatTimeText("9:5", "hh:mm", english), "09:05");
    EXPECT_EQ(formatTimeText("24:00", "h:NN AM/PM", english), "24:00");
    EXPECT_EQ(formatTimeText("x:00", "h:NN AM/PM", english), "x:00");
    EXPECT_EQ(formatTimeText("", "hh:mm", english), "");
}

}  // namespace
}  // namespace velmora
