#pragma once

namespace velmora::access {

// The first argument that makes the program a reader of Access databases and nothing else.
inline constexpr const char* kReaderArgument = "--velmora-read-access-tables";

// What main() does with that argument: "<program> <kReaderArgument> <path> [<table>]" writes the
// tables of the file, or the rows of one, to the standard output and ends the process. It limits
// its own time and memory first, and takes from itself what reading does not need once the file is
// open, since no code that reads such files is safe against damaged ones. To be called before
// anything else is set up.
[[noreturn]] int accessReaderMain(int argc, char** argv);

// True when main() was started to be that reader.
[[nodiscard]] bool isAccessReaderCall(int argc, char** argv);

}  // namespace velmora::access
