#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string_view>

#include "platform/NativePath.h"
#include "platform/files/FileDescriptor.h"

namespace velmora {

// Modes of files that are made anew.
inline constexpr unsigned kForEverybody = 0666;  // less the user's mask
inline constexpr unsigned kForOwner = 0600;

// Where a path leads by links of the file itself, whether anything is there or not. Throws Failure.
[[nodiscard]] NativePath endOfLinks(const NativePath& path);

// A new file beside one that it is to replace, under a temporary name; gone again unless it was
// moved into place. What returns an int returns 0, or the system's reason.
class FileBeside {
  public:
    FileBeside(const NativePath& path, unsigned mode);
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside();

    // 0, or why it could not be made.
    [[nodiscard]] int why() const { return why_; }

    [[nodiscard]] const NativePath& name() const { return name_; }
    [[nodiscard]] const FileDescriptor& file() const { return file_; }

    // Writes bytes behind those that are there, and hands them all to the disk.
    [[nodiscard]] int fill(std::string_view bytes) const;

    // Cuts the file back; what is written next stands behind `size` bytes.
    [[nodiscard]] int cutTo(std::uint64_t size) const;

    // Takes owner, group and mode of another file.
    [[nodiscard]] int belongAs(const struct stat& status) const;

    // As far as it goes: the owner stays this user, and a group that can not be had gets no more
    // than everybody.
    void resemble(const struct stat& status) const;

    [[nodiscard]] int moveTo(const NativePath& path);

  private:
    [[nodiscard]] FileDescriptor openNew(unsigned mode) const;

    NativePath name_;
    FileDescriptor file_;
    int why_ = 0;
    bool remains_ = false;
};

}  // namespace velmora
