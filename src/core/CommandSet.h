#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "core/CommandNames.h"

namespace velmora {

// The commands of the program by name. A menu item and a toolbar key of the same name run the same
// command; a name that nothing is bound to is shown disabled.
class CommandSet {
  public:
    // Later bodies replace earlier ones.
    void bind(CommandName name, std::function<void()> body);

    [[nodiscard]] bool isBound(std::string_view name) const;

    // REQUIRES: isBound(name).
    void run(std::string_view name) const;

  private:
    std::map<std::string, std::function<void()>, std::less<>> bodies_;
};

}  // namespace velmora
