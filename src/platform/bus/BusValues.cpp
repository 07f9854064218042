#include "platform/bus/BusValues.h"

namespace velmora {
namespace {

// Reads the value of a variant of signature `type` that is open.
bool readInto(BusValues& values, const std::string& name, char type, sd_bus_message& message) {
    const char* text = nullptr;
    std::int32_t whole = 0;
    std::uint32_t natural = 0;
    switch (type) {
        case SD_BUS_TYPE_STRING:
            if (sd_bus_message_read_basic(&message, type, &text) <= 0)
                return false;
            values.texts[name] = text;
            return true;
        case SD_BUS_TYPE_INT32:
            if (sd_bus_message_read_basic(&message, type, &whole) <= 0)
                return false;
            values.numbers[name] = whole;
            return true;
        case SD_BUS_TYPE_UINT32:
            if (sd_bus_message_read_basic(&message, type, &natural) <= 0)
                return false;
            values.numbers[name] = natural;
            return true;
        default:
            return false;
    }
}

bool readVariant(BusValues& values, const std::string& name, sd_bus_message& message) {
    char kind = 0;
    const char* contents = nullptr;
    if (sd_bus_message_peek_type(&message, &kind, &contents) <= 0 || kind != SD_BUS_TYPE_VARIANT)
        return false;
    const std::string signature = contents;
    if (signature != "s" && signature != "i" && signature != "u")
        return sd_bus_message_skip(&message, "v") > 0;
    return sd_bus_message_enter_container(&message, SD_BUS_TYPE_VARIANT, contents) > 0 &&
           readInto(values, name, signature.front(), message) &&
           sd_bus_message_exit_container(&message) >= 0;
}

bool readEntry(BusValues& values, sd_bus_message& message) {
    const char* name = nullptr;
    return sd_bus_message_enter_container(&message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0 &&
           sd_bus_message_read_basic(&message, SD_BUS_TYPE_STRING, &name) > 0 &&
           readVariant(values, name, message) && sd_bus_message_exit_container(&message) >= 0;
}

}  // namespace

std::string BusValues::text(const std::string& name) const {
    const auto found = texts.find(name);
    return found == texts.end() ? std::string() : found->second;
}

std::optional<std::int64_t> BusValues::number(const std::string& name) const {
    const auto found = numbers.find(name);
    return found == numbers.end() ? std::nullopt : std::optional(found->second);
}

BusValues readBusValues(sd_bus_message& message) {
    BusValues values;
    if (sd_bus_message_enter_container(&message, SD_BUS_TYPE_ARRAY, "{sv}") > 0)
        while (readEntry(values, message)) {
        }
    return values;
}

}  // namespace velmora
