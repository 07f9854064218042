#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::access {

// A child process whose standard output is read, with nothing on its input and its complaints
// dropped. Its destructor ends it at once if it still runs.
class ChildProcess {
  public:
    // How its bytes are waited for.
    struct Waiting {
        std::chrono::milliseconds patience;    // so long, all waits together
        std::function<void()> meanwhile = {};  // called some twenty times a second
    };

    // `arguments` begins with the program. Throws Failure when it can not be started.
    ChildProcess(const std::vector<std::string>& arguments, Waiting waiting);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // The next bytes; empty at the end. The view lives until the next call. Throws Failure once
    // the patience has run out, and what is called meanwhile throws.
    [[nodiscard]] std::string_view read();

    // Waits for the end; true when it ended by itself with exit code 0.
    [[nodiscard]] bool endedWell();

  private:
    void end();

    [[nodiscard]] std::chrono::milliseconds nextWait() const;

    Waiting waiting_;
    std::chrono::steady_clock::duration waited_{};
    pid_t child_ = -1;
    int output_ = -1;
    std::string buffer_;
};

}  // namespace velmora::access
