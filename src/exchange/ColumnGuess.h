#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "exchange/ImportQuestions.h"
#include "platform/CodePage.h"

namespace velmora {

// Tells by its name which column of a list most likely holds what a question asks for: our own
// export's columns by their places, others by the names that they usually have in English, German,
// French and Spanish.
class ColumnGuess {
  public:
    ColumnGuess(const std::vector<std::string>& columns, const CodePage& codePage);

    // Its place, from 0; nothing for none.
    [[nodiscard]] std::optional<std::size_t> columnFor(ImportField field) const;

    // False where there is one column for all three and none for each.
    [[nodiscard]] bool cityStateZipSeparate() const;

  private:
    bool isExport_;
    std::vector<std::string> names_;  // small letters and digits only
};

}  // namespace velmora
