#pragma once

#include "platform/Replacement.h"
#include "platform/files/FileBeside.h"

namespace velmora {

// The file that replaces one of a POSIX system.
class PosixReplacement final : public Replacement {
  public:
    // As Replacements::beside().
    PosixReplacement(const NativePath& target, const NativePath& model);

    [[nodiscard]] std::uint64_t size() const override { return size_; }
    void append(std::string_view bytes) override;
    void startOver() override;
    void beginFlush() override;
    void flush() override;
    [[nodiscard]] std::size_t readAt(std::uint64_t offset, std::span<char> target) const override;
    void takePlace() override;

  private:
    void requireDone(int why) const;

    NativePath target_;
    FileBeside file_;
    std::uint64_t size_ = 0;
    bool isLonger_ = false;  // by bytes that were written in part and could not be cut off
};

class PosixReplacements final : public Replacements {
  public:
    [[nodiscard]] std::unique_ptr<Replacement> beside(const NativePath& target,
                                                      const NativePath& model = {}) override {
        return std::make_unique<PosixReplacement>(target, model);
    }
    [[nodiscard]] bool areOne(const NativePath& a, const NativePath& b) const override;
};

}  // namespace velmora
