#include "telephony/CallerModem.h"

#include <algorithm>
#include <chrono>

#include "core/SettingKeys.h"
#include "platform/Failure.h"
#include "platform/Text.h"
#include "telephony/DialSettings.h"

namespace velmora {
namespace {

constexpr bool kSwitchedOn = false;
constexpr const char* kNumberMark = "NMBR = ";
constexpr std::size_t kMarkLength = 7;
constexpr std::size_t kLineEnd = 2;  // CR LF, with which the modem ends its line
constexpr std::chrono::seconds kUntilTheAnswer{3};

}  // namespace

void CallerModem::onModem() {
    if (!kSwitchedOn)
        return;
    readCall();
}

void CallerModem::readCall() {
    const std::string came = parts_.port.read();
    if (came.empty())
        return;
    const std::string words(trimBlanks(came));
    const std::size_t mark = parts_.codePage.upper(words).find(kNumberMark);
    if (mark == std::string::npos)
        return;
    const std::string number = words.substr(mark + kMarkLength);
    parts_.callerId.onNumber(number.substr(0, number.size() - std::min(number.size(), kLineEnd)));
}

void CallerModem::InitCallerID() {
    parts_.timer.enable(false);
    const int port = DialSettings::read(parts_.settings).port;
    if (parts_.settings.read(keys::CallerId)) {
        parts_.timer.enable(true);
        if (!modemAgrees(port)) {
            parts_.messages.warn(kApplicationTitle,
                                 "Error Sending CallerID Initialization. Please disable Caller ID "
                                 "in the Preferences dialog box.");
            parts_.timer.enable(false);
        }
    }
    ignoringErrors([this] { parts_.port.close(); });
}

// Each step is tried, whatever came of the one before.
bool CallerModem::modemAgrees(int port) {
    ignoringErrors([&] { parts_.port.open(port); });
    ignoringErrors([&] { parts_.port.send("AT#CID=1\r\n"); });
    parts_.loop.freeze(kUntilTheAnswer);
    std::string answer;
    ignoringErrors([&] { answer = parts_.port.read(); });
    return parts_.codePage.upper(std::string(trimBlanks(answer))).find("OK") != std::string::npos;
}

}  // namespace velmora
