#include "platform/serial/PosixModemPort.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/file.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <string>

#include "platform/Failure.h"

namespace velmora {
namespace {

// A modem on a pseudo terminal, and COM3 pointed at it.
class ModemOnPty : public ::testing::Test {
  protected:
    ModemOnPty() {
        std::array<char, 128> name{};
        EXPECT_EQ(::openpty(&modem, &line, name.data(), nullptr, nullptr), 0);
        path = name.data();
        // The line is closed here as it is in a machine that nobody uses it on.
        ::close(line);
        ::setenv("VELMORA_COM3", path.c_str(), 1);
    }
    ~ModemOnPty() override {
        hangUpModem();
        ::unsetenv("VELMORA_COM3");
    }

    // What has come in, after waiting for `size` bytes.
    std::string received(std::size_t size) {
        std::string bytes;
        pollfd ready{modem, POLLIN, 0};
        while (bytes.size() < size && ::poll(&ready, 1, 5000) > 0) {
            std::array<char, 256> block{};
            const ssize_t count = ::read(modem, block.data(), block.size());
            if (count <= 0)
                break;
            bytes.append(block.data(), static_cast<std::size_t>(count));
        }
        return bytes;
    }
    void hangUpModem() {
        if (modem >= 0)
            ::close(modem);
        modem = -1;
    }
    termios lineOf(int descriptor) {
        termios settings{};
        EXPECT_EQ(::tcgetattr(descriptor, &settings), 0);
        return settings;
    }

    int modem = -1;
    int line = -1;
    std::string path;
    PosixModemPort port;
};

TEST_F(ModemOnPty, TheBytesArriveAsTheyAre) {
    port.open(3);
    EXPECT_TRUE(port.isOpen());
    const std::string bytes("ATZ\rATDT9,5551212\r\n\x11\x13\x7F\xFF\0x", 26);
    port.send(bytes);
    EXPECT_EQ(received(bytes.size()), bytes);
    EXPECT_EQ(port.status(), 0);
}

TEST_F(ModemOnPty, TheLineHasNineThousandSixHundredBitsWithoutParityOrFlowControl) {
    port.open(3);
    const termios settings = lineOf(modem);
    EXPECT_EQ(::cfgetospeed(&settings), static_cast<speed_t>(B9600));
    EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_cflag & (PARENB | CSTOPB | CRTSCTS), 0U);
    EXPECT_NE(settings.c_cflag & HUPCL, 0U);
    EXPECT_NE(settings.c_cflag & CLOCAL, 0U);
    EXPECT_EQ(settings.c_oflag & OPOST, 0U);
    EXPECT_EQ(settings.c_lflag & (ECHO | ICANON | ISIG), 0U);
    EXPECT_EQ(settings.c_iflag & (ICRNL | IXON | IXOFF), 0U);
}

TEST_F(ModemOnPty, WhatWasSentBeforeTheLineClosesStillArrives) {
    port.open(3);
    port.send("ATH0");
    port.close();
    EXPECT_EQ(received(4), "ATH0");
}

TEST_F(ModemOnPty, ClosingDropsTheLine) {
    port.open(3);
    port.close();
    EXPECT_FALSE(port.isOpen());
    pollfd ready{modem, POLLIN, 0};
    EXPECT_EQ(::poll(&ready, 1, 5000), 1);
    EXPECT_NE(ready.revents & POLLHUP, 0);
    EXPECT_THROW(port.send("ATH0"), Failure);
    port.open(3);
    port.send("again");
    EXPECT_EQ(received(5), "again");
}

TEST_F(ModemOnPty, APortThatAnotherProgramHasIsRefused) {
    const int other = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(other, 0);
    ASSERT_EQ(::flock(other, LOCK_EX | LOCK_NB), 0);
    EXPECT_THROW(port.open(3), Failure);
    EXPECT_FALSE(port.isOpen());
    ::close(other);
    port.open(3);
    PosixModemPort second;
    EXPECT_THROW(second.open(3), Failure);
}

TEST_F(ModemOnPty, AModemThatVanishesFailsAtTheNextText) {
    port.open(3);
    port.send("ATZ\r");
    hangUpModem();
    EXPECT_THROW(port.send("ATDT1\r\n"), Failure);
    EXPECT_TRUE(port.isOpen());
    port.close();
}

TEST_F(ModemOnPty, AModemThatTakesNothingCostsHalfASecond) {
    port.open(3);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THROW(port.send(std::string(1 << 20, 'x')), Failure);
    port.close();
    // The limits are half a second each for the text and for closing.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

TEST_F(ModemOnPty, OnlyPortsOneToNineAreThere) {
    for (const int number : {0, -1, 10, 100})
        EXPECT_THROW(port.open(number), Failure) << number;
}

TEST_F(ModemOnPty, ADeviceThatIsMissingOrNoTerminalIsRefused) {
    ::setenv("VELMORA_COM3", "/nowhere/modem", 1);
    EXPECT_THROW(port.open(3), Failure);
    ::setenv("VELMORA_COM3", "/dev/null", 1);
    EXPECT_THROW(port.open(3), Failure);
    EXPECT_FALSE(port.isOpen());
}

}  // namespace
}  // namespace velmora
