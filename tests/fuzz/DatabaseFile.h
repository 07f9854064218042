#pragma once

#include <string>

#include "fuzz/Fuzzing.h"
#include "platform/NativePath.h"

namespace velmora::fuzz {

// A file of a database in a folder of its own, whose bytes the input gives. Nothing of it is handed
// to the disk, which would take long.
class DatabaseFile {
  public:
    explicit DatabaseFile(const char* name);
    ~DatabaseFile();
    DatabaseFile(const DatabaseFile&) = delete;
    DatabaseFile& operator=(const DatabaseFile&) = delete;

    [[nodiscard]] NativePath path() const { return NativePath(path_); }

    // The bytes behind the first of the input, or, when that is odd, those of a sound file,
    // `sound`, with some replaced: by three bytes of the input each, two for the place, one for the
    // value.
    void lay(const std::string& sound, Input input) const;

    void write(std::string_view bytes) const;
    [[nodiscard]] std::string bytes() const;

  private:
    std::string folder_;
    std::string path_;
};

}  // namespace velmora::fuzz
