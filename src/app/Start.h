#pragma once

namespace velmora {

// Runs Velmora from the first line to the last. Returns the program's exit code.
int runVelmora(int argc, char** argv);

}  // namespace velmora
