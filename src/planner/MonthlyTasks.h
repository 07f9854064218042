#pragma once

#include <string>
#include <vector>

#include "core/SettingsStore.h"
#include "planner/NumberedList.h"
#include "platform/Clock.h"

namespace velmora {

// What the form `Monthly` knows: the tasks of each day of the month. The same text may stand twice
// on a day. All changes throw Failure when they can not be stored.
class MonthlyTasks {
  public:
    // Both must outlive the object.
    MonthlyTasks(SettingsStore& settings, const Clock& clock);

    // The form opens: the present day of the month and the tasks of all days.
    void Open();

    // 1 to 31.
    [[nodiscard]] int day() const { return day_; }
    void setDay(int day) { day_ = day; }

    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(const std::string& text) { text_ = text; }

    // "9 - Pay the rent", by day.
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

    // An empty text gets one of its own.
    void Add();

    // The user picked a line: its day is taken over, its text is not.
    void Pick(const std::string& line);

    // Removes the first task of the line's day and text; nothing for an empty line.
    void Remove(const std::string& line);

  private:
    [[nodiscard]] NumberedList listOf(int day) const;
    void fill();

    SettingsStore& settings_;
    const Clock& clock_;
    int day_ = 1;
    std::string text_;
    std::vector<std::string> lines_;
};

}  // namespace velmora
