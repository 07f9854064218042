#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"
#include "platform/NativePath.h"

namespace velmora {

// Turns the paths of the program, code-page text with "\" or "/" between folders, into paths of
// this machine.
class NativePaths {
  public:
    // A path that begins with `programFolderText` gets `programFolderNative` in its place,
    // so that a program folder with characters outside the code page can be named. Both have no
    // separator at their end; both may be empty. `codePage` must outlive this object.
    explicit NativePaths(const CodePage& codePage, std::string programFolderText = {},
                         NativePath programFolderNative = {});

    // Each component is taken as spelt when there is such a name, else the first name in byte
    // order that differs only in case, else as spelt.
    [[nodiscard]] NativePath resolve(std::string_view path) const;

    // The names in `folder` equal to `name` (UTF-8) when case is ignored, in byte order.
    [[nodiscard]] std::vector<std::string> alike(const NativePath& folder,
                                                 std::string_view name) const;

  private:
    const CodePage& codePage_;
    std::string programFolderText_;
    NativePath programFolderNative_;
};

}  // namespace velmora
