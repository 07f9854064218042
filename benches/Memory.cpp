#include "benches/Memory.h"

#include <fstream>
#include <stdexcept>
#include <string>

namespace velmora::bench {
namespace {

// A line of the system's account of this process.
double kibibytesOf(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == name + ":") {
            double value = 0;
            if (status >> value)
                return value;
        }
    throw std::runtime_error("the system does not tell " + name);
}

}  // namespace

MemoryRise::MemoryRise() : before_(kibibytesOf("VmRSS")) {
    // Sets the highest point back to where memory is now.
    std::ofstream reset("/proc/self/clear_refs");
    reset << "5" << std::flush;
    if (!reset)
        throw std::runtime_error("the highest point of memory can not be set back");
}

double MemoryRise::mebibytes() const {
    return (kibibytesOf("VmHWM") - before_) / 1024;
}

}  // namespace velmora::bench
