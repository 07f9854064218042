#pragma once

#include <functional>
#include <string>
#include <utility>

#include "planner/PlannerPlaces.h"
#include "planner/sqlite/AccessConversion.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/SystemPaths.h"

namespace velmora {

// Planners in files of this machine. The older kind is an Access database.
class PlannerFiles final : public PlannerPlaces {
  public:
    // Does something, and again for as long as it likes while that throws StorageFailure
    // (Obstacle::InUse); throws what was thrown last.
    using Patiently = std::function<void(const std::function<void()>& work)>;

    // All must outlive this object. `patiently` runs what may meet another copy's locks.
    PlannerFiles(AccessTableReader& reader, Messages& messages, const CodePage& codePage,
                 const SystemPaths& paths, Patiently patiently)
        : conversion_(reader),
          messages_(messages),
          codePage_(codePage),
          paths_(paths),
          patiently_(std::move(patiently)) {}

    void prepare(const std::string& path) override;
    [[nodiscard]] bool isThere(const std::string& path) const override;
    void copy(const std::string& from, const std::string& to) override;

  private:
    AccessConversion conversion_;
    Messages& messages_;
    const CodePage& codePage_;
    const SystemPaths& paths_;
    Patiently patiently_;
};

}  // namespace velmora
