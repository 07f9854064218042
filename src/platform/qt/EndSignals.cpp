#include "platform/qt/EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

namespace velmora {
namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// A handler can reach nothing but this, and do nothing but write.
std::atomic<int> writeEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void onSignal(int) {
    const int kept = errno;
    const char byte = 0;
    // A full pipe has told it already.
    [[maybe_unused]] const auto written = write(writeEnd, &byte, 1);
    errno = kept;
}

bool isIgnored(int signal) {
    struct sigaction now {};
    return sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

void setHandler(int signal, void (*handler)(int)) {
    struct sigaction wanted {};
    wanted.sa_handler = handler;
    wanted.sa_flags = SA_RESTART;
    sigemptyset(&wanted.sa_mask);
    sigaction(signal, &wanted, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> end) : end_(std::move(end)) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    readEnd_ = ends[0];
    writeEnd = ends[1];
    auto* notifier = new QSocketNotifier(readEnd_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { heard(); });
    for (const int signal : kSignals)
        if (!isIgnored(signal))
            setHandler(signal, onSignal);
}

EndSignals::~EndSignals() {
    if (readEnd_ < 0)
        return;
    for (const int signal : kSignals)
        if (!isIgnored(signal))
            setHandler(signal, SIG_DFL);
    close(writeEnd.exchange(-1));
    close(readEnd_);
}

void EndSignals::heard() {
    std::array<char, 16> bytes{};
    while (read(readEnd_, bytes.data(), bytes.size()) > 0) {
    }
    end_();
}

}  // namespace velmora
