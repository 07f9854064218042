#pragma once

#include <cstddef>
#include <string>

#include "platform/NativePath.h"
#include "platform/files/FileDescriptor.h"

namespace velmora {

// Compares the bytes of two files in pieces, between which other things can be done.
class FileComparison {
  public:
    // Throws Failure when one of them can not be opened.
    FileComparison(NativePath a, NativePath b);

    enum class Result { Unknown, Same, Different };

    // Compares a piece; Unknown while there is more to do. Throws Failure when one can not be read.
    [[nodiscard]] Result step();

  private:
    NativePath a_;
    NativePath b_;
    FileDescriptor first_;
    FileDescriptor second_;
    std::size_t offset_ = 0;
    std::string left_;
    std::string right_;
};

}  // namespace velmora
