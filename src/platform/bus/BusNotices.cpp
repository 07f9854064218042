#include "platform/bus/BusNotices.h"

#include <string_view>
#include <utility>

namespace velmora {
namespace {

constexpr const char* kService = "org.freedesktop.Notifications";
constexpr const char* kPath = "/org/freedesktop/Notifications";
constexpr std::uint8_t kCritical = 2;  // the desktop does not take such a one away by itself
constexpr std::int32_t kNever = 0;     // when it does

// The texts of notices are read as markup.
std::string escaped(const std::string& text) {
    std::string marked;
    for (const char c : text) {
        if (c == '&')
            marked += "&amp;";
        else if (c == '<')
            marked += "&lt;";
        else if (c == '>')
            marked += "&gt;";
        else if (c != '\r')
            marked += c;
    }
    return marked;
}

}  // namespace

BusNotices::BusNotices(
    MessageBus& bus, std::string program,
    std::function<void(const std::string& subject, const std::string& token)> onClick)
    : program_(std::move(program)), onClick_(std::move(onClick)) {
    bus.onConnection([this](sd_bus& connection) { join(connection); });
    bus.onEnd([this] {
        connection_ = nullptr;
        forgetAtService();
    });
}

BusNotices::~BusNotices() {
    for (auto& [subject, notice] : notices_)
        close(notice);
}

void BusNotices::join(sd_bus& connection) {
    connection_ = &connection;
    signals_.clear();
    const auto listen = [&](const char* rule, sd_bus_message_handler_t call) {
        sd_bus_slot* slot = nullptr;
        if (sd_bus_add_match_async(&connection, &slot, rule, call, nullptr, this) >= 0)
            signals_.emplace_back(slot);
    };
    listen(
        "type='signal',sender='org.freedesktop.Notifications',"
        "interface='org.freedesktop.Notifications'",
        [](sd_bus_message* signal, void* notices, sd_bus_error*) noexcept {
            static_cast<BusNotices*>(notices)->onSignal(*signal);
            return 0;
        });
    listen(
        "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
        "member='NameOwnerChanged',arg0='org.freedesktop.Notifications'",
        [](sd_bus_message* signal, void* notices, sd_bus_error*) noexcept {
            static_cast<BusNotices*>(notices)->onOwner(*signal);
            return 0;
        });
    for (auto& [subject, notice] : notices_)
        if (notice.wanted)
            send(notice);
}

void BusNotices::show(const std::string& subject, const std::string& title,
                      const std::string& text) {
    Notice& notice = notices_[subject];
    notice.notices = this;
    notice.subject = subject;
    notice.title = title;
    notice.text = escaped(text);
    notice.wanted = true;
    if (notice.answer)
        notice.changed = true;  // it is sent once it is known which one it changes
    else
        send(notice);
}

void BusNotices::withdraw(const std::string& subject) {
    const auto found = notices_.find(subject);
    if (found == notices_.end())
        return;
    found->second.wanted = false;
    if (!found->second.answer)
        close(found->second);
}

void BusNotices::send(Notice& notice) {
    if (!connection_)
        return;
    notice.changed = false;
    const auto call = [](sd_bus_message* answer, void* data, sd_bus_error*) noexcept {
        auto& asked = *static_cast<Notice*>(data);
        asked.notices->onAnswer(asked, *answer);
        return 0;
    };
    sd_bus_slot* slot = nullptr;
    if (sd_bus_call_method_async(connection_, &slot, kService, kPath, kService, "Notify", call,
                                 &notice, "susssasa{sv}i", "Velmora", notice.id, program_.c_str(),
                                 notice.title.c_str(), notice.text.c_str(), 2, "default", "Show", 2,
                                 "urgency", "y", kCritical, "desktop-entry", "s", program_.c_str(),
                                 kNever) >= 0)
        notice.answer.reset(slot);
}

void BusNotices::onAnswer(Notice& notice, sd_bus_message& answer) {
    notice.answer.reset();
    std::uint32_t id = 0;
    if (sd_bus_message_is_method_error(&answer, nullptr) > 0 ||
        sd_bus_message_read_basic(&answer, SD_BUS_TYPE_UINT32, &id) <= 0)
        return;
    notice.id = id;
    if (!notice.wanted)
        close(notice);
    else if (notice.changed)
        send(notice);
}

void BusNotices::close(Notice& notice) {
    const std::uint32_t id = std::exchange(notice.id, 0);
    if (id != 0 && connection_)
        (void)sd_bus_call_method_async(connection_, nullptr, kService, kPath, kService,
                                       "CloseNotification", nullptr, nullptr, "u", id);
}

void BusNotices::onSignal(sd_bus_message& signal) {
    std::uint32_t id = 0;
    if (sd_bus_message_read_basic(&signal, SD_BUS_TYPE_UINT32, &id) <= 0)
        return;
    Notice* notice = noticeOf(id);
    if (!notice)
        return;
    const std::string_view member = sd_bus_message_get_member(&signal);
    const char* text = nullptr;
    if (member == "ActivationToken") {
        if (sd_bus_message_read_basic(&signal, SD_BUS_TYPE_STRING, &text) > 0)
            notice->token = text;
    } else if (member == "ActionInvoked") {
        onClick_(std::string(notice->subject), std::exchange(notice->token, {}));
    } else if (member == "NotificationClosed") {
        notice->id = 0;
        notice->wanted = false;
    }
}

// The numbers of a service that has ended mean others' notices at the next.
void BusNotices::onOwner(sd_bus_message& signal) {
    const char *name = nullptr, *before = nullptr, *now = nullptr;
    if (sd_bus_message_read(&signal, "sss", &name, &before, &now) <= 0)
        return;
    if (*before != '\0')
        forgetAtService();
    if (*now == '\0')
        return;
    for (auto& [subject, notice] : notices_)
        if (notice.wanted && !notice.answer && notice.id == 0)
            send(notice);
}

void BusNotices::forgetAtService() {
    for (auto& [subject, notice] : notices_) {
        notice.id = 0;
        notice.answer.reset();
    }
}

BusNotices::Notice* BusNotices::noticeOf(std::uint32_t id) {
    for (auto& [subject, notice] : notices_)
        if (id != 0 && notice.id == id)
            return &notice;
    return nullptr;
}

}  // namespace velmora
