#include "platform/start/LocalSocket.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace velmora {
namespace {

constexpr int kWaiting = 16;  // starts that may wait for an answer at once

FileDescriptor newSocket() {
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

// Calls ::bind or ::connect with the address of `name` in an open folder.
template <typename Call>
bool at(const FileDescriptor& folder, const std::string& name, Call call) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = "/proc/self/fd/" + std::to_string(folder.number()) + "/" + name;
    if (!folder.isOpen() || path.size() >= sizeof address.sun_path) {
        errno = ENAMETOOLONG;
        return false;
    }
    std::memcpy(static_cast<char*>(address.sun_path), path.data(), path.size());
    return call(reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

}  // namespace

LocalSocket::LocalSocket(const MeetingPlace& place)
    : folder_(openFile(place.folder, O_RDONLY | O_DIRECTORY)), name_(place.name) {}

FileDescriptor LocalSocket::connect() const {
    FileDescriptor made = newSocket();
    const bool connected = at(folder_, name_, [&made](const sockaddr* address, socklen_t size) {
        return ::connect(made.number(), address, size);
    });
    return connected ? std::move(made) : FileDescriptor(-1);
}

FileDescriptor LocalSocket::listen() const {
    FileDescriptor made = newSocket();
    remove();
    const bool bound = at(folder_, name_, [&made](const sockaddr* address, socklen_t size) {
        return ::bind(made.number(), address, size);
    });
    return bound && ::listen(made.number(), kWaiting) == 0 ? std::move(made) : FileDescriptor(-1);
}

void LocalSocket::remove() const {
    if (folder_.isOpen())
        (void)unlinkat(folder_.number(), name_.c_str(), 0);
}

bool isOfSameUser(const FileDescriptor& connection) {
    ucred other{};
    socklen_t size = sizeof other;
    return getsockopt(connection.number(), SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 &&
           other.uid == geteuid();
}

}  // namespace velmora
