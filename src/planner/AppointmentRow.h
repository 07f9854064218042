#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace velmora {

// The columns of the table of appointments, in the order in which they lie in it.
enum class Column { TagVariant, Date, BeginTime, EndTime, Desc, StyleSet };

inline constexpr std::size_t kColumnCount = 6;

inline constexpr std::array<const char*, kColumnCount> kColumnNames{
    "TagVariant", "Date", "BeginTime", "EndTime", "Desc", "StyleSet"};

// What a column of a row holds: text, or nothing at all (Null).
using AppointmentValue = std::optional<std::string>;

// One row with its date and tag in their stored forms, "yyyy-mm-dd" and "yyyy-mm-dd hh:mm:ss". Rows
// are numbered in the order of their creation.
struct AppointmentRow {
    std::int64_t number = 0;
    std::array<AppointmentValue, kColumnCount> values;

    [[nodiscard]] const AppointmentValue& operator[](Column column) const {
        return values[static_cast<std::size_t>(column)];
    }
    [[nodiscard]] AppointmentValue& operator[](Column column) {
        return values[static_cast<std::size_t>(column)];
    }

    // Empty text for Null.
    [[nodiscard]] const std::string& text(Column column) const {
        static const std::string nothing;
        const AppointmentValue& value = (*this)[column];
        return value ? *value : nothing;
    }
};

}  // namespace velmora
