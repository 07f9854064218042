#pragma once

#include <string>
#include <vector>

#include "reports/ReportProfile.h"

namespace velmora::bench {

// The yardstick of the reports: reads a book, sorts the names and formats the cells of each entry
// in their order, with nothing around it. Returns the texts of the cells. Throws
// std::runtime_error when the book can not be read.
[[nodiscard]] std::vector<std::string> bareReport(const std::string& path, ReportKind kind);

}  // namespace velmora::bench
