#include "platform/serial/PosixModemPort.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>

#include "platform/Failure.h"

namespace velmora {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kFirstPort = 1;
constexpr int kLastPort = 9;
constexpr std::chrono::milliseconds kLongestWrite{500};
constexpr std::chrono::milliseconds kLongestClose{500};
constexpr int kLookAgain = 10;  // milliseconds between two looks at what is still to be sent

NativePath devicePath(int number) {
    if (number < kFirstPort || number > kLastPort)
        throw Failure("There is no serial port " + std::to_string(number) + ".");
    const std::string variable = "VELMORA_COM" + std::to_string(number);
    if (const char* named = std::getenv(variable.c_str()); named && *named != '\0')
        return NativePath(named);
    return NativePath("/dev/ttyS" + std::to_string(number - kFirstPort));
}

Failure deviceFailure(const std::string& what, const NativePath& path) {
    return systemFailure(what + " " + path.utf8(), errno);
}

void takeForThisProgram(const FileDescriptor& device, const NativePath& path) {
    if (::ioctl(device.number(), TIOCEXCL) != 0 || ::flock(device.number(), LOCK_EX | LOCK_NB) != 0)
        throw deviceFailure("Another program has", path);
}

void setUpLine(const FileDescriptor& device, const NativePath& path) {
    termios line{};
    if (::tcgetattr(device.number(), &line) != 0)
        throw deviceFailure("No modem can be at", path);
    ::cfmakeraw(&line);
    line.c_cflag |= CLOCAL | CREAD | HUPCL | CS8;
    line.c_cflag &= ~static_cast<tcflag_t>(CSTOPB | CRTSCTS);
    ::cfsetispeed(&line, B9600);
    ::cfsetospeed(&line, B9600);
    if (::tcsetattr(device.number(), TCSANOW, &line) != 0)
        throw deviceFailure("The modem's line can not be set up at", path);
}

// What the device has not sent yet is given half a second, then dropped. What has been sent is the
// modem's: on a pseudo terminal it could still be taken back.
void letOutputOut(int device) {
    const auto end = Clock::now() + kLongestClose;
    int waiting = 0;
    while (::ioctl(device, TIOCOUTQ, &waiting) == 0 && waiting > 0 && Clock::now() < end)
        ::poll(nullptr, 0, kLookAgain);
    ::tcflush(device, waiting > 0 ? TCIOFLUSH : TCIFLUSH);
}

}  // namespace

PosixModemPort::~PosixModemPort() {
    close();
}

void PosixModemPort::open(int number) {
    const NativePath path = devicePath(number);
    FileDescriptor device = openFile(path, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (!device.isOpen())
        throw deviceFailure("The modem can not be reached at", path);
    takeForThisProgram(device, path);
    setUpLine(device, path);
    path_ = path;
    device_.emplace(std::move(device));
}

void PosixModemPort::close() {
    if (!device_)
        return;
    letOutputOut(device_->number());
    ::ioctl(device_->number(), TIOCNXCL);
    device_.reset();
}

void PosixModemPort::send(std::string_view bytes) {
    if (!device_)
        throw Failure("The modem's line is closed.");
    const auto end = Clock::now() + kLongestWrite;
    while (!bytes.empty()) {
        const ssize_t written = ::write(device_->number(), bytes.data(), bytes.size());
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
            continue;
        }
        if (written < 0 && errno != EAGAIN && errno != EINTR)
            throw deviceFailure("The modem can not be written to at", path_);
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        if (left.count() <= 0)
            throw Failure("The modem at " + path_.utf8() + " takes nothing.");
        pollfd ready{device_->number(), POLLOUT, 0};
        ::poll(&ready, 1, static_cast<int>(left.count()));
    }
}

}  // namespace velmora
