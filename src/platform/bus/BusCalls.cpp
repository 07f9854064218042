#include "platform/bus/BusCalls.h"

#include <string_view>

#include "platform/bus/BusValues.h"

namespace velmora {

void BusCalls::listen(std::function<void(const CallReport& report)> onReport) {
    onReport_ = std::move(onReport);
    bus_->onConnection([this](sd_bus& connection) {
        signals_.clear();
        join(connection);
    });
}

void OfonoCalls::join(sd_bus& connection) {
    ask<OfonoCalls, &OfonoCalls::onCallAdded>(
        connection,
        "type='signal',sender='org.ofono',interface='org.ofono.VoiceCallManager',"
        "member='CallAdded'");
}

void OfonoCalls::onCallAdded(sd_bus_message& signal) {
    if (sd_bus_message_skip(&signal, "o") <= 0)
        return;
    const BusValues call = readBusValues(signal);
    const std::string state = call.text("State");
    if (state == "incoming" || state == "waiting")
        report({.name = call.text("Name"), .number = call.text("LineIdentification")});
}

void KdeConnectCalls::join(sd_bus& connection) {
    ask<KdeConnectCalls, &KdeConnectCalls::onCallReceived>(
        connection,
        "type='signal',interface='org.kde.kdeconnect.device.telephony',member='callReceived',"
        "path_namespace='/modules/kdeconnect/devices'");
}

void KdeConnectCalls::onCallReceived(sd_bus_message& signal) {
    const char *type = nullptr, *number = nullptr, *name = nullptr;
    const char* path = sd_bus_message_get_path(&signal);
    if (path && std::string_view(path).ends_with("/telephony") &&
        sd_bus_message_read(&signal, "sss", &type, &number, &name) > 0 &&
        std::string_view(type) == "callReceived")
        report({.name = name, .number = number});
}

}  // namespace velmora
