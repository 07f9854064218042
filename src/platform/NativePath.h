#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace velmora {

// A path as this machine knows it: UTF-8 with "/" between folders. The paths of the program, which
// are code-page text, become one through SystemPaths only.
class NativePath {
  public:
    NativePath() = default;
    explicit NativePath(std::string utf8) : utf8_(std::move(utf8)) {}

    [[nodiscard]] const std::string& utf8() const { return utf8_; }
    [[nodiscard]] const char* c_str() const { return utf8_.c_str(); }

    // The two halves: "/a/b" is "/a/" and "b", "b" is "" and "b".
    [[nodiscard]] NativePath folder() const;
    [[nodiscard]] std::string name() const;

    // The two halves of the name, as of "qel" and ".mdb"; a name without a dot, or with one in
    // front only, has no extension.
    [[nodiscard]] std::string stem() const;
    [[nodiscard]] std::string extension() const;

    // Another name in the same folder.
    [[nodiscard]] NativePath sibling(std::string_view name) const;

    // The same path with `more` behind its name.
    [[nodiscard]] NativePath withEnding(std::string_view more) const;

    // `name` in the folder that this path names; none for the empty path.
    [[nodiscard]] NativePath operator/(std::string_view name) const;

    bool operator==(const NativePath&) const = default;

  private:
    std::string utf8_;
};

}  // namespace velmora
