#include "platform/Files.h"

#include "platform/Failure.h"

namespace velmora {

void RandomFile::shorten(std::uint64_t) {
    throw Failure("The file can not be shortened.");
}

void Files::writePrivately(const std::string& path, std::string_view bytes) {
    writeWhole(path, bytes);
}

}  // namespace velmora
