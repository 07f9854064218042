#include "telephony/Dialer.h"

#include "platform/Failure.h"
#include "platform/Text.h"
#include "telephony/DialSettings.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr auto kModemSetsUp = 3s;
constexpr int kLastHarmlessStatus = 8000;

}  // namespace

void Dialer::DialNumber(std::string& number) {
    parts_.loop.yield();
    if (!parts_.loop.closing()) {
        parts_.port.clearStatus();
        ignoringErrors([&] { dial(number); });
    }
    if (trimBlanks(number).empty())
        parts_.pane.showCallHangUp(false);
}

void Dialer::dial(std::string& number) {
    const DialSettings settings = DialSettings::read(parts_.settings);
    number = withoutAreaCode(number, settings.areaCode, parts_.codePage);
    if (number.empty()) {
        parts_.messages.tell(kApplicationTitle, "No Phone Number was Entered. Do try again.");
        parts_.pane.enableSend(true);
        return;
    }
    ModemPort& port = parts_.port;
    if (port.isOpen())
        port.close();
    port.open(settings.port);
    if (port.status() == ModemPort::kDeviceUnavailable)
        parts_.messages.tell("Hardware Error",
                             "Please select Preferences to set the appropriate COM port.");
    port.send(settings.initialisation + "\r");
    // No event may get at the port before the number has gone out.
    parts_.loop.freeze(kModemSetsUp);
    port.send(settings.command + settings.prefix + number + "\r\n");
    if (port.status() > kLastHarmlessStatus) {
        parts_.messages.warn("Error", "Unable to dial number. Error Number 0.");
        return;
    }
    if (settings.log)
        parts_.log.append(PhoneLog::Direction::Outgoing, number);
    parts_.status.show("Dialing: " + std::string(trimBlanks(number)) +
                       ".   When a RING is heard, pick up your phone and click Hangup.");
}

void Dialer::Send() {
    parts_.pane.enableHangUp(false);
    std::string number = parts_.pane.number();
    DialNumber(number);
    parts_.pane.enableHangUp(true);
    parts_.settings.save(keys::LastNumber, parts_.pane.number());
}

void Dialer::dialEntry(Field field) {
    std::string number(parts_.entry.read().text(field));
    parts_.pane.showCallHangUp(true);
    DialNumber(number);
}

void Dialer::hangUp() {
    endCall();
    parts_.pane.enableHangUp(false);
}

void Dialer::hangUpCall() {
    endCall();
    parts_.pane.showCallHangUp(false);
}

void Dialer::endCall() {
    ignoringErrors([this] { parts_.port.send("ATH0"); });
    ignoringErrors([this] { parts_.port.close(); });
    parts_.status.show("");
}

}  // namespace velmora
