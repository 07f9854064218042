#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"

namespace velmora {

// Turns the paths of the program, code-page text with "\" or "/" between folders, into paths of
// this machine in UTF-8.
class NativePaths {
  public:
    // A path that begins with `programFolderText` gets `programFolderNative` (UTF-8) in its place,
    // so that a program folder with characters outside the code page can be named. Both have no
    // separator at their end; both may be empty. `codePage` must outlive this object.
    explicit NativePaths(const CodePage& codePage, std::string programFolderText = {},
                         std::string programFolderNative = {});

    // Each component is taken as spelt when there is such a name, else the first name in byte
    // order that differs only in case, else as spelt.
    [[nodiscard]] std::string resolve(std::string_view path) const;

    // The names in `nativeFolder` equal to `name` (UTF-8) when case is ignored, in byte order.
    [[nodiscard]] std::vector<std::string> alike(const std::string& nativeFolder,
                                                 std::string_view name) const;

  private:
    const CodePage& codePage_;
    std::string programFolderText_;
    std::string programFolderNative_;
};

// The two halves of a native path: "/a/b" is "/a/" and "b", "b" is "" and "b".
struct NativePathParts {
    std::string folder;
    std::string name;
};
[[nodiscard]] NativePathParts splitNativePath(const std::string& path);

}  // namespace velmora
