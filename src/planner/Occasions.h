#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/SettingsStore.h"
#include "planner/NumberedList.h"

namespace velmora {

// The day of an occasion: a month from 1 to 12 and a day from 1 to 31, in every year.
struct OccasionDay {
    unsigned month = 1;
    unsigned day = 1;

    friend bool operator==(const OccasionDay&, const OccasionDay&) = default;
    friend bool operator<(const OccasionDay& a, const OccasionDay& b) {
        return a.month != b.month ? a.month < b.month : a.day < b.day;
    }
};

// A line of the list of occasions, taken apart.
struct OccasionLine {
    OccasionDay day;  // as the line tells it; a month that is none is 0
    std::string text;
};

// The highest day that an occasion of this month can have; 29 for February in any year.
[[nodiscard]] unsigned highestDayOf(unsigned month);

// Takes a line apart at its first " -". The text comes trimmed.
[[nodiscard]] OccasionLine splitOccasionLine(std::string_view line);

// The messages of a list in their order, as they are stored, without blank ones. Throws Failure
// when the settings can not be read.
[[nodiscard]] std::vector<std::string> messagesOf(const NumberedList& list);

// The yearly occasions in the settings. Operations throw Failure when the settings can not be read
// or written; then nothing has changed.
class Occasions {
  public:
    explicit Occasions(SettingsStore& settings) : settings_(settings) {}

    // Texts of one day, without blank ones.
    [[nodiscard]] std::vector<std::string> On(OccasionDay day) const;

    // All occasions from January to December as lines "March 09 - Text".
    [[nodiscard]] std::vector<std::string> Lines() const;

    // Puts a text behind those of the day, whether it stands there already or not.
    void Add(OccasionDay day, std::string_view text);

    // Removes the first occasion that is equal to the line but for blanks around it. False when
    // there is none.
    bool Remove(std::string_view line);

  private:
    [[nodiscard]] NumberedList listOf(OccasionDay day) const;

    SettingsStore& settings_;
};

}  // namespace velmora
