#pragma once

#include <array>
#include <string_view>

namespace velmora::test {

// The calls of the system that work on files, by kind. Only those on files in the temporary folders
// of tests are counted.
enum class Call {
    Open,
    Read,
    Write,      // fails without having written
    HalfWrite,  // writes the first half of the bytes only
    Sync,
    Rename,  // and second names
    Cut,     // of a file's length, and taking room for a longer one
    Belong,  // giving a file to an owner, or modes
    Remove,
};

inline constexpr std::array kAllCalls{Call::Open,      Call::Read,   Call::Write,
                                      Call::HalfWrite, Call::Sync,   Call::Rename,
                                      Call::Cut,       Call::Belong, Call::Remove};

[[nodiscard]] std::string_view nameOf(Call call);

// While this lives, calls of one kind are counted, and the n-th of them fails, whoever makes it:
// Velmora or the engine of databases. One at a time, in programs that link FaultyCalls.cpp.
class FaultyCalls {
  public:
    enum class Lasting { Once, FromThenOn };

    // `nth` counts from 1; with 0 none fails.
    FaultyCalls(Call call, int nth, Lasting lasting = Lasting::Once);
    ~FaultyCalls();
    FaultyCalls(const FaultyCalls&) = delete;
    FaultyCalls& operator=(const FaultyCalls&) = delete;

    // How many there were so far.
    [[nodiscard]] int count() const;

    // Whether one was made to fail.
    [[nodiscard]] bool failed() const;
};

// While this lives, one call in `oneIn` fails, of any kind, as `seed` has it.
class RandomlyFaultyCalls {
  public:
    RandomlyFaultyCalls(unsigned seed, unsigned oneIn);
    ~RandomlyFaultyCalls();
    RandomlyFaultyCalls(const RandomlyFaultyCalls&) = delete;
    RandomlyFaultyCalls& operator=(const RandomlyFaultyCalls&) = delete;
};

// What a system gives for a reason, as errno, when a call fails.
[[nodiscard]] int reasonFor(Call call);

}  // namespace velmora::test
