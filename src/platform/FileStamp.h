#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace velmora {

// Tells one file from another, under whatever name, and one state of a file from a later one.
struct FileStamp {
    std::uint64_t device = 0;  // with `node` the same for all names of one file
    std::uint64_t node = 0;
    std::uint64_t size = 0;    // in bytes
    std::int64_t changed = 0;  // when it was last written, in nanoseconds
};

// The stamp of the file that a path (code-page text) means at this moment; all 0 for none.
using StampOfFile = std::function<FileStamp(const std::string& path)>;

}  // namespace velmora
