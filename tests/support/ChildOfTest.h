#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <exception>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace velmora::test {

// A copy of the test process that runs `work` and ends; gone with this object. `work` gets a
// function that reports a byte to the test.
class ChildOfTest {
  public:
    using Report = std::function<void(char)>;

    explicit ChildOfTest(const std::function<void(const Report&)>& work) {
        int ends[2];
        if (::pipe(ends) != 0)
            throw std::runtime_error("no pipe");
        child_ = ::fork();
        if (child_ < 0)
            throw std::runtime_error("no child");
        if (child_ == 0) {
            ::close(ends[0]);
            ::_exit(runAsChild(work, ends[1]));
        }
        ::close(ends[1]);
        reports_ = ends[0];
    }
    ~ChildOfTest() {
        kill();
        ::close(reports_);
    }
    ChildOfTest(const ChildOfTest&) = delete;
    ChildOfTest& operator=(const ChildOfTest&) = delete;

    // Waits for the next byte; nothing once the child is gone.
    [[nodiscard]] std::optional<char> nextReport() const {
        char byte = 0;
        ssize_t got = 0;
        while ((got = ::read(reports_, &byte, 1)) < 0 && errno == EINTR) {
        }
        return got == 1 ? std::optional(byte) : std::nullopt;
    }

    void kill() {
        if (child_ <= 0)
            return;
        ::kill(child_, SIGKILL);
        (void)wait();
    }

    // Waits for its end; true when it ended by itself without a failure.
    [[nodiscard]] bool wait() {
        int status = 0;
        while (::waitpid(child_, &status, 0) < 0 && errno == EINTR) {
        }
        child_ = -1;
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

  private:
    static int runAsChild(const std::function<void(const Report&)>& work, int end) {
        try {
            work([end](char byte) {
                if (::write(end, &byte, 1) != 1)
                    ::_exit(3);
            });
        } catch (const std::exception&) {
            return 1;
        }
        return 0;
    }

    pid_t child_ = -1;
    int reports_ = -1;
};

}  // namespace velmora::test
