#pragma once

#include <chrono>
#include <utility>
#include <vector>

namespace velmora::bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

// `samples` must not be empty.
[[nodiscard]] Milliseconds median(std::vector<Milliseconds> samples);

// What the work takes when nothing else wants the machine; `samples` must not be empty.
[[nodiscard]] Milliseconds quickest(const std::vector<Milliseconds>& samples);

// How long a call takes.
template <typename Call>
[[nodiscard]] Milliseconds timeOf(Call&& call) {
    const auto began = std::chrono::steady_clock::now();
    call();
    return std::chrono::steady_clock::now() - began;
}

// Medians of two calls that take turns, after one turn that does not count; so both meet the same
// state of the machine.
template <typename A, typename B>
[[nodiscard]] std::pair<Milliseconds, Milliseconds> medianTimes(int repetitions, A&& a, B&& b) {
    std::vector<Milliseconds> timesOfA, timesOfB;
    a();
    b();
    for (int i = 0; i < repetitions; ++i) {
        timesOfA.push_back(timeOf(a));
        timesOfB.push_back(timeOf(b));
    }
    return {median(std::move(timesOfA)), median(std::move(timesOfB))};
}

// The quickest of each, of two calls that tell themselves how long they took; else as above.
template <typename A, typename B>
[[nodiscard]] std::pair<Milliseconds, Milliseconds> quickestOwnTimes(int repetitions, A&& a,
                                                                     B&& b) {
    std::vector<Milliseconds> timesOfA, timesOfB;
    (void)a();
    (void)b();
    for (int i = 0; i < repetitions; ++i) {
        timesOfA.push_back(a());
        timesOfB.push_back(b());
    }
    return {quickest(timesOfA), quickest(timesOfB)};
}

}  // namespace velmora::bench
