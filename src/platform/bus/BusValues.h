#pragma once

#include <systemd/sd-bus.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace velmora {

// The named values of a message, as far as they are texts or whole numbers.
struct BusValues {
    std::map<std::string, std::string> texts;
    std::map<std::string, std::int64_t> numbers;

    // Empty, or nothing, where there is none of that name and kind.
    [[nodiscard]] std::string text(const std::string& name) const;
    [[nodiscard]] std::optional<std::int64_t> number(const std::string& name) const;
};

// Reads the array of named values ("a{sv}") that comes next in a message. What is no such array
// gives no values, or those before the fault.
[[nodiscard]] BusValues readBusValues(sd_bus_message& message);

}  // namespace velmora
