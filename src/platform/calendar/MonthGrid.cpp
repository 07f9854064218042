#include "platform/calendar/MonthGrid.h"

namespace velmora {

using namespace std::chrono;

MonthGrid::MonthGrid(year_month month, unsigned firstWeekday)
    : month_(month), firstWeekday_(firstWeekday % kColumns) {
    const sys_days first = month / 1;
    const unsigned column =
        (weekday(first).c_encoding() + kColumns - firstWeekday_) % unsigned(kColumns);
    firstCell_ = first - days(column);
}

year_month_day MonthGrid::dateAt(int cell) const {
    return firstCell_ + days(cell);
}

std::optional<int> MonthGrid::cellOf(year_month_day date) const {
    const auto cell = (sys_days(date) - firstCell_).count();
    if (cell < 0 || cell >= kCells)
        return std::nullopt;
    return static_cast<int>(cell);
}

bool MonthGrid::inMonth(int cell) const {
    const year_month_day date = dateAt(cell);
    return date.year() == month_.year() && date.month() == month_.month();
}

unsigned MonthGrid::weekdayOf(int column) const {
    return (firstWeekday_ + unsigned(column)) % unsigned(kColumns);
}

int MonthGrid::weeks() const {
    const year_month_day lastDay = month_ / last;
    return *cellOf(lastDay) / kColumns + 1;
}

}  // namespace velmora
