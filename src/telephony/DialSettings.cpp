#include "telephony/DialSettings.h"

#include <array>
#include <optional>

#include "platform/Text.h"

namespace velmora {
namespace {

constexpr std::size_t kAreaCodeWithin = 4;

// In the order of keys::kDialModes.
constexpr std::array<const char*, keys::kDialModes.size()> kCommands{"ATDT", "ATDP"};

std::string commandFor(std::optional<std::size_t> mode) {
    return mode ? kCommands.at(*mode) : "";
}

// The last character of "COM3".
int portOf(const std::string& name) {
    return name.empty() ? 0 : readWhole(name.substr(name.size() - 1));
}

}  // namespace

DialSettings DialSettings::read(const SettingsStore& settings) {
    return {.port = portOf(settings.read(keys::ComPort)),
            .command = commandFor(settings.read(keys::ComType)),
            .prefix = settings.read(keys::ComPrefix),
            .initialisation = settings.read(keys::ComInit),
            .log = logsCalls(settings),
            .areaCode = settings.read(keys::LocalAreaCode)};
}

bool logsCalls(const SettingsStore& settings) {
    return settings.read(keys::LogPhone);
}

std::string withoutAreaCode(const std::string& number, const std::string& areaCode,
                            const CodePage& codePage) {
    const std::string beginning = codePage.upper(left(number, kAreaCodeWithin));
    if (findFrom(1, beginning, codePage.upper(areaCode)) == 0)
        return number;
    return std::string(middle(number, areaCode.size() + 1));
}

}  // namespace velmora
