#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/bus/MessageBus.h"
#include "platform/qt/PollPump.h"

namespace velmora::test {

// A notification service of the test's own on the session bus, and whoever else calls there.
class NoticeBoard {
  public:
    struct Notice {
        std::uint32_t id = 0, replaces = 0;
        std::string title, text;
        std::int32_t expires = -1;
    };

    NoticeBoard() {
        bus_.onConnection([this](sd_bus& connection) {
            connection_ = &connection;
            sd_bus_slot* slot = nullptr;
            if (sd_bus_add_object_vtable(&connection, &slot, kPath, kService,
                                         static_cast<const sd_bus_vtable*>(operations), this) >= 0)
                object_.reset(slot);
            (void)sd_bus_request_name_async(
                &connection, nullptr, kService, 0,
                [](sd_bus_message*, void* board, sd_bus_error*) {
                    static_cast<NoticeBoard*>(board)->ready = true;
                    return 0;
                },
                this);
        });
    }

    // A signal of a notice, as "u" and one more value.
    void tell(const char* signal, std::uint32_t id, const char* text) {
        (void)sd_bus_emit_signal(connection_, kPath, kService, signal, "us", id, text);
    }
    void tellClosed(std::uint32_t id) {
        (void)sd_bus_emit_signal(connection_, kPath, kService, "NotificationClosed", "uu", id, 2U);
    }
    [[nodiscard]] sd_bus* connection() const { return connection_; }

    bool ready = false;         // the service has its name
    std::uint32_t nextId = 1;   // of the next notice
    bool answers = true;        // what is asked while it is false is answered by letItAnswer()
    std::vector<Notice> shown;  // in the order in which they came
    std::vector<std::uint32_t> closed;

    void letItAnswer() {
        answers = true;
        for (auto& [call, id] : std::exchange(waiting_, {}))
            (void)sd_bus_reply_method_return(call.get(), "u", id);
    }

  private:
    static constexpr const char* kService = "org.freedesktop.Notifications";
    static constexpr const char* kPath = "/org/freedesktop/Notifications";

    struct DropCall {
        void operator()(sd_bus_message* call) const { sd_bus_message_unref(call); }
    };
    using Call = std::unique_ptr<sd_bus_message, DropCall>;

    static int onNotify(sd_bus_message* call, void* data, sd_bus_error*) {
        auto& board = *static_cast<NoticeBoard*>(data);
        const char *program = nullptr, *icon = nullptr, *title = nullptr, *text = nullptr;
        Notice notice;
        if (sd_bus_message_read(call, "susss", &program, &notice.replaces, &icon, &title, &text) <=
                0 ||
            sd_bus_message_skip(call, "asa{sv}") <= 0 ||
            sd_bus_message_read(call, "i", &notice.expires) <= 0)
            return -EINVAL;
        notice.id = notice.replaces ? notice.replaces : board.nextId++;
        notice.title = title;
        notice.text = text;
        board.shown.push_back(notice);
        if (board.answers)
            return sd_bus_reply_method_return(call, "u", notice.id);
        board.waiting_.emplace_back(Call(sd_bus_message_ref(call)), notice.id);
        return 1;
    }
    static int onClose(sd_bus_message* call, void* data, sd_bus_error*) {
        std::uint32_t id = 0;
        if (sd_bus_message_read(call, "u", &id) > 0)
            static_cast<NoticeBoard*>(data)->closed.push_back(id);
        return sd_bus_reply_method_return(call, "");
    }
    static inline const sd_bus_vtable operations[] = {
        SD_BUS_VTABLE_START(0),
        SD_BUS_METHOD("Notify", "susssasa{sv}i", "u", onNotify, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_METHOD("CloseNotification", "u", "", onClose, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_VTABLE_END};

    sd_bus* connection_ = nullptr;
    std::vector<std::pair<Call, std::uint32_t>> waiting_;
    MessageBus bus_{MessageBus::Kind::Session};
    BusSlot object_;
    PollPump pump_{bus_};
};

}  // namespace velmora::test
