#pragma once

namespace velmora::access {

// How much of the world this process has lost.
struct Confinement {
    bool files = false;  // it can open none any more
    bool calls = false;  // it can make no call of the system but those for reading what is open,
                         // writing to what is open, and memory
};

// Takes from this process, for good, what reading an open file does not need: other files, the
// network, other processes. Where the kernel lacks a means, the other one is taken all the same;
// what comes back tells. What the process still wants to open has to be open before.
Confinement confineThisProcess();

}  // namespace velmora::access
