#pragma once

#include <string>

#include "core/SettingsStore.h"
#include "platform/CodePage.h"

namespace velmora {

// What the settings say about dialing, as it is at the moment of a call.
struct DialSettings {
    // Reads the settings anew.
    static DialSettings read(const SettingsStore& settings);

    int port = 0;                // 1 to 9; 0 where the setting names none
    std::string command;         // "ATDT", "ATDP", or nothing for a mode that is not known
    std::string prefix;          // as it stands, blanks included
    std::string initialisation;  // trimmed
    bool log = false;            // calls go into the phone log
    std::string areaCode;        // trimmed
};

// Whether calls go into the phone log: the setting is exactly 1, as a number.
[[nodiscard]] bool logsCalls(const SettingsStore& settings);

// `number` without its first characters, as many as the area code has, if the code stands anywhere
// in the number's first four. Where it stands there does not matter.
[[nodiscard]] std::string withoutAreaCode(const std::string& number, const std::string& areaCode,
                                          const CodePage& codePage);

}  // namespace velmora
