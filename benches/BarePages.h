#pragma once

#include <cstddef>
#include <vector>

#include "platform/PrintJob.h"

namespace velmora::bench {

// The yardstick of the pages: draws the texts and lines of jobs into one PDF document, each at its
// place on Letter sheets, with nothing around it. Returns the size of the document in bytes.
std::size_t drawBare(const std::vector<PrintJob>& jobs);

}  // namespace velmora::bench
