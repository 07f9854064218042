#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/SettingKeys.h"
#include "core/SettingsStore.h"

// What Preferences shows and stores: which control edits which setting.
namespace velmora {

using PreferenceKey = std::variant<TextKey, SwitchKey, NumberKey, ChoiceKey>;

inline constexpr std::size_t kMostOptions = 8;

// A setting that Preferences edits.
struct PreferenceRow {
    PreferenceKey key;
    // The object name of the control; of a choice, one of each option, in the order of its texts.
    std::array<std::string_view, kMostOptions> controls;
    bool hour = false;                   // two digits, from 00 to 23
    bool systemProgram = false;          // the default lies in the folder of system programs
    std::string_view handler{};          // names the setting whose program an empty box offers
    std::string_view storedWhenEmpty{};  // instead of the empty text
    std::string_view storedBefore{};     // the text that any other one replaces
    bool shownWhenUnknown = false;       // of a choice: its first option, else none
};

// In the order in which they are stored.
[[nodiscard]] std::span<const PreferenceRow> preferenceRows();

// The row of a setting by its name, in the letters of core/SettingKeys.h.
[[nodiscard]] std::size_t preferenceRowOf(std::string_view key);

// What a control holds: a text, a tick, a number, or which option is chosen, if any.
using PreferenceValue = std::variant<std::string, bool, int, std::optional<std::size_t>>;

// One value for each row.
using PreferenceValues = std::vector<PreferenceValue>;

// The lowest and the highest number of a row that is a number.
struct PreferenceRange {
    int least;
    int most;
};
[[nodiscard]] PreferenceRange rangeOf(const PreferenceRow& row);

// What the control shows for what is stored. `systemFolder` has no separator at its end.
[[nodiscard]] PreferenceValue shownValue(const PreferenceRow& row, const SettingsStore& settings,
                                         std::string_view systemFolder);

// Stores what the control holds. A choice without a chosen option stays as it is. Throws Failure.
void storeValue(const PreferenceRow& row, const PreferenceValue& value, SettingsStore& settings);

// As a number with its label shows it: an hour has two digits.
[[nodiscard]] std::string numberShown(const PreferenceRow& row, int number);

}  // namespace velmora
