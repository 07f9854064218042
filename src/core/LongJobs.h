#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "core/CancelIcon.h"
#include "platform/EventLoop.h"
#include "platform/StatusLine.h"

namespace velmora {

class LongJobs;

// What a job may do while it runs. It lives as long as the job's function runs.
class LongJob {
  public:
    // Lets all pending events run, then tells whether the job is still wanted. Cheap enough to call
    // for every record. The job returns as soon as it may when this says false.
    [[nodiscard]] bool goOn();

    // True from the moment the job is called off by the user, or the program is closing.
    [[nodiscard]] bool cancelled() const;

    // Progress, on the status line.
    void tell(const std::string& text);

  private:
    friend class LongJobs;
    explicit LongJob(LongJobs& jobs) : jobs_(jobs) {}

    LongJobs& jobs_;
};

// Whatever takes long and lets events run is a job: prints, searches, imports, exports. Jobs come
// one at a time. Whoever would start a second one, or disturb the one that runs, asks refuses()
// first:
//
//     if (jobs.refuses())
//         return;                              // the status line says why
//     jobs.run([&](LongJob& job) {
//         for (const Record& record : records) {
//             read(record);
//             if (!job.goOn())
//                 return;
//         }
//     });
//
// What prints goes through PrintJobs, which stands on this.
class LongJobs {
  public:
    // All must outlive the object.
    struct Parts {
        EventLoop& loop;
        StatusLine& status;
        CancelIcon& icon;
    };

    explicit LongJobs(const Parts& parts) : parts_(parts) {}
    LongJobs(const LongJobs&) = delete;
    LongJobs& operator=(const LongJobs&) = delete;

    [[nodiscard]] bool running() const { return running_; }

    // True while a job runs, which the status line then tells: the command that asked does nothing.
    [[nodiscard]] bool refuses() const;

    // Runs a job, with `icon` in view by which the user calls it off: `Image8` unless another is
    // given. False when there was one already, which the status line tells; `work` was not called
    // then. What `work` throws passes through. The icon is gone and the next job may come on every
    // way out.
    bool run(const std::function<void(LongJob&)>& work, CancelIcon* icon = nullptr);

    // The icon was clicked: the job under way is called off. Nothing without one.
    void cancel();

    // What happens at once when the job that runs now is called off, once. Forgotten when it ends.
    void onCancel(std::function<void()> hook) { onCancel_ = std::move(hook); }

    // For a job that stands on a job, as the second of two books does: wanted again, icon in view.
    void beginAnew();

    // Events run for this long, shorter when the program is closing.
    void waitFor(std::chrono::milliseconds duration) { parts_.loop.waitFor(duration); }

    [[nodiscard]] bool closing() const { return parts_.loop.closing(); }
    [[nodiscard]] StatusLine& status() const { return parts_.status; }

  private:
    friend class LongJob;

    Parts parts_;
    CancelIcon* icon_ = nullptr;  // of the job that runs
    bool running_ = false;
    bool cancelled_ = false;
    std::function<void()> onCancel_;
};

}  // namespace velmora
