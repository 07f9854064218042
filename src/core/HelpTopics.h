#pragma once

#include <string_view>

#include "core/Panes.h"

namespace velmora {

// The page that the help begins with.
inline constexpr std::string_view kFirstHelpTopic = "welcome";

// The page about a window, by its object name; the first page for windows without one.
[[nodiscard]] std::string_view helpTopicOf(std::string_view windowName);

// The page about a pane of the main window.
[[nodiscard]] std::string_view helpTopicOf(Pane pane);

}  // namespace velmora
