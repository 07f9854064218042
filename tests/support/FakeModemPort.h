#pragma once

#include <string>
#include <vector>

#include "platform/Failure.h"
#include "platform/ModemPort.h"

namespace velmora::test {

// Records what is done to it: "open 3", "close", and what is sent, as it is.
class FakeModemPort final : public ModemPort {
  public:
    [[nodiscard]] bool isOpen() const override { return open_; }
    void open(int number) override {
        record("open " + std::to_string(number));
        if (number < 1 || failOpen)
            throw Failure("The port can not be opened.");
        open_ = true;
        status_ = statusAfterOpen;
    }
    void close() override {
        if (open_)
            record("close");
        open_ = false;
    }
    void send(std::string_view bytes) override {
        if (!open_)
            throw Failure("The port is closed.");
        if (sends_++ == failSend)
            throw Failure("The device is gone.");
        record(std::string(bytes));
        if (statusAfterSend != 0)
            status_ = statusAfterSend;
    }
    [[nodiscard]] int status() const override { return status_; }
    void clearStatus() override { status_ = 0; }

    std::vector<std::string> calls;
    bool failOpen = false;
    int failSend = -1;  // the number of the send that fails, from 0
    int statusAfterOpen = 0;
    int statusAfterSend = 0;

  private:
    void record(const std::string& call) { calls.push_back(call); }

    bool open_ = false;
    int status_ = 0;
    int sends_ = 0;
};

}  // namespace velmora::test
