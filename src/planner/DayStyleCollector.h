#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "planner/DayStyle.h"
#include "platform/CodePage.h"

namespace velmora {

// Boils the rows of a table down to what the calendars need: for each day its styles, each once,
// in the order in which they were last named.
class DayStyleCollector {
  public:
    explicit DayStyleCollector(const CodePage& codePage) : codePage_(codePage) {}

    // One row, as it lies in the database. A date that is none is passed over.
    void add(std::string_view storedDate, std::string_view utf8Style);

    // What has been collected, the days in the order in which they first came up.
    [[nodiscard]] std::vector<DayStyle> result() const;

  private:
    using Number = std::uint32_t;
    static constexpr Number kNone = 0xFFFFFFFF;

    // A style of a day, and the one that was named last before it.
    struct Named {
        Number style;
        Number earlier;
    };

    struct Day {
        std::chrono::year_month_day day;
        Number latest = kNone;
    };

    // For each day of a year, twelve months of 31, its place in days_.
    using Year = std::array<Number, std::size_t{12} * 31>;

    [[nodiscard]] Day& dayAt(std::chrono::year_month_day day);
    [[nodiscard]] Number numberOf(std::string_view utf8Style);
    void makeLatest(Day& day, Number style);

    const CodePage& codePage_;
    std::vector<std::string> styles_;  // UTF-8
    std::map<std::string, Number, std::less<>> styleNumbers_;
    Number lastStyle_ = kNone;

    std::vector<Day> days_;
    std::vector<Named> named_;
    std::vector<std::unique_ptr<Year>> years_;
};

}  // namespace velmora
