#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/Notices.h"
#include "platform/bus/MessageBus.h"

namespace velmora {

// The notices of the desktop (org.freedesktop.Notifications, on the session bus). What is shown
// before the bus is there, or while the service is gone, comes when it is.
class BusNotices final : public Notices {
  public:
    // `program` is the name of the desktop entry. `onClick` is called with the subject of a notice
    // that was clicked, and the token with which the desktop lets a window come to the front
    // (empty where it gave none); it lets no events run. To be made before the bus begins, and to
    // outlive it.
    BusNotices(MessageBus& bus, std::string program,
               std::function<void(const std::string& subject, const std::string& token)> onClick);

    ~BusNotices() override;
    BusNotices(const BusNotices&) = delete;
    BusNotices& operator=(const BusNotices&) = delete;

    void show(const std::string& subject, const std::string& title,
              const std::string& text) override;
    void withdraw(const std::string& subject) override;

  private:
    struct Notice {
        BusNotices* notices = nullptr;
        std::string subject, title, text;
        bool wanted = false;   // not withdrawn, not answered
        bool changed = false;  // since it was sent
        std::uint32_t id = 0;  // at the service; 0 where it has none
        std::string token{};   // that came for its click
        BusSlot answer{};      // to what was sent
    };

    void join(sd_bus& connection);
    void send(Notice& notice);
    void close(Notice& notice);
    void onAnswer(Notice& notice, sd_bus_message& answer);
    void onSignal(sd_bus_message& signal);
    void onOwner(sd_bus_message& signal);
    void forgetAtService();
    [[nodiscard]] Notice* noticeOf(std::uint32_t id);

    std::string program_;
    std::function<void(const std::string& subject, const std::string& token)> onClick_;
    sd_bus* connection_ = nullptr;  // the bus owns it
    std::map<std::string, Notice> notices_;
    std::vector<BusSlot> signals_;
};

}  // namespace velmora
