#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/NativePath.h"

namespace velmora {

// How many copies of one file are kept that were made before imports.
inline constexpr std::size_t kKeptBeforeImports = 3;

// Where a file is copied to before an import writes to it: beside itself, under a name that tells
// the moment, as "DATAY.QEL.before-import-20260312-140501". `isTaken` tells whether there is a file
// of a name.
[[nodiscard]] NativePath nameBeforeImport(const NativePath& file, Moment moment,
                                          const std::function<bool(const NativePath&)>& isTaken);

// Those of the names in a folder that are copies of the file called `name` and older than the last
// ones that are kept.
[[nodiscard]] std::vector<std::string> outdatedBeforeImports(const std::string& name,
                                                             std::vector<std::string> names);

// Makes the copies that imports begin with.
class CopiesBeforeImport {
  public:
    virtual ~CopiesBeforeImport() = default;

    // Copies a book (kYellowPagesFile or kWhitePagesFile), as far as there is one. `goOn` lets
    // events run in between; false from it gives up, and nothing is left of the copy. The path of
    // the copy, in code-page text; empty when there was nothing to copy, or it was given up. Throws
    // Failure when no copy can be made.
    [[nodiscard]] virtual std::string copyBook(const std::string& bookFile,
                                               const std::function<bool()>& goOn) = 0;
};

}  // namespace velmora
