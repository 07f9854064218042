#include "benches/Processes.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <stdexcept>

namespace velmora::bench {
namespace {

Milliseconds toMilliseconds(const timeval& time) {
    return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
}

}  // namespace

Run run(const std::string& program, const std::string& argument) {
    const auto began = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child < 0)
        throw std::runtime_error("no process can be started");
    if (child == 0) {
        ::execl(program.c_str(), program.c_str(), argument.empty() ? nullptr : argument.c_str(),
                static_cast<char*>(nullptr));
        ::_exit(127);
    }
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error(program + " did not end well");
    return {std::chrono::steady_clock::now() - began,
            toMilliseconds(usage.ru_utime) + toMilliseconds(usage.ru_stime)};
}

}  // namespace velmora::bench
