#pragma once

#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/NativePath.h"
#include "platform/files/FileDescriptor.h"

namespace velmora {

// A regular file of a POSIX system. A write that fails leaves the file as it was.
class PosixRandomFile final : public RandomFile {
  public:
    // Creates the file when it is missing; opens it for reading only where the user may not
    // write. Throws Failure.
    explicit PosixRandomFile(NativePath path);

    [[nodiscard]] std::uint64_t size() const override;
    [[nodiscard]] std::size_t readAt(std::uint64_t offset, std::span<char> target) const override;
    void writeAt(std::uint64_t offset, std::span<const char> bytes) override;
    void writePieces(std::span<const FilePiece> pieces) override;
    [[nodiscard]] bool lock(std::chrono::milliseconds patience) override;
    void unlock() override;

  private:
    [[nodiscard]] FileDescriptor open();
    [[nodiscard]] Failure notWritten(int errorNumber) const;

    NativePath path_;
    int whyReadOnly_ = 0;  // 0 while the file may be written, else the system's reason
    FileDescriptor file_;
};

}  // namespace velmora
