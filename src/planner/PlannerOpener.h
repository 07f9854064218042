#pragma once

#include <string>

#include "planner/AccessConversion.h"
#include "planner/AppointmentStore.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/SystemPaths.h"

namespace velmora {

// Opens planner databases for the stores that read them. An Access database found in the place is
// converted first, and the user told; one that can not be converted stays as it is, the user is
// told why, and the store has no rows.
class PlannerOpener {
  public:
    PlannerOpener(AccessTableReader& reader, Messages& messages, const CodePage& codePage,
                  const SystemPaths& paths);

    // `path` is code-page text. Never throws.
    void Open(AppointmentStore& store, const std::string& path);

    // Only converts, where there is something to convert. Never throws.
    void Prepare(const std::string& path);

    [[nodiscard]] NativePath nativePath(const std::string& path) const {
        return paths_.nativePath(path);
    }

  private:
    AccessConversion conversion_;
    Messages& messages_;
    const CodePage& codePage_;
    const SystemPaths& paths_;
};

}  // namespace velmora
