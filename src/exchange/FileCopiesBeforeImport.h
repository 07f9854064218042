#pragma once

#include "core/DataLocations.h"
#include "exchange/CopiesBeforeImport.h"
#include "phonebook/BookRecords.h"
#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/Replacement.h"
#include "platform/SystemPaths.h"

namespace velmora {

// Copies of the books beside them. Of each book the last ones are kept.
class FileCopiesBeforeImport final : public CopiesBeforeImport {
  public:
    // All must outlive this object.
    struct Parts {
        Books& books;
        Replacements& replacements;
        const DataLocations& locations;
        const SystemPaths& paths;
        const Clock& clock;
        const CodePage& codePage;
    };

    explicit FileCopiesBeforeImport(const Parts& parts) : parts_(parts) {}

    [[nodiscard]] std::string copyBook(const std::string& bookFile,
                                       const std::function<bool()>& goOn) override;

  private:
    Parts parts_;
};

// Removes the copies of a file that are older than the last ones that are kept. Never throws.
void clearOldCopiesBeforeImport(const NativePath& file);

}  // namespace velmora
