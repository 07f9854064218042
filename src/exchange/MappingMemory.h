#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/SettingsStore.h"
#include "exchange/ImportQuestions.h"

namespace velmora {

// Remembers which columns were taken for what, for the next list with the same columns. The last
// few lists are remembered.
class MappingMemory {
  public:
    // `settings` must outlive this object.
    explicit MappingMemory(SettingsStore& settings) : settings_(settings) {}

    [[nodiscard]] std::optional<ImportMapping> of(const std::vector<std::string>& columns) const;

    // Never fails: what can not be stored is not remembered.
    void remember(const std::vector<std::string>& columns, const ImportMapping& mapping);

  private:
    SettingsStore& settings_;
};

}  // namespace velmora
