#pragma once

#include <signal.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <functional>
#include <stdexcept>

namespace velmora::test {

// A copy of the test program that runs one function and ends with what it returns. It must not use
// assertions: only its exit code comes back. Killed and waited for by the destructor.
class ChildProcess {
  public:
    explicit ChildProcess(const std::function<int()>& work) : id_(fork()) {
        if (id_ < 0)
            throw std::runtime_error("no child process");
        if (id_ == 0) {
            int code = 99;
            try {
                code = work();
            } catch (...) {
                code = 98;
            }
            _exit(code);
        }
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() { killAndWait(); }

    void killAndWait() {
        if (id_ > 0) {
            kill(id_, SIGKILL);
            (void)wait();
        }
    }

    // The exit code, or the number of the signal that ended it as a negative number.
    [[nodiscard]] int wait() {
        int status = 0;
        waitpid(id_, &status, 0);
        id_ = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

  private:
    pid_t id_;
};

}  // namespace velmora::test
