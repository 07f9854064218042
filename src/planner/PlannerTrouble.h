#pragma once

#include <string>

#include "platform/StorageFailure.h"

// What the user is told when the planner's file stands in the way. No box is shown for any of it.
namespace velmora {

// Ends a sentence that says what was not done: ": the disk is full."
[[nodiscard]] std::string becauseOf(Obstacle obstacle);

// What a day says whose rows can not be read.
[[nodiscard]] std::string dayCanNotBeRead(Obstacle obstacle);

}  // namespace velmora
