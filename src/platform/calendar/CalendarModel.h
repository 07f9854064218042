#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"
#include "platform/calendar/StyleSet.h"

namespace velmora {

// A key that moves the date of a calendar.
enum class DateStep {
    PreviousDay,
    NextDay,
    PreviousWeek,
    NextWeek,
    PreviousMonth,
    NextMonth,
    PreviousYear,
    NextYear,
    FirstOfMonth,
    LastOfMonth,
};

// What the month and the year control know: the date chosen, today, and the styles of days.
class CalendarModel {
  public:
    // The date starts as `today`. `first` and `last` are the dates that can be chosen.
    CalendarModel(std::chrono::year_month_day first, std::chrono::year_month_day last,
                  std::chrono::year_month_day today, const CodePage& codePage);

    [[nodiscard]] std::chrono::year_month_day date() const { return date_; }
    // "MM/dd/yyyy"
    [[nodiscard]] std::string dateText() const;
    [[nodiscard]] std::chrono::year_month_day today() const { return today_; }
    [[nodiscard]] bool contains(std::chrono::year_month_day date) const;

    // Throws Failure outside the range; the date then stays.
    void setDate(std::chrono::year_month_day date);
    void setToday(std::chrono::year_month_day today) { today_ = today; }

    // The date that a text means; two digits of a year are read around today's. Throws Failure for
    // a text that is no date or lies outside the range.
    [[nodiscard]] std::chrono::year_month_day readDate(std::string_view text) const;

    // Adds a style set, or replaces the one of that name. Names compare without regard to case.
    void setStyleSet(std::string_view name, StyleSet style);

    // Gives the day the style set of that name. Returns the day if its style changed. Throws
    // Failure for an unknown name and where readDate() does; nothing changes then.
    std::optional<std::chrono::year_month_day> setDayStyle(std::string_view dateText,
                                                           std::string_view styleName);

    // Null for a day that never got a style.
    [[nodiscard]] const StyleSet* styleOf(std::chrono::year_month_day date) const;

    // The date a step away, held within the range. A month or a year away it is the same day, or
    // the month's last.
    [[nodiscard]] std::chrono::year_month_day stepped(DateStep step) const;

  private:
    struct NamedStyle {
        std::string name;
        StyleSet style;
    };

    [[nodiscard]] std::size_t styleIndex(std::string_view name) const;

    std::chrono::year_month_day first_;
    std::chrono::year_month_day last_;
    std::chrono::year_month_day today_;
    std::chrono::year_month_day date_;
    CodePage codePage_;
    std::vector<NamedStyle> styles_;
    std::map<std::chrono::year_month_day, std::size_t> dayStyles_;
};

}  // namespace velmora
