#pragma once

namespace velmora {

// The first argument that makes the program ask the print system and do nothing else.
inline constexpr const char* kPrintServiceArgument = "--velmora-ask-print-system";

// What main() does with that argument. A print system may never answer, and a job can not be taken
// back from a library that waits for one: so all questions are asked in a process that can be
// ended. What it writes to the standard output, in lines of UTF-8 whose parts are divided by tabs:
//
//   describe [PRINTER]     ready
//                          printer <name>      one line each
//                          default <name>      where the system has one
//                          sheet <name> <key> <title> <width> <height> <left> <top> <right>
//                                <bottom>      of PRINTER, or else of the default one: the paper
//                                              that it has by default, upright, and the margins
//                                              that it needs; points
//                          end
//   send PRINTER TITLE KEY LYING
//                          ready, then "more" for each piece that was read from the standard input,
//                          which is a PDF file, and handed on; in the end one of
//                          end                 the printer took the job
//                          gone                there is no printer of that name
//                          refused <code> <text>
//
// SIGTERM during `send` takes the job back. To be called before anything else is set up.
[[nodiscard]] int printServiceMain(int argc, char** argv);

// True when main() was started for that.
[[nodiscard]] bool isPrintServiceCall(int argc, char** argv);

}  // namespace velmora
