#include "platform/access/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <utility>

#include "platform/Failure.h"

namespace velmora::access {

namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;

constexpr std::size_t kBlock = 1 << 16;
constexpr milliseconds kSlice(50);

class SpawnActions {
  public:
    SpawnActions() { posix_spawn_file_actions_init(&actions_); }
    ~SpawnActions() { posix_spawn_file_actions_destroy(&actions_); }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;

    [[nodiscard]] posix_spawn_file_actions_t* get() { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& arguments, Waiting waiting)
    : waiting_(std::move(waiting)), buffer_(kBlock, '\0') {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        throw systemFailure("No pipe can be made", errno);
    SpawnActions actions;
    posix_spawn_file_actions_addopen(actions.get(), STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(actions.get(), ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(actions.get(), STDERR_FILENO, "/dev/null", O_WRONLY, 0);

    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    const int error =
        posix_spawn(&child_, pointers[0], actions.get(), nullptr, pointers.data(), environ);
    ::close(ends[1]);
    output_ = ends[0];
    if (error != 0) {
        ::close(output_);
        throw systemFailure("\"" + arguments.front() + "\" can not be started", error);
    }
}

ChildProcess::~ChildProcess() {
    ::close(output_);
    end();
}

// Where something else is to be done meanwhile, a small part of it.
std::chrono::milliseconds ChildProcess::nextWait() const {
    const auto left = waiting_.patience - duration_cast<milliseconds>(waited_);
    return waiting_.meanwhile ? std::min(left, kSlice) : left;
}

std::string_view ChildProcess::read() {
    while (true) {
        const auto wait = nextWait();
        if (wait.count() <= 0)
            throw Failure("Reading takes too long.");
        const auto begin = std::chrono::steady_clock::now();
        pollfd waiting{output_, POLLIN, 0};
        const int ready = ::poll(&waiting, 1, static_cast<int>(wait.count()));
        const int why = errno;
        waited_ += std::chrono::steady_clock::now() - begin;
        if (ready == 0 && waiting_.meanwhile)
            waiting_.meanwhile();
        if (ready == 0 || (ready < 0 && why == EINTR))
            continue;
        const ssize_t got = ::read(output_, buffer_.data(), buffer_.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw systemFailure("The answer can not be read", errno);
        return std::string_view(buffer_).substr(0, static_cast<std::size_t>(got));
    }
}

bool ChildProcess::endedWell() {
    // It has closed its output, so all that is left to it is to go: but not for ever.
    int status = 0;
    const auto deadline = std::chrono::steady_clock::now() + waiting_.patience - waited_;
    while (std::chrono::steady_clock::now() < deadline) {
        const pid_t gone = ::waitpid(child_, &status, WNOHANG);
        if (gone == child_) {
            child_ = -1;
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        }
        if (gone < 0 && errno != EINTR)
            return false;
        (void)::poll(nullptr, 0, 1);
    }
    return false;
}

void ChildProcess::end() {
    if (child_ <= 0)
        return;
    ::kill(child_, SIGKILL);
    while (::waitpid(child_, nullptr, 0) < 0 && errno == EINTR) {
    }
    child_ = -1;
}

}  // namespace velmora::access
