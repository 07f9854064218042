#pragma once

#include <string>

namespace velmora {

// One block of a day view, in code-page text. Times are kept exactly as they were given, readable
// or not; lines of `text` end in CR LF.
struct DayTask {
    std::string BeginTime;
    std::string EndTime;
    std::string text;
    std::string TagVariant;  // a free value; empty for a block that is not stored yet

    friend bool operator==(const DayTask&, const DayTask&) = default;
};

}  // namespace velmora
