#pragma once

#include <string>
#include <vector>

#include "benches/Samples.h"

namespace velmora::bench {

struct Run {
    Milliseconds wall{};
    Milliseconds processor{};  // user and system time
};

// Starts a program, with an argument unless that is empty, and waits for its end. Throws
// std::runtime_error when it does not end with 0.
[[nodiscard]] Run run(const std::string& program, const std::string& argument = {});

struct Runs {
    std::vector<Milliseconds> wall, processor;

    void add(const Run& run) {
        wall.push_back(run.wall);
        processor.push_back(run.processor);
    }
};

}  // namespace velmora::bench
