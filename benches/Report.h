#pragma once

#include <string_view>

namespace velmora::bench {

// Prints figures, one a line: "name value unit", and "(limit L)" behind those that have one.
class Report {
  public:
    // A figure to look at.
    void figure(std::string_view name, double value, std::string_view unit);

    // A figure that must not be above its limit.
    void figure(std::string_view name, double value, std::string_view unit, double limit);

    // 1 when a figure was above its limit.
    [[nodiscard]] int exitCode() const { return passedLimit_ ? 1 : 0; }

  private:
    bool passedLimit_ = false;
};

}  // namespace velmora::bench
