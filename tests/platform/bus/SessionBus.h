#pragma once

#include <gtest/gtest.h>
#include <systemd/sd-bus.h>

#include <QProcess>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace velmora::test {

// A session bus of this process's own, which can start services. The environment names it as long
// as it lives.
class SessionBus {
  public:
    SessionBus() {
        folder_.write("bus.conf",
                      "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration "
                      "1.0//EN\" \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
                      "<busconfig><type>session</type><listen>unix:dir=" +
                          folder_.path() + "</listen><servicedir>" + folder_.path() +
                          "</servicedir><policy context=\"default\"><allow send_destination=\"*\" "
                          "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                          "</policy></busconfig>");
        daemon_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        daemon_.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
             QStringLiteral("--config-file=") + QString::fromStdString(folder_.file("bus.conf"))});
        while (!daemon_.canReadLine() && daemon_.waitForReadyRead(60000)) {
        }
        before_ = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("DBUS_SESSION_BUS_ADDRESS", daemon_.readLine().trimmed());
    }
    ~SessionBus() {
        qputenv("DBUS_SESSION_BUS_ADDRESS", before_);
        daemon_.terminate();
        daemon_.waitForFinished();
    }
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    // Has a service started with `command` when it is asked for.
    void canStart(const std::string& name, const std::string& command) const {
        folder_.write(name + ".service",
                      "[D-BUS Service]\nName=" + name + "\nExec=" + command + "\n");
    }
    [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }

  private:
    TemporaryFolder folder_;
    QProcess daemon_;
    QByteArray before_;
};

// A name on the session bus. It writes down what it is asked as "PATH INTERFACE.OPERATION" with the
// arguments behind, and takes or refuses it. Needs the event loop.
class BusName {
  public:
    explicit BusName(const char* name, bool takes = true) : takes_(takes) {
        sd_bus* bus = nullptr;
        EXPECT_GE(sd_bus_open_user(&bus), 0);
        bus_.reset(bus);
        EXPECT_GE(sd_bus_add_filter(bus, nullptr, &BusName::onMessage, this), 0);
        EXPECT_GE(sd_bus_request_name(bus, name, 0), 0);
        QObject::connect(&turn_, &QTimer::timeout, &turn_, [this] {
            while (sd_bus_process(bus_.get(), nullptr) > 0) {
            }
        });
        turn_.start(1);
    }

    std::vector<std::string> asked;

  private:
    static int onMessage(sd_bus_message* message, void* self, sd_bus_error*) {
        const char* member = sd_bus_message_get_member(message);
        if (sd_bus_message_is_method_call(message, nullptr, nullptr) == 0 || !member)
            return 0;
        auto& name = *static_cast<BusName*>(self);
        name.asked.push_back(std::string(sd_bus_message_get_path(message)) + " " +
                             sd_bus_message_get_interface(message) + "." + member +
                             argumentsOf(message));
        return name.takes_ ? sd_bus_reply_method_return(message, nullptr)
                           : sd_bus_reply_method_errorf(message, SD_BUS_ERROR_FAILED, "no");
    }
    static std::string argumentsOf(sd_bus_message* message) {
        std::string text;
        char type = 0;
        while (sd_bus_message_peek_type(message, &type, nullptr) > 0) {
            unsigned number = 0;
            if (sd_bus_message_read_basic(message, type, &number) <= 0)
                break;
            text += std::string(" ") + type + std::to_string(number);
        }
        return text;
    }

    struct Close {
        void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
    };
    bool takes_;
    std::unique_ptr<sd_bus, Close> bus_;
    QTimer turn_;
};

}  // namespace velmora::test
