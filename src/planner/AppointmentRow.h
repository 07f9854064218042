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

// What a column of a row holds: UTF-8, or nothing at all (Null).
using AppointmentValue = std::optional<std::string>;

// One row as it lies in the database. Rows are numbered in the order of their creation.
struct AppointmentRow {
    std::int64_t number = 0;
    std::array<AppointmentValue, kColumnCount> values;

    [[nodiscard]] const AppointmentValue& operator[](Column column) const {
        return values[static_cast<std::size_t>(column)];
    }
    [[nodiscard]] AppointmentValue& operator[](Column column) {
        return values[static_cast<std::size_t>(column)];
    }
};

}  // namespace velmora
