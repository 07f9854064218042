#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/SettingsStore.h"
#include "planner/Occasions.h"
#include "platform/Clock.h"
#include "platform/Messages.h"

namespace velmora {

// What the form of the occasions does: two bars for month and day, a text, and the list. Operations
// on the list throw Failure when the settings can not be read or written; then nothing has changed.
class Datewarden {
  public:
    // All must outlive this object.
    Datewarden(SettingsStore& settings, Messages& messages, const Clock& clock);

    // The form opens: the bars stand on the present month and day, the text is the suggested one.
    void Open();

    // The bars: the month from 1 to 12, the day from 1 to highestDay(). What is out of range is
    // brought into it. A month with fewer days takes the day back to its last.
    [[nodiscard]] int month() const { return static_cast<int>(day_.month); }
    [[nodiscard]] int day() const { return static_cast<int>(day_.day); }
    [[nodiscard]] int highestDay() const { return static_cast<int>(highestDayOf(day_.month)); }
    void setMonth(int month);
    void setDay(int day);

    // The bars as they are shown: "January", "01".
    [[nodiscard]] std::string monthLabel() const;
    [[nodiscard]] std::string dayLabel() const;

    // The text of a new occasion.
    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(std::string text) { text_ = std::move(text); }

    [[nodiscard]] std::vector<std::string> Lines() const { return occasions_.Lines(); }

    // Adds the text to the day; a blank one is replaced by a default first.
    void Add();

    // A line of the list was clicked: bars and text take what it says.
    void Click(std::string_view line);

    // Removes the selected line if the user agrees. False when he does not and when `line` is
    // empty, that is when none is selected: then nothing is to be shown anew.
    bool Remove(std::string_view line);

  private:
    Occasions occasions_;
    Messages& messages_;
    const Clock& clock_;
    OccasionDay day_;
    std::string text_;
};

}  // namespace velmora
