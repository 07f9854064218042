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

}  // namespace velmora
