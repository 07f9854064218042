#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace velmora {

// The user's names and patterns for dates and times, as code-page text. The defaults are those of
// English, which also serve where a locale has none.
struct LocaleFormats {
    // Sunday first.
    std::array<std::string, 7> weekdays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                        "Thursday", "Friday", "Saturday"};
    std::array<std::string, 7> shortWeekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    std::array<std::string, 12> months{"January",   "February", "March",    "April",
                                       "May",       "June",     "July",     "August",
                                       "September", "October",  "November", "December"};
    std::array<std::string, 12> shortMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    // The full names as they stand beside the number of a day, where a language has others for that
    // ("9 marca" in "marzec"). An empty one is as above.
    std::array<std::string, 12> monthsInDate;
    std::string am = "AM";
    std::string pm = "PM";
    std::string longDate = "dddd, mmmm dd, yyyy";  // in the pattern letters of formatMoment()
    unsigned firstWeekday = 0;                     // first column of a week, 0 is Sunday
};

enum class NamedFormat {
    LongDate,    // as LocaleFormats::longDate
    MediumDate,  // "15-Nov-01", with the locale's short month name
    MediumTime,  // "05:34 PM", with the locale's words for AM and PM
    ShortTime,   // "17:34", 24 hours in every locale
};

// Writes `moment` by a pattern: "d" "dd" day, "ddd" "dddd" weekday name, "m" "mm" month (minutes
// right behind an hour), "mmm" "mmmm" month name, "yy" "yyyy" year, "h" "hh" hour, "n" "nn"
// minutes, "s" "ss" seconds, "AM/PM" and "AMPM" the English half of the day, which makes hours run
// from 1 to 12. Letters count in either case; all else stands for itself, "/" and ":" too; text in
// single quotes is taken as it is.
[[nodiscard]] std::string formatMoment(Moment moment, std::string_view pattern,
                                       const LocaleFormats& locale);
[[nodiscard]] std::string formatMoment(Moment moment, NamedFormat format,
                                       const LocaleFormats& locale);

// Reads a time of day: "9:5", "09:05:30", "2:05 PM", "2pm", "14:05". Nothing for other texts;
// "24:00" is none.
[[nodiscard]] std::optional<std::chrono::seconds> readTimeOfDay(std::string_view text);

// Writes a text that is a time by a pattern; a text that is none comes back as it is.
[[nodiscard]] std::string formatTimeText(std::string_view text, std::string_view pattern,
                                         const LocaleFormats& locale);

}  // namespace velmora
