#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "platform/CodePage.h"

namespace velmora {

// The order that the sort flags ask for; other values than these leave the array as it is.
inline constexpr int kSortAscending = 1;
inline constexpr int kSortDescending = 2;
inline constexpr int kSortIgnoringCase = 4;  // added to one of the two

// Sorts names[first] to names[last] in place by bytes. A comb sort whose steps are part of what
// users see: entries that compare equal come out in the order that its gaps give, so that printed
// lists keep their order from release to release. Throws Failure where an index lies outside the
// array or above 32767, and for more than 32767 names.
void SortNameList(std::span<std::string> names, int first, int last, int flags,
                  const CodePage& codePage);

}  // namespace velmora
