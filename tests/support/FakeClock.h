#pragma once

#include "platform/Clock.h"

namespace velmora::test {

// A clock that stands until the test moves it. It starts at Thursday, 12 March 2026, 10:42.
class FakeClock final : public Clock {
  public:
    [[nodiscard]] Moment now() const override { return now_; }

    void set(std::chrono::year_month_day date, std::chrono::seconds timeOfDay) {
        now_ = Moment(std::chrono::local_days(date)) + timeOfDay;
    }
    void advance(std::chrono::seconds by) { now_ += by; }

  private:
    Moment now_ = Moment(std::chrono::local_days(std::chrono::year(2026) / 3 / 12)) +
                  std::chrono::hours(10) + std::chrono::minutes(42);
};

}  // namespace velmora::test
