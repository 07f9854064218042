#pragma once

#include <optional>

#include "platform/ModemPort.h"
#include "platform/NativePath.h"
#include "platform/files/FileDescriptor.h"

namespace velmora {

// A serial device of this machine at 9600 bits a second, 8 data bits, no parity, one stop bit and
// no flow control; the bytes pass as they are. Port n is the n-th serial device, or the device that
// the environment variable VELMORA_COM<n> names. The port is taken for this program alone. Closing
// it takes DTR away, which ends a call. No operation blocks for longer than half a second.
class PosixModemPort final : public ModemPort {
  public:
    PosixModemPort() = default;
    ~PosixModemPort() override;

    [[nodiscard]] bool isOpen() const override { return device_.has_value(); }
    void open(int number) override;
    void close() override;
    void send(std::string_view bytes) override;

    // Everything that goes wrong is a Failure here, so nothing is left behind.
    [[nodiscard]] int status() const override { return 0; }
    void clearStatus() override {}

  private:
    NativePath path_;
    std::optional<FileDescriptor> device_;
};

}  // namespace velmora
