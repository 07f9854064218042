#pragma once

#include "app/World.h"
#include "core/CancelIcon.h"
#include "core/LongJobs.h"
#include "core/PrintJobs.h"
#include "core/forms/Calendar.h"

namespace velmora {

// `Image8` on the rail.
class RailCancelIcon final : public CancelIcon {
  public:
    explicit RailCancelIcon(Calendar& calendar) : calendar_(calendar) {}

    void showCancelIcon(bool shown) override;

  private:
    Calendar& calendar_;
};

// The one place where long jobs run, and where everything prints: connects both with the status
// line and `Image8`.
class JobRoom {
  public:
    // Both must outlive the room.
    JobRoom(World& world, Calendar& calendar);

    [[nodiscard]] LongJobs& jobs() { return jobs_; }
    [[nodiscard]] PrintJobs& printing() { return printing_; }

  private:
    RailCancelIcon icon_;
    LongJobs jobs_;
    PrintJobs printing_;
    QObject connections_;  // dies first, so that no click finds half a room
};

}  // namespace velmora
