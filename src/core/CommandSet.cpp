#include "core/CommandSet.h"

#include <utility>

namespace velmora {

void CommandSet::bind(CommandName name, std::function<void()> body) {
    bodies_.insert_or_assign(std::string(std::string_view(name)), std::move(body));
}

bool CommandSet::isBound(std::string_view name) const {
    return bodies_.find(name) != bodies_.end();
}

void CommandSet::run(std::string_view name) const {
    // A copy, as a command may end the program and with it this object.
    const auto body = bodies_.find(name)->second;
    body();
}

}  // namespace velmora
