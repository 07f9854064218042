#pragma once

#include <string>

namespace velmora {

// Where the makers of the program are found. Whoever builds it names them (the CMake variables
// VELMORA_HOME_PAGE and VELMORA_MAIL_ADDRESS); either may be empty, and then nothing is opened.
struct ProductAddresses {
    std::string homePage;
    std::string mail;
};

[[nodiscard]] ProductAddresses productAddresses();

// The name under which the desktop knows the program: that of its desktop entry, without the
// ending, and on the message bus (the CMake variable VELMORA_DESKTOP_NAME).
[[nodiscard]] std::string desktopEntryName();

}  // namespace velmora
