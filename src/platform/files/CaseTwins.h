#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/files/NativePaths.h"

namespace velmora {

// Some files may be in a folder once only, whatever the case of their name: a book that was
// copied back from a backup as "datay.qel" lies beside "DATAY.QEL" then, and only one can be the
// book. The one whose status changed last is it, so a restore works; the other is put aside by
// renaming. Nothing is deleted.
class CaseTwins {
  public:
    // `names` are code-page text without separators, in any case. The references must outlive
    // this object.
    CaseTwins(const CodePage& codePage, const Clock& clock, std::vector<std::string> names);

    // For the path of a file with one of the names: the path of the regular file among its
    // twins whose status changed last. Nothing for other names and where no twin is there.
    [[nodiscard]] std::optional<NativePath> newest(const NativePath& path) const;

    // As newest(), and all other twins have been renamed: ".replaced-" and the date and time are
    // put behind their names. A twin that can not be renamed stays.
    std::optional<NativePath> settle(const NativePath& path) const;

  private:
    // Regular files, the newest first.
    [[nodiscard]] std::vector<NativePath> twins(const NativePath& path) const;

    const CodePage& codePage_;
    const Clock& clock_;
    std::vector<std::string> names_;
    NativePaths paths_;
};

}  // namespace velmora
