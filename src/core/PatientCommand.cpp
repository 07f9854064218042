#include "core/PatientCommand.h"

#include <chrono>

#include "platform/StorageFailure.h"

namespace velmora {
namespace {

// With the fifth of a second that a try takes itself, some five seconds.
constexpr std::chrono::milliseconds kBetweenTries(100);
constexpr int kTries = 17;

constexpr const char* kWaiting = "Waiting: another copy of Velmora is using the file.";

}  // namespace

void PatientCommand::run(const std::function<void()>& work) {
    if (works(work, true))
        return;
    status_.show(kWaiting);
    const UserInput::ShutOut waiting(input_);
    for (int tries = 2;; ++tries) {
        loop_.waitFor(kBetweenTries);
        if (works(work, tries < kTries && !loop_.closing()))
            break;
    }
    status_.show("");
}

void PatientCommand::runAlone(const std::function<void()>& work) {
    for (int tries = 1; !works(work, tries < kTries); ++tries)
        loop_.freeze(kBetweenTries);
}

bool PatientCommand::works(const std::function<void()>& work, bool mayTryAgain) const {
    try {
        work();
        return true;
    } catch (const StorageFailure& failure) {
        if (failure.obstacle() != Obstacle::InUse || !mayTryAgain)
            throw;
        return false;
    }
}

}  // namespace velmora
