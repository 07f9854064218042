#include "platform/calendar/CalendarModel.h"

#include <algorithm>
#include <utility>

#include "platform/DateText.h"
#include "platform/Failure.h"

namespace velmora {
namespace {

using namespace std::chrono;

year_month_day endOfMonth(year_month month) {
    return month / std::chrono::last;
}

year_month_day inMonth(year_month month, day wanted) {
    return month / std::min(wanted, endOfMonth(month).day());
}

}  // namespace

CalendarModel::CalendarModel(year_month_day first, year_month_day last, year_month_day today,
                             const CodePage& codePage)
    : first_(first), last_(last), today_(today), date_(today), codePage_(codePage) {}

std::string CalendarModel::dateText() const {
    return writeDate(date_);
}

bool CalendarModel::contains(year_month_day date) const {
    return date >= first_ && date <= last_;
}

void CalendarModel::setDate(year_month_day date) {
    if (!date.ok() || !contains(date))
        throw Failure("The date lies outside the calendar.");
    date_ = date;
}

year_month_day CalendarModel::readDate(std::string_view text) const {
    const auto date = velmora::readDate(text, today_.year());
    if (!date)
        throw Failure("\"" + codePage_.toUtf8(text) + "\" is not a date.");
    if (!contains(*date))
        throw Failure("The date lies outside the calendar.");
    return *date;
}

void CalendarModel::setStyleSet(std::string_view name, StyleSet style) {
    const std::size_t index = styleIndex(name);
    if (index == styles_.size())
        styles_.push_back({std::string(name), style});
    else
        styles_[index].style = style;
}

std::size_t CalendarModel::styleIndex(std::string_view name) const {
    const auto found = std::find_if(styles_.begin(), styles_.end(), [&](const NamedStyle& style) {
        return codePage_.equalIgnoringCase(style.name, name);
    });
    return static_cast<std::size_t>(found - styles_.begin());
}

std::optional<year_month_day> CalendarModel::setDayStyle(std::string_view dateText,
                                                         std::string_view styleName) {
    const year_month_day date = readDate(dateText);
    const std::size_t index = styleIndex(styleName);
    if (index == styles_.size())
        throw Failure("There is no style \"" + codePage_.toUtf8(styleName) + "\" for days.");
    const auto [entry, added] = dayStyles_.try_emplace(date, index);
    if (!added && entry->second == index)
        return std::nullopt;
    entry->second = index;
    return date;
}

const StyleSet* CalendarModel::styleOf(year_month_day date) const {
    const auto found = dayStyles_.find(date);
    return found == dayStyles_.end() ? nullptr : &styles_[found->second].style;
}

year_month_day CalendarModel::stepped(DateStep step) const {
    const sys_days day = date_;
    const year_month month(date_.year(), date_.month());
    year_month_day to = date_;
    switch (step) {
        case DateStep::PreviousDay:
            to = day - days(1);
            break;
        case DateStep::NextDay:
            to = day + days(1);
            break;
        case DateStep::PreviousWeek:
            to = day - days(7);
            break;
        case DateStep::NextWeek:
            to = day + days(7);
            break;
        case DateStep::PreviousMonth:
            to = inMonth(month - months(1), date_.day());
            break;
        case DateStep::NextMonth:
            to = inMonth(month + months(1), date_.day());
            break;
        case DateStep::PreviousYear:
            to = inMonth(month - years(1), date_.day());
            break;
        case DateStep::NextYear:
            to = inMonth(month + years(1), date_.day());
            break;
        case DateStep::FirstOfMonth:
            to = month / 1;
            break;
        case DateStep::LastOfMonth:
            to = endOfMonth(month);
            break;
    }
    return std::clamp(to, first_, last_);
}

}  // namespace velmora
