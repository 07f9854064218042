#include "platform/start/StartListener.h"

#include <sys/epoll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>
#include <utility>

namespace velmora {
namespace {

constexpr std::string_view kShow = "show ";
constexpr std::size_t kLongestLine = 4096;
constexpr std::size_t kMostCallers = 16;

bool isPlain(const std::string& token) {
    return token.size() < kLongestLine / 2 &&
           std::all_of(token.begin(), token.end(), [](char c) { return c > ' ' && c < '\x7f'; });
}

void watch(const FileDescriptor& events, const FileDescriptor& watched) {
    epoll_event wanted{};
    wanted.events = EPOLLIN;
    (void)epoll_ctl(events.number(), EPOLL_CTL_ADD, watched.number(), &wanted);
}

// Nothing for a line that is none of ours.
std::optional<Summons> summonsOf(const std::string& line) {
    if (!line.starts_with(kShow))
        return std::nullopt;
    return Summons{.activationToken = line.substr(kShow.size(), line.find('\n') - kShow.size())};
}

}  // namespace

std::string lineOf(const Summons& summons) {
    const std::string& token = summons.activationToken;
    return std::string(kShow) + (isPlain(token) ? token : "") + '\n';
}

StartListener::StartListener(LocalSocket socket, FileDescriptor listening)
    : socket_(std::move(socket)),
      listening_(std::make_unique<FileDescriptor>(std::move(listening))),
      events_(epoll_create1(EPOLL_CLOEXEC)) {
    watch(events_, *listening_);
}

// In this order: a socket is taken over by another start once nobody listens at it.
StartListener::~StartListener() {
    socket_.remove();
    listening_.reset();
}

bool StartListener::begin() {
    return events_.isOpen();
}

Polled::Wait StartListener::wait() const {
    return {.descriptor = events_.number(), .toRead = true, .toWrite = false, .atMost = {}};
}

bool StartListener::goOn() {
    acceptCallers();
    callers_.remove_if([this](Caller& caller) { return !hear(caller); });
    return true;
}

void StartListener::acceptCallers() {
    while (true) {
        FileDescriptor connection(
            accept4(listening_->number(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (!connection.isOpen())
            return;
        if (!isOfSameUser(connection))
            continue;
        if (callers_.size() == kMostCallers)
            callers_.pop_front();  // it has not said a word
        watch(events_, connection);
        callers_.push_back({std::move(connection)});
    }
}

// False when there is nothing more to hear.
bool StartListener::hear(Caller& caller) {
    std::array<char, 512> bytes{};
    ssize_t count = 0;
    while ((count = recv(caller.connection.number(), bytes.data(), bytes.size(), 0)) > 0) {
        caller.said.append(bytes.data(), static_cast<std::size_t>(count));
        if (caller.said.size() > kLongestLine)
            return false;
    }
    if (caller.said.find('\n') == std::string::npos)
        return count < 0 && (errno == EAGAIN || errno == EINTR);
    if (const auto summons = summonsOf(caller.said); summons && show_) {
        show_(*summons);
        const std::string_view shown = kShownLine;
        (void)send(caller.connection.number(), shown.data(), shown.size(), MSG_NOSIGNAL);
    }
    return false;
}

}  // namespace velmora
