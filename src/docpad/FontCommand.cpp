#include "docpad/FontCommand.h"

#include <array>
#include <charconv>

namespace velmora {
namespace {

constexpr double kSmallest = 4;
constexpr double kLargest = 14;

// The shortest decimal text that reads back as the same number, with "." in every locale.
std::string decimal(double number) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

}  // namespace

void FontCommand::change() {
    const ControlFont now = target_.font();
    const ControlFont chosen = dialog_.choose(now, kSmallest, kLargest).value_or(now);
    if (loop_.closing())
        return;
    target_.setFont(chosen);
    settings_.batch([&] {
        settings_.save(key_.face, chosen.name);
        settings_.save(key_.size, decimal(chosen.size));
        if (keeps_ == Keeps::NameSizeAndColour)
            settings_.save(key_.colour, std::to_string(chosen.colour));
    });
}

}  // namespace velmora
