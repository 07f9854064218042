#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace velmora::bench {

// The days over which a generated planner spreads its appointments: forty years from 2000 on.
inline constexpr std::chrono::sys_days kFirstDay = std::chrono::year(2000) / 1 / 1;
inline constexpr std::size_t kDays = 14'610;

// Writes a planner database with so many invented appointments, none of them on the same day as
// the one before; the same number gives the same rows. No file may be at `path`. Throws Failure
// when it can not be written.
void writePlanner(const std::string& path, std::size_t rows);

}  // namespace velmora::bench
