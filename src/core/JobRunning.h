#pragma once

#include <memory>

#include "platform/StatusLine.h"

namespace velmora {

// Jobs in which events run, such as a long print, come one at a time: whoever could disturb one
// asks here first.
class JobRunning {
  public:
    // The job runs for as long as this lives.
    class Job {
      public:
        explicit Job(bool& running) : running_(running) { running_ = true; }
        ~Job() { running_ = false; }
        Job(const Job&) = delete;
        Job& operator=(const Job&) = delete;

      private:
        bool& running_;
    };

    // True while a job runs, which the status line then tells: the command that asked is not for
    // now.
    [[nodiscard]] bool refuses(StatusLine& status) const {
        if (running_)
            status.show("Velmora is still busy with a job. Try again when it is done.");
        return running_;
    }

    // REQUIRES: no job runs. This object must outlive the job.
    [[nodiscard]] std::unique_ptr<Job> begin() { return std::make_unique<Job>(running_); }

  private:
    bool running_ = false;
};

}  // namespace velmora
