#pragma once

#include <span>
#include <string_view>

#include "core/CommandNames.h"

namespace velmora {

// One line of the menu bar. `level` 0 is the bar itself. A separator has the caption "-"; a head
// opens the rows of the next level that follow it. Captions carry their access key behind "&".
struct MenuRow {
    int level;
    std::string_view name;
    std::string_view caption;
    std::string_view help;      // status line while the pointer rests on it
    std::string_view shortcut;  // "" for none
    bool checkable = false;
    // Added to the tree without a place in the numbering of the menu messages.
    bool unnumbered = false;
};

// The menu bar from left to right and top to bottom.
[[nodiscard]] std::span<const MenuRow> menuTree();

// True for a row that opens a menu of its own.
[[nodiscard]] bool isHead(const MenuRow& row);
[[nodiscard]] inline bool isSeparator(const MenuRow& row) {
    return row.caption == "-";
}

// One key of a toolbar.
struct ToolRow {
    std::string_view key;  // its name, and that of its icon unless `icon` says otherwise
    std::string_view toolTip;
    std::string_view hover;    // status line under the pointer; "" leaves the line as it is
    std::string_view command;  // the command that it runs: a menu row's name or a name of its own
    bool separatorBehind = false;
    std::string_view icon = {};
    std::string_view hoverElsewhere = {};  // instead of `hover` while the day view is not on show
};

// The status text of a key under the pointer; "" leaves the line as it is.
[[nodiscard]] std::string_view hoverText(const ToolRow& row, bool dayViewShown);

[[nodiscard]] std::span<const ToolRow> mainToolbar();
[[nodiscard]] std::span<const ToolRow> contactToolbar();
[[nodiscard]] std::span<const ToolRow> phonebookToolbar();

}  // namespace velmora
