#pragma once

#include <string>

namespace velmora::test {

// Where the tests lie, without a separator at its end.
[[nodiscard]] std::string testsFolder();

}  // namespace velmora::test
