#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "platform/NativePath.h"

namespace velmora {

// A file that is written piece by piece under a temporary name beside the one that it is to
// replace, and takes its place in one step when it is whole. Until then the earlier file, if there
// is one, stays as it is, whatever happens. Gone with this object, and with the program, unless it
// took the place.
class Replacement {
  public:
    virtual ~Replacement() = default;

    [[nodiscard]] virtual std::uint64_t size() const = 0;

    // Puts bytes behind the end. Throws Failure; the size is then what it was.
    virtual void append(std::string_view bytes) = 0;

    // Empty again. Throws Failure.
    virtual void startOver() = 0;

    // Lets the disk begin with what was written, without waiting for it.
    virtual void beginFlush() {}

    // Hands all bytes to the disk; what is read afterwards comes from there, where the system
    // knows how. Throws Failure.
    virtual void flush() = 0;

    // Reads up to target.size() bytes from `offset`; fewer only at the end. Throws Failure.
    [[nodiscard]] virtual std::size_t readAt(std::uint64_t offset,
                                             std::span<char> target) const = 0;

    // Takes the place of the earlier file, if any; the last call. What is not flushed yet is not
    // flushed by it. Throws Failure; the earlier file is then still there.
    virtual void takePlace() = 0;
};

// Where files may be replaced.
class Replacements {
  public:
    virtual ~Replacements() = default;

    // Begins the replacement of the file `target`, there or not; links are followed. The new file
    // gets the permissions of the one that is there, else those of the file `model`, where that is
    // named and the file system has permissions. Throws Failure when nothing can be made beside it.
    [[nodiscard]] virtual std::unique_ptr<Replacement> beside(const NativePath& target,
                                                              const NativePath& model = {}) = 0;

    // True when both name one and the same file or folder, that is there.
    [[nodiscard]] virtual bool areOne(const NativePath& a, const NativePath& b) const = 0;
};

}  // namespace velmora
