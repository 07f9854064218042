#pragma once

#include <string>
#include <vector>

#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "planner/NumberedList.h"
#include "platform/Clock.h"
#include "platform/Format.h"
#include "platform/Messages.h"

namespace velmora {

// What the form `Form3` knows: the to-do lines. All changes throw Failure when they can not be
// stored.
class ToDoList {
  public:
    // All must outlive the object.
    ToDoList(SettingsStore& settings, Messages& messages, const Clock& clock,
             const LocaleFormats& locale);

    // The form opens: all lines, blank ones too, and a text with the present date and time.
    void Open();

    // The lines on show, trimmed.
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

    // What stands in the box for a new line.
    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(const std::string& text) { text_ = text; }

    // Adds the text as the last line, or tells the user that there is none.
    void AddTask();

    // The user picked a line: the first one of this text comes into text().
    void Pick(const std::string& line);

    // Removes the first line of this text and empties text(); nothing for a blank line.
    void RemoveTask(const std::string& line);

    // Prints the lines on show under the date of today. `fontName` is code-page text.
    void PrintTasks(PrintJobs& printing, const std::string& fontName) const;

  private:
    void fill(bool blankOnesToo);

    NumberedList list_;
    Messages& messages_;
    const Clock& clock_;
    const LocaleFormats& locale_;
    std::vector<std::string> lines_;
    std::string text_;
};

}  // namespace velmora
