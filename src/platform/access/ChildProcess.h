#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::access {

// A child process whose standard output is read, with nothing on its input and its complaints
// dropped. Its destructor ends it at once if it still runs.
class ChildProcess {
  public:
    // `arguments` begins with the program. Throws Failure when it can not be started.
    ChildProcess(const std::vector<std::string>& arguments, std::chrono::milliseconds patience);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // The next bytes; empty at the end. The view lives until the next call. Throws Failure once
    // the patience, counted from the start, has run out.
    [[nodiscard]] std::string_view read();

    // Waits for the end; true when it ended by itself with exit code 0.
    [[nodiscard]] bool endedWell();

  private:
    void end();

    std::chrono::steady_clock::time_point deadline_;
    pid_t child_ = -1;
    int output_ = -1;
    std::string buffer_;
};

}  // namespace velmora::access
