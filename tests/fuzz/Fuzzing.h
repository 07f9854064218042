#pragma once

#include <cstdint>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

#include "platform/Failure.h"

// What all fuzz targets share.
namespace velmora::fuzz {

// Ends the run, with the input that led here, unless `holds`.
inline void require(bool holds, std::string_view what) {
    if (holds)
        return;
    std::cerr << "does not hold: " << what << '\n';
    std::abort();
}

// Hands out an input in pieces.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}

    [[nodiscard]] bool empty() const { return rest_.empty(); }

    // 0 at the end.
    unsigned byte() {
        if (rest_.empty())
            return 0;
        const auto first = static_cast<unsigned char>(rest_[0]);
        rest_.remove_prefix(1);
        return first;
    }

    // 0 to `most`.
    unsigned upTo(unsigned most) { return most == 0 ? 0 : (byte() << 8U | byte()) % (most + 1); }

    // The bytes up to a line feed, which goes too, or to the end.
    std::string_view line() {
        const std::string_view text = rest_.substr(0, rest_.find('\n'));
        rest_.remove_prefix(text.size() + (text.size() < rest_.size() ? 1 : 0));
        return text;
    }

    [[nodiscard]] std::string_view rest() const { return rest_; }

  private:
    std::string_view rest_;
};

// Whether `work` ended without a Failure; nothing else may come out of it.
template <class Work>
bool succeeds(const Work& work) {
    try {
        work();
        return true;
    } catch (const Failure&) {
        return false;
    } catch (const std::exception& other) {
        std::cerr << "not a Failure: " << other.what() << '\n';
        std::abort();
    }
}

}  // namespace velmora::fuzz
