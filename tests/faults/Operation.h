#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "faults/FaultyCalls.h"
#include "support/TemporaryFolder.h"

namespace velmora::test {

// Something that changes files in a folder, with all that it needs laid ready there.
class Deed {
  public:
    virtual ~Deed() = default;

    // Does it; another time, if need be. What the user is told of a failure is thrown as Failure.
    virtual void perform() = 0;

    // What lies in the folder, read anew.
    [[nodiscard]] virtual std::string state() const = 0;
};

// What an operation can bear. Whatever is put back by a second write can not bear everything.
enum class Bears {
    One,      // one call that fails
    Lasting,  // as One, or that calls of one kind go on failing
    Any,      // as Lasting, or that calls of all kinds fail as they like
};

// One deed, and what can be said of it.
struct Operation {
    std::string name;
    std::set<Call> meets;  // the kinds of calls that it makes, at the least
    std::function<std::unique_ptr<Deed>(const TemporaryFolder&)> lay;
    Bears bears;
};

inline void PrintTo(const Operation& operation, std::ostream* out) {
    *out << operation.name;
}

// A deed that `perform` does in a World: a class that is made on a folder, lays ready what is
// needed, and tells its state().
template <class World>
Operation operation(std::string name, std::set<Call> meets, std::function<void(World&)> perform,
                    Bears bears = Bears::Any) {
    class DeedIn final : public Deed {
      public:
        DeedIn(const TemporaryFolder& folder, std::function<void(World&)> work)
            : world_(folder), work_(std::move(work)) {}
        void perform() override { work_(world_); }
        [[nodiscard]] std::string state() const override { return world_.state(); }

      private:
        World world_;
        std::function<void(World&)> work_;
    };
    return {std::move(name), std::move(meets),
            [perform](const TemporaryFolder& folder) {
                return std::make_unique<DeedIn>(folder, perform);
            },
            bears};
}

// Lets each call of the system that the operation makes fail, one in each run, and expects that
// afterwards what lies there is the old or the new, that a failure is told, that nothing is there
// twice or left behind, and that the same works when nothing fails. Then the same with more that
// fails, as far as the operation bears it, and with calls that fail at random as often as
// VELMORA_SOAK says.
void expectToBearFaults(const Operation& operation);

}  // namespace velmora::test
