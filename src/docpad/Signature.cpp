#include "docpad/Signature.h"

#include <cstdint>
#include <limits>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr std::uint64_t kLongest = 40000;  // bytes

}  // namespace

std::string Signature::load() {
    wasNotRead_ = true;
    try {
        if (!files_.exists(path_))
            files_.append(path_, "");
        if (const auto text = files_.readWhole(path_, kLongest)) {
            wasNotRead_ = false;
            return *text;
        }
        messages_.tell("File Exceeded Maximum Length.", "Signature file is too large.");
    } catch (const Failure& failure) {
        messages_.standardError(failure.what());
    }
    return {};
}

void Signature::keep(const std::string& text) {
    try {
        if (wasNotRead_ && files_.exists(path_)) {
            const auto large = files_.readWhole(path_, std::numeric_limits<std::int64_t>::max());
            if (large)
                files_.writeWhole(path_ + "~", *large);
        }
        files_.writeWhole(path_, text + "\r\n");
        wasNotRead_ = false;
    } catch (const Failure& failure) {
        messages_.standardError(failure.what());
    }
}

}  // namespace velmora
