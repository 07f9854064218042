#include "platform/Files.h"

#include "platform/Failure.h"

namespace velmora {

void RandomFile::shorten(std::uint64_t) {
    throw Failure("The file can not be shortened.");
}

}  // namespace velmora
