#include "platform/files/FileComparison.h"

#include <fcntl.h>

#include <string_view>
#include <utility>

namespace velmora {
namespace {

constexpr std::size_t kPiece = 1 << 20;

// Fewer bytes than a piece only at the end.
std::string_view pieceAt(const FileDescriptor& file, const NativePath& path, std::size_t offset,
                         std::string& buffer) {
    buffer.resize(kPiece);
    return std::string_view(buffer).substr(
        0, readFully(file, path, offset, buffer.data(), buffer.size()));
}

}  // namespace

FileComparison::FileComparison(NativePath a, NativePath b)
    : a_(std::move(a)),
      b_(std::move(b)),
      first_(openOrFail(a_, O_RDONLY)),
      second_(openOrFail(b_, O_RDONLY)) {}

FileComparison::Result FileComparison::step() {
    const std::string_view left = pieceAt(first_, a_, offset_, left_);
    if (left != pieceAt(second_, b_, offset_, right_))
        return Result::Different;
    offset_ += kPiece;
    return left.size() < kPiece ? Result::Same : Result::Unknown;
}

}  // namespace velmora
