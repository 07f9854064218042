#include "platform/SystemClock.h"

#include <ctime>

namespace velmora {

Moment SystemClock::now() const {
    using namespace std::chrono;
    const std::time_t seconds = std::time(nullptr);
    std::tm civil{};
    localtime_r(&seconds, &civil);
    const year_month_day date = year(civil.tm_year + 1900) /
                                month(static_cast<unsigned>(civil.tm_mon + 1)) /
                                day(static_cast<unsigned>(civil.tm_mday));
    return local_days(date) + hours(civil.tm_hour) + minutes(civil.tm_min) +
           std::chrono::seconds(civil.tm_sec);
}

}  // namespace velmora
