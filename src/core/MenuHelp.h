#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/CommandTable.h"

namespace velmora {

// Status help of the menu. A highlight arrives as one word: flags in its high half, identifier in
// its low half. Only highlights by the mouse have the flags that are known here, so a keyboard
// highlight leaves the status line as it is.
class MenuHelp {
  public:
    static constexpr std::uint32_t kMouseHighlight = 0x80800000;

    MenuHelp();

    // The text for a word; nothing for a word that is not known.
    [[nodiscard]] std::optional<std::string> MenuSelect(std::uint32_t word) const;

    // The text for an item that the pointer highlights. Items without a number bring their own.
    [[nodiscard]] std::optional<std::string> helpOf(const MenuRow& item) const;

    // The word of a mouse highlight of the menu item `name`; 0 for items without a number.
    [[nodiscard]] std::uint32_t wordOf(std::string_view name) const;

  private:
    struct Row {
        std::uint32_t word;
        std::string_view name;
        std::string_view text;
    };
    std::vector<Row> rows_;
};

}  // namespace velmora
