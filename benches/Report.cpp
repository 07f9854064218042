#include "benches/Report.h"

#include <cstdio>

namespace velmora::bench {

void Report::figure(std::string_view name, double value, std::string_view unit) {
    std::printf("%.*s %.2f %.*s\n", static_cast<int>(name.size()), name.data(), value,
                static_cast<int>(unit.size()), unit.data());
    std::fflush(stdout);
}

void Report::figure(std::string_view name, double value, std::string_view unit, double limit) {
    std::printf("%.*s %.2f %.*s (limit %g)\n", static_cast<int>(name.size()), name.data(), value,
                static_cast<int>(unit.size()), unit.data(), limit);
    std::fflush(stdout);
    passedLimit_ = passedLimit_ || !(value <= limit);
}

}  // namespace velmora::bench
