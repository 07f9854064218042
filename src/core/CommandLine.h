#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"
#include "platform/ProgramStarter.h"

namespace velmora {

// A program and what it is started with.
struct CommandLine {
    std::string program;
    std::vector<std::string> arguments;
};

// Splits at blanks; double quotes keep blanks together and are taken off. No other character means
// anything.
[[nodiscard]] std::vector<std::string> splitArguments(std::string_view text);

// Reads a setting that names a program: a path, which may hold blanks, or a command line. The
// program is what stands in quotes at the beginning; else the whole text if there is such a file;
// else the shortest beginning up to a blank that `starter` finds; else the whole text. What stands
// behind the program are arguments. An empty text gives an empty program.
[[nodiscard]] CommandLine readCommandLine(std::string_view setting, const Files& files,
                                          const ProgramStarter& starter);

}  // namespace velmora
