#pragma once

#include <algorithm>
#include <cstdlib>

namespace velmora::test {

// How many rounds a test runs that kills, or lets calls fail at random: those of the sample, times
// the number in the environment variable VELMORA_SOAK.
inline int soaked(int rounds) {
    const char* factor = std::getenv("VELMORA_SOAK");
    return rounds * std::max(1, factor ? std::atoi(factor) : 1);
}

}  // namespace velmora::test
