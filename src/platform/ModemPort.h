#pragma once

#include <string_view>

namespace velmora {

// The serial line with the modem. Nothing is ever read from it. Every operation that does not work
// throws Failure; what was open before stays open then.
class ModemPort {
  public:
    // The status of a device that is not there.
    static constexpr int kDeviceUnavailable = 68;

    virtual ~ModemPort() = default;

    [[nodiscard]] virtual bool isOpen() const = 0;

    // Opens port `number`, 1 to 9, for this program alone. REQUIRES: !isOpen().
    virtual void open(int number) = 0;

    // Drops the line. Does nothing while the port is closed.
    virtual void close() = 0;

    // Puts the bytes on the line as they are; takes half a second at most. Fails while the port is
    // closed.
    virtual void send(std::string_view bytes) = 0;

    // A number that an operation may leave behind although it did not fail; 0 for none. It stays
    // until clearStatus().
    [[nodiscard]] virtual int status() const = 0;
    virtual void clearStatus() = 0;
};

}  // namespace velmora
