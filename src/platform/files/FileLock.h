#pragma once

#include <chrono>

#include "platform/NativePath.h"
#include "platform/files/FileDescriptor.h"

namespace velmora {

enum class LockOutcome {
    Taken,
    InUse,    // another copy of the program held it for longer than the patience
    NoLocks,  // the file may not be written, or its file system has none
};

// Takes the advisory lock of an open file, which keeps other copies of the program from writing;
// it ends with letLockGo() or with the file.
[[nodiscard]] LockOutcome takeLock(const FileDescriptor& file, std::chrono::milliseconds patience);
void letLockGo(const FileDescriptor& file);

// The same lock on a file as it is now, whatever its name means later, for as long as this lives.
// Where there are none, none is held.
class FileLock {
  public:
    // Throws Failure when the file can not be opened, and StorageFailure (Obstacle::InUse) when it
    // is locked for longer than the patience.
    FileLock(const NativePath& path, std::chrono::milliseconds patience);

    // True as long as `path` means the file that was locked.
    [[nodiscard]] bool isOn(const NativePath& path) const;

  private:
    FileDescriptor file_;
};

}  // namespace velmora
