#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/CodePage.h"

namespace velmora {

// An initialisation file: sections "[name]" and below them lines "key=value". Any line end ends a
// line, and the byte 26 ends the file. Names compare without regard to case, and blanks and tabs
// around them do not count; of several sections or keys of one name the first one counts. Lines
// that begin with ";" and lines without "=" are no keys. All text is as it stands in the file.
class ProfileFile {
  public:
    // `codePage` must outlive this object.
    ProfileFile(std::string text, const CodePage& codePage);

    ProfileFile(const ProfileFile&) = delete;
    ProfileFile& operator=(const ProfileFile&) = delete;

    // The value of a key, without the blanks and tabs around it and without one pair of equal
    // quotes around that, cut to `mostBytes`; `otherwise`, cut likewise, where there is no such
    // section or key. A key without a value has the empty one.
    [[nodiscard]] std::string value(std::string_view section, std::string_view key,
                                    std::string_view otherwise, std::size_t mostBytes) const;

    // The names of the keys of a section in their order, repeated ones repeated, as far as they
    // have room in `mostBytes` with one byte more for each; one that does not is left out, and so
    // are those behind it.
    [[nodiscard]] std::vector<std::string> keysOf(std::string_view section,
                                                  std::size_t mostBytes) const;

    // The text between the brackets of each line that begins with one, without its last byte,
    // whatever that is.
    [[nodiscard]] static std::vector<std::string> headerLines(std::string_view text);

  private:
    struct Key {
        std::string_view name;
        std::string_view value;
    };
    struct Section {
        std::vector<Key> keys;
        std::unordered_map<std::string, std::size_t> places;  // in `keys`, by upper-cased name
    };

    void take(std::string_view line, Section*& section);
    [[nodiscard]] const Section* find(std::string_view section) const;

    const CodePage& codePage_;
    std::string text_;
    std::unordered_map<std::string, Section> sections_;  // by upper-cased name
};

}  // namespace velmora
