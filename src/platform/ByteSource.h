#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace velmora {

// A file that is only read, open for as long as this lives.
class ByteSource {
  public:
    virtual ~ByteSource() = default;

    // Length in bytes, as it is now. Throws Failure.
    [[nodiscard]] virtual std::uint64_t size() const = 0;

    // Reads up to target.size() bytes from `offset`; fewer only at the end. Returns their number.
    // Throws Failure.
    [[nodiscard]] virtual std::size_t read(std::uint64_t offset, std::span<char> target) const = 0;
};

// Opens the file of a path (code-page text), which is never made. Throws Failure.
using OpenByteSource = std::function<std::unique_ptr<ByteSource>(const std::string& path)>;

}  // namespace velmora
