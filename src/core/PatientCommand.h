#pragma once

#include <functional>

#include "platform/EventLoop.h"
#include "platform/StatusLine.h"
#include "platform/UserInput.h"

namespace velmora {

// Does what the user chose although another program uses what it needs: waits for it, a few seconds
// in all, in which time goes on and the windows are painted.
class PatientCommand {
  public:
    // All must outlive the object.
    PatientCommand(EventLoop& loop, StatusLine& status, UserInput& input)
        : loop_(loop), status_(status), input_(input) {}

    // Runs `work`, and again as long as it throws StorageFailure (Obstacle::InUse), which leaves
    // everything as it was. The wait stands on the status line, and the open windows take no input.
    // Throws what `work` threw last, once it threw anything else, the time is over or the program
    // is closing.
    void run(const std::function<void()>& work);

    // The same before there is a window: nothing else runs meanwhile.
    void runAlone(const std::function<void()>& work);

  private:
    [[nodiscard]] bool works(const std::function<void()>& work, bool mayTryAgain) const;

    EventLoop& loop_;
    StatusLine& status_;
    UserInput& input_;
};

}  // namespace velmora
