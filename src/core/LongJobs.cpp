#include "core/LongJobs.h"

#include <utility>

namespace velmora {
namespace {

// Calls a function at the end of a block, however that is left.
template <typename Work>
class AtEnd {
  public:
    explicit AtEnd(Work work) : work_(std::move(work)) {}
    ~AtEnd() { work_(); }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;

  private:
    Work work_;
};

}  // namespace

bool LongJob::goOn() {
    jobs_.parts_.loop.yield();
    return !cancelled();
}

bool LongJob::cancelled() const {
    if (jobs_.closing())
        jobs_.cancel();
    return jobs_.cancelled_;
}

void LongJob::tell(const std::string& text) {
    jobs_.parts_.status.show(text);
}

bool LongJobs::refuses() const {
    if (running_)
        parts_.status.show("Velmora is still busy with a job. Try again when it is done.");
    return running_;
}

bool LongJobs::run(const std::function<void(LongJob&)>& work, CancelIcon* icon) {
    if (refuses())
        return false;
    running_ = true;
    icon_ = icon ? icon : &parts_.icon;
    beginAnew();
    const AtEnd end([this] {
        running_ = false;
        cancelled_ = false;
        onCancel_ = nullptr;
        icon_->showCancelIcon(false);
    });
    LongJob job(*this);
    work(job);
    return true;
}

void LongJobs::beginAnew() {
    cancelled_ = false;
    onCancel_ = nullptr;
    icon_->showCancelIcon(true);
}

void LongJobs::cancel() {
    if (!running_ || cancelled_)
        return;
    cancelled_ = true;
    if (const auto hook = std::exchange(onCancel_, nullptr))
        hook();
    icon_->showCancelIcon(false);
}

}  // namespace velmora
