#include "platform/start/StartMeeting.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>
#include <utility>

namespace velmora {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// Between looking for an earlier start and taking its place no other start may do the same.
class OneAtATime {
  public:
    OneAtATime(const MeetingPlace& place, Clock::time_point end)
        : folder_(openFile(place.folder, O_RDONLY | O_DIRECTORY)) {
        while (flock(folder_.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
               Clock::now() < end)
            (void)::poll(nullptr, 0, 2);
    }

  private:
    FileDescriptor folder_;  // the lock goes with it
};

enum class Answer { Shown, Ended, Silent };

Answer ask(const FileDescriptor& earlier, const Summons& summons, Clock::time_point end) {
    const std::string question = lineOf(summons);
    if (send(earlier.number(), question.data(), question.size(), MSG_NOSIGNAL) !=
        static_cast<ssize_t>(question.size()))
        return Answer::Ended;
    for (auto now = Clock::now(); now < end; now = Clock::now()) {
        pollfd waited{.fd = earlier.number(), .events = POLLIN, .revents = 0};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - now);
        if (::poll(&waited, 1, static_cast<int>(left.count())) <= 0)
            continue;
        std::array<char, 16> bytes{};
        const ssize_t count = recv(earlier.number(), bytes.data(), bytes.size(), 0);
        return count > 0 && std::string(bytes.data(), static_cast<std::size_t>(count)) == kShownLine
                   ? Answer::Shown
                   : Answer::Ended;
    }
    return Answer::Silent;
}

// Either is open, or neither where there can be no meeting.
struct Found {
    FileDescriptor earlier{-1};
    FileDescriptor listening{-1};
};

Found look(const MeetingPlace& place, const LocalSocket& socket, Clock::time_point end) {
    const OneAtATime lock(place, std::min(end, Clock::now() + 1s));
    FileDescriptor earlier = socket.connect();
    if (earlier.isOpen())
        return {.earlier = std::move(earlier)};
    if (errno != ECONNREFUSED && errno != ENOENT)
        return {};
    return {.listening = socket.listen()};
}

}  // namespace

Meeting meetOtherStarts(const MeetingPlace& place, const Summons& summons,
                        std::chrono::milliseconds patience) {
    const auto end = Clock::now() + patience;
    do {
        LocalSocket socket(place);
        Found found = look(place, socket, end);
        if (found.listening.isOpen())
            return {.handedOver = false,
                    .listener = std::make_unique<StartListener>(std::move(socket),
                                                                std::move(found.listening))};
        if (!found.earlier.isOpen() || !isOfSameUser(found.earlier))
            return {};
        const Answer answer = ask(found.earlier, summons, end);
        if (answer != Answer::Ended)
            return {.handedOver = answer == Answer::Shown, .listener = nullptr};
        // It was about to end: its place is free now, or another has it.
    } while (Clock::now() < end);
    return {};
}

}  // namespace velmora
