#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A book as the yardsticks read it: all bytes at once, without the program's own code.
namespace velmora::bench {

inline constexpr std::size_t kBareRecord = 1595;  // bytes

struct BareEntry {
    std::string key;  // the name in capitals
    std::string name;
    const char* record;
};

// Throws std::runtime_error when the book can not be read.
[[nodiscard]] std::vector<char> contentOfBook(const std::string& path);

// A field without the blanks and NULs around it.
[[nodiscard]] std::string_view bareField(const char* record, std::size_t offset, std::size_t width);

// All entries, sorted. `book` must outlive them.
[[nodiscard]] std::vector<BareEntry> sortedEntries(const std::vector<char>& book);

}  // namespace velmora::bench
