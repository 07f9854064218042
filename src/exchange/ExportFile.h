#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Replacement.h"

namespace velmora {

// The text that an export writes, line by line, beside the file that it is to replace. Lines are
// gathered and written together.
class ExportFile {
  public:
    // Throws Failure when nothing can be written there.
    ExportFile(Replacements& replacements, const NativePath& target);

    // Takes a line without its end. Throws nothing.
    void add(std::string_view line);

    // Writes what was gathered. A line that can not be written is counted and passed over. Throws
    // nothing.
    void write();

    // All is written and on the disk, and the file takes its place; not so where not a single line
    // was written. `wait` is called again and again while the disk is waited for. Throws Failure;
    // the earlier file is then as it was.
    void finish(const std::function<void()>& wait);

    // Lines that could not be written, and why the first of them could not, in UTF-8.
    [[nodiscard]] std::uint64_t unwritten() const { return unwritten_; }
    [[nodiscard]] const std::string& why() const { return why_; }

  private:
    [[nodiscard]] bool append(std::string_view bytes);

    std::unique_ptr<Replacement> file_;
    std::string gathered_;
    std::vector<std::size_t> lines_;  // the sizes of those gathered
    std::uint64_t begun_ = 0;         // so far the disk was asked to begin with
    std::uint64_t unwritten_ = 0;
    std::string why_;
};

}  // namespace velmora
