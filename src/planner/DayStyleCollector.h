#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
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
    [[nodiscard]] std::vector<DayStyle> take();

  private:
    using StyleNumber = std::uint32_t;

    struct Day {
        std::chrono::year_month_day day;
        std::vector<StyleNumber> styles;
    };

    [[nodiscard]] StyleNumber numberOf(std::string_view utf8Style);

    const CodePage& codePage_;
    std::vector<std::string> styles_;
    std::unordered_map<std::string, StyleNumber> styleNumbers_;
    StyleNumber lastStyle_ = 0;

    std::vector<Day> days_;
    std::unordered_map<std::uint32_t, std::size_t> dayPlaces_;
};

}  // namespace velmora
