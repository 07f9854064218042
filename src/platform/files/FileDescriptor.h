#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/NativePath.h"

namespace velmora {

// An open file of the system, closed by its destructor.
class FileDescriptor {
  public:
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    ~FileDescriptor();

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }

  private:
    int number_;
};

// open(), tried again when a signal cut it short. Never waits for the other end of a pipe. Not
// open, with errno set, on failure.
[[nodiscard]] FileDescriptor openFile(const NativePath& path, int flags, unsigned mode = 0666);

// As openFile(), but throws Failure.
[[nodiscard]] FileDescriptor openOrFail(const NativePath& path, int flags, unsigned mode = 0666);

// Throws Failure, with `path` in its text, unless the open file is a regular one.
void requireRegularFile(const FileDescriptor& file, const NativePath& path);

// Reads until `size` bytes are there or the file ends; returns their number. Throws Failure.
[[nodiscard]] std::size_t readFully(const FileDescriptor& file, const NativePath& path,
                                    std::size_t offset, char* target, std::size_t size);

// All bytes of the file, or nothing when they are more than `limit`. Throws Failure.
[[nodiscard]] std::optional<std::string> readToEnd(const FileDescriptor& file,
                                                   const NativePath& path,
                                                   std::uint64_t limit = UINT64_MAX);

// These return 0, or the system's reason.

// Writes all bytes where the file stands.
[[nodiscard]] int writeFully(const FileDescriptor& file, std::string_view bytes);

// Hands the bytes of the file to the disk; where a file system has nothing to flush, nothing is
// to be done.
[[nodiscard]] int flushBytes(const FileDescriptor& file);

}  // namespace velmora
