#pragma once

#include <chrono>
#include <optional>

namespace velmora {

// The days of a month in weeks of seven columns: which date stands in which cell. Cells count from
// 0, row by row; the cells before the first and behind the last of the month hold the days of the
// months beside it.
class MonthGrid {
  public:
    static constexpr int kColumns = 7;
    static constexpr int kRows = 6;
    static constexpr int kCells = kColumns * kRows;

    // `firstWeekday` is the weekday of the first column, 0 for Sunday to 6.
    MonthGrid(std::chrono::year_month month, unsigned firstWeekday);

    [[nodiscard]] std::chrono::year_month month() const { return month_; }
    [[nodiscard]] std::chrono::year_month_day dateAt(int cell) const;
    [[nodiscard]] std::optional<int> cellOf(std::chrono::year_month_day date) const;
    [[nodiscard]] bool inMonth(int cell) const;

    // The weekday of a column, 0 for Sunday.
    [[nodiscard]] unsigned weekdayOf(int column) const;

    // How many rows hold a day of the month itself: 4 to 6.
    [[nodiscard]] int weeks() const;

  private:
    std::chrono::year_month month_;
    unsigned firstWeekday_;
    std::chrono::sys_days firstCell_;
};

}  // namespace velmora
