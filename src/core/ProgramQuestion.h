#pragma once

#include "platform/Messages.h"

namespace velmora {

// Asks for a program.
inline FileQuestion programQuestion() {
    return {.title = "Select Program File",
            .defaultExtension = ".exe",
            .filter = "Programs (*.exe)|*.exe|All Files (*.*)|*.*",
            .fileName = {},
            .programs = true};
}

}  // namespace velmora
