#include "telephony/DialSettings.h"

#include "platform/Text.h"

namespace velmora {
namespace {

constexpr std::size_t kAreaCodeWithin = 4;

std::string trimmed(const SettingsStore& settings, const char* key) {
    return std::string(trimBlanks(settings.Read(key)));
}

// By its exact letters.
std::string commandFor(const std::string& mode) {
    if (mode == "Tone" || mode.empty())
        return "ATDT";
    return mode == "Pulse" ? "ATDP" : "";
}

// The last character of "COM3".
int portOf(const std::string& name) {
    return name.empty() ? 0 : readWhole(name.substr(name.size() - 1));
}

}  // namespace

DialSettings DialSettings::read(const SettingsStore& settings) {
    return {.port = portOf(trimmed(settings, "ComPort")),
            .command = commandFor(settings.Read("ComType")),
            .prefix = settings.Read("ComPrefix"),
            .initialisation = trimmed(settings, "ComInit"),
            .log = logsCalls(settings),
            .areaCode = trimmed(settings, "LocalAreaCode")};
}

bool logsCalls(const SettingsStore& settings) {
    return readNumber(settings.Read("LogPhone")) == 1;
}

std::string withoutAreaCode(const std::string& number, const std::string& areaCode,
                            const CodePage& codePage) {
    const std::string beginning = codePage.upper(left(number, kAreaCodeWithin));
    if (findFrom(1, beginning, codePage.upper(areaCode)) == 0)
        return number;
    return std::string(middle(number, areaCode.size() + 1));
}

}  // namespace velmora
