#pragma once

#include <map>
#include <string>

#include "platform/bus/BusCalls.h"

namespace velmora {

// The commoner modem service (org.freedesktop.ModemManager1, on the system bus). It tells that
// there is a call, and has to be asked which; the number may come later still.
class ModemManagerCalls final : public BusCalls {
  public:
    explicit ModemManagerCalls(std::shared_ptr<MessageBus> bus) : BusCalls(std::move(bus)) {}
    [[nodiscard]] std::string name() const override { return "modemmanager"; }

  protected:
    void join(sd_bus& connection) override;

  private:
    // A call that has not been reported yet.
    struct Question {
        ModemManagerCalls& calls;
        std::string path;
        BusSlot answer{};
    };

    void onCallAdded(sd_bus_message& signal);
    void onCallDeleted(sd_bus_message& signal);
    void onCallChanged(sd_bus_message& signal);
    void askAbout(Question& question, sd_bus& connection);
    void onAnswer(const std::string& path, sd_bus_message& answer);

    std::map<std::string, Question> open_;  // by the path of the call
};

}  // namespace velmora
