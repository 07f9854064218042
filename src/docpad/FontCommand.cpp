#include "docpad/FontCommand.h"

#include <array>
#include <charconv>

#include "platform/Text.h"

namespace velmora {
namespace {

constexpr double kSmallest = 4;
constexpr double kLargest = 14;
constexpr double kHugest = 1000;  // what a setting may ask for without making the text unusable

// The shortest decimal text that reads back as the same number, with "." in every locale.
std::string decimal(double number) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

}  // namespace

void FontCommand::applyStored() {
    FontChoice font = target_.font();
    const FontChoice before = font;
    if (const std::string name = settings_.Read(key_); !name.empty())
        font.name = name;
    if (const double size = readNumber(settings_.Read(key_ + "S")); size > 0 && size <= kHugest)
        font.size = size;
    if (const std::string colour = settings_.Read(key_ + "C");
        keeps_ == Keeps::NameSizeAndColour && !colour.empty())
        font.colour = readWhole(colour);
    if (!(font == before))
        target_.setFont(font);
}

void FontCommand::change() {
    const FontChoice now = target_.font();
    const FontChoice chosen = dialog_.choose(now, kSmallest, kLargest).value_or(now);
    target_.setFont(chosen);
    settings_.batch([&] {
        settings_.Save(key_, chosen.name);
        settings_.Save(key_ + "S", decimal(chosen.size));
        if (keeps_ == Keeps::NameSizeAndColour)
            settings_.Save(key_ + "C", std::to_string(chosen.colour));
    });
}

}  // namespace velmora
