#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/ByteSource.h"
#include "platform/Failure.h"

namespace velmora::test {

// Files that are only read, in memory.
class TextBytes {
  public:
    std::map<std::string, std::string> files;

    // Reading from this place of any file on throws.
    std::optional<std::uint64_t> failsFrom;

    // No more than so many bytes come at once, behind the first ones.
    std::size_t most = SIZE_MAX;

    [[nodiscard]] OpenByteSource opener() {
        return [this](const std::string& path) -> std::unique_ptr<ByteSource> {
            if (!files.contains(path))
                throw Failure("The file " + path + " can not be opened.");
            return std::make_unique<Source>(*this, files[path]);
        };
    }

  private:
    class Source final : public ByteSource {
      public:
        Source(const TextBytes& owner, const std::string& bytes) : owner_(owner), bytes_(bytes) {}

        [[nodiscard]] std::uint64_t size() const override { return bytes_.size(); }
        [[nodiscard]] std::size_t read(std::uint64_t offset,
                                       std::span<char> target) const override {
            if (owner_.failsFrom && offset >= *owner_.failsFrom)
                throw Failure("The file can not be read: Input/output error.");
            if (offset >= bytes_.size())
                return 0;
            const std::size_t held =
                offset == 0 ? std::max<std::size_t>(owner_.most, 4) : owner_.most;
            return bytes_.copy(target.data(), std::min(target.size(), held), offset);
        }

      private:
        const TextBytes& owner_;
        const std::string& bytes_;
    };
};

}  // namespace velmora::test
