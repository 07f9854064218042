#pragma once

#include <optional>
#include <string>

#include "platform/Messages.h"
#include "platform/ProgramStarter.h"

namespace velmora {

// Starts a program that the user names.
class RunProgram {
  public:
    // Both must outlive this object.
    RunProgram(ProgramStarter& starter, Messages& messages)
        : starter_(starter), messages_(messages) {}

    // A text that names a program by its path is that program, blanks included. Of any other the
    // first word is, and those behind it are its arguments; double quotes keep blanks together. A
    // failure shows nothing.
    void Run(const std::string& commandLine, bool minimised);

    // Asks for a program; nothing when the user calls it off.
    [[nodiscard]] std::optional<std::string> Browse();

  private:
    ProgramStarter& starter_;
    Messages& messages_;
};

}  // namespace velmora
