#pragma once

#include <cstddef>
#include <string>

#include "phonebook/PhonebookRecord.h"

namespace velmora {

// What the entry form says about values that a record can not hold.
inline constexpr const char* kReplacedText =
    "Characters that the phonebook can not store were replaced by \"?\".";

[[nodiscard]] inline std::string cutText(std::size_t width) {
    return "This field holds " + std::to_string(width) + " characters; the rest was left out.";
}

[[nodiscard]] inline std::string tooLongPathText() {
    return "The path of this file is longer than the " +
           std::to_string(placeOf(Field::FileAttachment).width) +
           " characters that an entry has room for.";
}

}  // namespace velmora
