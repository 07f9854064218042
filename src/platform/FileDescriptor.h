#pragma once

#include <cstddef>
#include <string>
#include <utility>

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
[[nodiscard]] FileDescriptor openFile(const std::string& nativePath, int flags,
                                      unsigned mode = 0666);

// Throws Failure, with `path` in its text, unless the open file is a regular one.
void requireRegularFile(const FileDescriptor& file, const std::string& path);

// Reads until `size` bytes are there or the file ends; returns their number. Throws Failure.
[[nodiscard]] std::size_t readFully(const FileDescriptor& file, const std::string& path,
                                    std::size_t offset, char* target, std::size_t size);

}  // namespace velmora
