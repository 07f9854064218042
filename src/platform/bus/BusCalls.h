#pragma once

#include <memory>
#include <vector>

#include "platform/CallService.h"
#include "platform/bus/MessageBus.h"

namespace velmora {

// What the telephone services of a message bus have in common.
class BusCalls : public CallService {
  public:
    void listen(std::function<void(const CallReport& report)> onReport) final;

  protected:
    explicit BusCalls(std::shared_ptr<MessageBus> bus) : bus_(std::move(bus)) {}

    // Asks for the signals of the service; those that came by an older connection come no more.
    virtual void join(sd_bus& connection) = 0;

    // Asks for the signals that `rule` describes; each calls `work` with it.
    template <typename Service, void (Service::*work)(sd_bus_message& signal)>
    void ask(sd_bus& connection, const char* rule) {
        sd_bus_slot* slot = nullptr;
        const auto call = [](sd_bus_message* signal, void* service, sd_bus_error*) noexcept {
            (static_cast<Service*>(service)->*work)(*signal);
            return 0;
        };
        if (sd_bus_add_match_async(&connection, &slot, rule, call, nullptr,
                                   static_cast<Service*>(this)) >= 0)
            signals_.emplace_back(slot);
    }

    void report(const CallReport& call) const { onReport_(call); }

  private:
    std::shared_ptr<MessageBus> bus_;
    std::function<void(const CallReport& report)> onReport_;
    std::vector<BusSlot> signals_;
};

// The modem service that tells the name of the caller, too (org.ofono, on the system bus).
class OfonoCalls final : public BusCalls {
  public:
    explicit OfonoCalls(std::shared_ptr<MessageBus> bus) : BusCalls(std::move(bus)) {}
    [[nodiscard]] std::string name() const override { return "ofono"; }

  protected:
    void join(sd_bus& connection) override;

  private:
    void onCallAdded(sd_bus_message& signal);
};

// The telephone that is paired with the desktop (KDE Connect, on the session bus).
class KdeConnectCalls final : public BusCalls {
  public:
    explicit KdeConnectCalls(std::shared_ptr<MessageBus> bus) : BusCalls(std::move(bus)) {}
    [[nodiscard]] std::string name() const override { return "kdeconnect"; }

  protected:
    void join(sd_bus& connection) override;

  private:
    void onCallReceived(sd_bus_message& signal);
};

}  // namespace velmora
