#include "faults/Operation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "platform/Failure.h"
#include "support/Soak.h"

namespace velmora::test {
namespace {

using Lasting = FaultyCalls::Lasting;

// The names that lie in a folder.
std::set<std::string> namesIn(const TemporaryFolder& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path()))
        names.insert(std::filesystem::relative(entry.path(), folder.path()).string());
    return names;
}

struct Ends {
    std::string before;
    std::string after;
    std::set<std::string> names;  // of the files that there are afterwards
};

Ends endsOf(const Operation& operation) {
    const TemporaryFolder folder;
    Ends ends;
    {
        const auto deed = operation.lay(folder);
        ends.before = deed->state();
        deed->perform();
        ends.after = deed->state();
    }
    ends.names = namesIn(folder);
    return ends;
}

int callsOf(const Operation& operation, Call call) {
    const TemporaryFolder folder;
    const auto deed = operation.lay(folder);
    const FaultyCalls counting(call, 0);
    deed->perform();
    return counting.count();
}

// Does it, and returns what was told of a failure.
std::optional<std::string> toldOf(Deed& deed) {
    try {
        deed.perform();
    } catch (const Failure& failure) {
        return failure.what();
    }
    return std::nullopt;
}

// What must hold after a run in which something failed.
void expectOldOrNew(Deed& deed, const Ends& ends, const std::optional<std::string>& told) {
    const std::string state = deed.state();
    EXPECT_TRUE(state == ends.before || state == ends.after) << "neither old nor new:\n" << state;
    EXPECT_TRUE(told || state == ends.after) << "failed, and nothing was told";
    if (state == ends.after)
        return;
    EXPECT_NO_THROW(deed.perform()) << "again, without a fault";
    EXPECT_EQ(deed.state(), ends.after) << "again, without a fault";
}

// One run in which a call fails.
void expectToBear(const Operation& operation, const Ends& ends, Call call, int nth,
                  Lasting lasting) {
    const TemporaryFolder folder;
    auto deed = operation.lay(folder);
    std::optional<std::string> told;
    {
        const FaultyCalls faults(call, nth, lasting);
        told = toldOf(*deed);
        EXPECT_TRUE(faults.failed()) << "the call was not made";
    }
    // Where more than one call fails, what was told to have failed may be done by the next who
    // looks.
    if (lasting == Lasting::Once)
        EXPECT_FALSE(told && deed->state() == ends.after) << "done, and yet told: " << *told;
    expectOldOrNew(*deed, ends, told);
    deed.reset();
    if (call != Call::Remove)
        EXPECT_EQ(namesIn(folder), ends.names);
}

// Runs in which calls of all kinds fail at random.
void expectToBearRandomFaults(const Operation& operation, const Ends& ends) {
    constexpr int kRuns = 8;
    const unsigned first = testing::UnitTest::GetInstance()->random_seed();
    for (unsigned run = 0; run < static_cast<unsigned>(soaked(kRuns)); ++run) {
        const TemporaryFolder folder;
        const auto deed = operation.lay(folder);
        const unsigned seed = first + run;
        const unsigned oneIn = 4U << run % 4;
        SCOPED_TRACE("seed " + std::to_string(seed) + ", one call in " + std::to_string(oneIn));
        std::optional<std::string> told;
        {
            const RandomlyFaultyCalls faults(seed, oneIn);
            told = toldOf(*deed);
        }
        expectOldOrNew(*deed, ends, told);
    }
}

}  // namespace

void expectToBearFaults(const Operation& operation) {
    const Ends ends = endsOf(operation);
    ASSERT_NE(ends.before, ends.after) << "it does nothing";
    for (const Call call : kAllCalls) {
        const int calls = callsOf(operation, call);
        EXPECT_TRUE(calls > 0 || operation.meets.count(call) == 0)
            << "no call to " << nameOf(call) << " was met";
        for (int nth = 1; nth <= calls; ++nth)
            for (const Lasting lasting : {Lasting::Once, Lasting::FromThenOn}) {
                if (lasting == Lasting::FromThenOn && operation.bears == Bears::One)
                    continue;
                SCOPED_TRACE(std::string(nameOf(call)) + ", call " + std::to_string(nth) + " of " +
                             std::to_string(calls) +
                             (lasting == Lasting::FromThenOn ? " and all behind it" : ""));
                expectToBear(operation, ends, call, nth, lasting);
            }
    }
    if (operation.bears == Bears::Any)
        expectToBearRandomFaults(operation, ends);
}

}  // namespace velmora::test
