#pragma once

#include "platform/ByteSource.h"
#include "platform/NativePath.h"
#include "platform/files/FileDescriptor.h"

namespace velmora {

// A regular file of this machine, opened for reading.
class FileBytes final : public ByteSource {
  public:
    // Throws Failure.
    explicit FileBytes(NativePath path);

    [[nodiscard]] std::uint64_t size() const override;
    [[nodiscard]] std::size_t read(std::uint64_t offset, std::span<char> target) const override;

  private:
    NativePath path_;
    FileDescriptor file_;
};

}  // namespace velmora
