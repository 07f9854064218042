#pragma once

#include <string>

namespace velmora {

// What the keypad does to the number on the display. There is no longest number.
[[nodiscard]] inline std::string withKey(std::string number, char key) {
    number += key;
    return number;
}

// The last character taken away; an empty number stays empty.
[[nodiscard]] inline std::string withoutLast(std::string number) {
    if (!number.empty())
        number.pop_back();
    return number;
}

}  // namespace velmora
