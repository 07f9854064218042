#include "core/MenuHelp.h"

#include <algorithm>

namespace velmora {
namespace {

// The first head of the bar has the number before the first item's, 0x000C.
constexpr std::uint32_t kFirstIdentifier = 0x000B;

}  // namespace

MenuHelp::MenuHelp() {
    // Every item, separator and head takes a number.
    std::uint32_t identifier = kFirstIdentifier;
    for (const MenuRow& row : menuTree()) {
        if (row.unnumbered)
            continue;
        if (!isSeparator(row) && !isHead(row))
            rows_.push_back({kMouseHighlight | identifier, row.name, row.help});
        ++identifier;
    }
    rows_.insert(rows_.end(), {
                                  {0xA0900000, {}, "System Menu"},
                                  {0xA083F120, {}, "Restores the window to its previous size."},
                                  {0xA080F010, {}, "Moves the window."},
                                  {0xA080F000, {}, "Changes the size of the window."},
                                  {0xA080F020, {}, "Minimizes the window."},
                                  {0xA080F060, {}, "Closes the window and ends the program."},
                                  {0x20900000, {}, "Switch to another application."},
                              });
}

std::optional<std::string> MenuHelp::MenuSelect(std::uint32_t word) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [word](const Row& row) { return row.word == word; });
    if (found == rows_.end())
        return std::nullopt;
    return std::string(found->text);
}

std::optional<std::string> MenuHelp::helpOf(const MenuRow& item) const {
    return item.unnumbered ? std::string(item.help) : MenuSelect(wordOf(item.name));
}

std::uint32_t MenuHelp::wordOf(std::string_view name) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [name](const Row& row) {
        return !row.name.empty() && row.name == name;
    });
    return found == rows_.end() ? 0 : found->word;
}

}  // namespace velmora
