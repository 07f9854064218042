#pragma once

#include <string>

#include "planner/PlannerPlaces.h"
#include "planner/sqlite/AccessConversion.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/SystemPaths.h"

namespace velmora {

// Planners in files of this machine. The older kind is an Access database.
class PlannerFiles final : public PlannerPlaces {
  public:
    // All must outlive this object.
    PlannerFiles(AccessTableReader& reader, Messages& messages, const CodePage& codePage,
                 const SystemPaths& paths)
        : conversion_(reader), messages_(messages), codePage_(codePage), paths_(paths) {}

    void prepare(const std::string& path) override;
    [[nodiscard]] bool isThere(const std::string& path) const override;
    void copy(const std::string& from, const std::string& to) override;

  private:
    AccessConversion conversion_;
    Messages& messages_;
    const CodePage& codePage_;
    const SystemPaths& paths_;
};

}  // namespace velmora
