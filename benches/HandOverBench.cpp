// Compares a start that finds an earlier one, and hands over to it, with a bare program without a
// window that loads the same toolkit, connects and leaves. Of each, the quickest run counts; both
// wait for the same first start, which shows its window each time.
// bench_hand_over VELMORA BARE_CALL

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

#include "benches/Processes.h"
#include "benches/Report.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 30;
constexpr int kPatience = 60'000;  // milliseconds

// Velmora, until this goes.
class FirstStart {
  public:
    explicit FirstStart(const std::string& program) : process_(::fork()) {
        if (process_ == 0) {
            ::execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
            ::_exit(127);
        }
    }
    ~FirstStart() {
        ::kill(process_, SIGTERM);
        ::waitpid(process_, nullptr, 0);
    }
    FirstStart(const FirstStart&) = delete;
    FirstStart& operator=(const FirstStart&) = delete;

  private:
    pid_t process_;
};

std::optional<std::string> socketIn(const std::string& folder) {
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.is_socket() && entry.path().filename().string().starts_with("velmora-"))
            return entry.path().string();
    return std::nullopt;
}

std::string awaitSocket(const std::string& folder) {
    for (int waited = 0; waited < kPatience; waited += 10) {
        if (const auto found = socketIn(folder))
            return *found;
        ::usleep(10'000);
    }
    throw std::runtime_error("there is no first start");
}

int measure(const std::string& velmora, const std::string& bareCall) {
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    if (!folder)
        throw std::runtime_error("there is no run-time folder");
    const FirstStart first(velmora);
    const std::string socket = awaitSocket(folder);
    Runs ours, bare;
    (void)run(velmora);
    (void)run(bareCall, socket);
    for (int i = 0; i < kRepetitions; ++i) {
        ours.add(run(velmora));
        bare.add(run(bareCall, socket));
    }
    const Milliseconds wall = quickest(ours.wall), bareWall = quickest(bare.wall);
    Report report;
    report.figure("hand-over-wall", wall.count(), "ms");
    report.figure("hand-over-wall-bare", bareWall.count(), "ms");
    report.figure("hand-over-wall-to-bare", wall / bareWall, "times", 1.5);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) try {
    if (argc != 3) {
        std::cerr << "Usage: bench_hand_over VELMORA BARE_CALL\n";
        return 2;
    }
    return velmora::bench::measure(argv[1], argv[2]);
} catch (const std::exception& error) {
    std::cerr << "bench_hand_over: " << error.what() << '\n';
    return 1;
}
