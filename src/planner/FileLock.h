#pragma once

#include <chrono>
#include <string>

namespace velmora {

// An advisory lock on a file as it is now, whatever its name means later. Where the file system
// has none, none is held.
class FileLock {
  public:
    // Throws Failure when the file can not be opened, or is locked for longer than the patience.
    FileLock(const std::string& path, std::chrono::milliseconds patience);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // True as long as `path` means the file that was locked.
    [[nodiscard]] bool isOn(const std::string& path) const;

  private:
    int descriptor_;
};

}  // namespace velmora
