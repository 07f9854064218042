#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "planner/Occasions.h"
#include "platform/Clock.h"
#include "platform/Format.h"

namespace velmora {

// What falls on today and on the next days: occasions and monthly tasks. Throws Failure when the
// settings can not be read.
class Reminders {
  public:
    // All must outlive this object. `ring` plays the alarm sound.
    Reminders(SettingsStore& settings, const Clock& clock, const LocaleFormats& formats,
              std::function<void()> ring);

    // The list as of now: today's occasions, those of the next "EventDays" days, today's monthly
    // tasks, those of the next days. Without any it has the one line "No Events Today."
    [[nodiscard]] std::vector<std::string> Lines() const;

    // As Lines(), for a form that opens: rings once if there is anything on the list.
    [[nodiscard]] std::vector<std::string> Open() const;

    // Prints the lines under a heading with the present date.
    void Print(PrintJobs& printing, const std::vector<std::string>& lines) const;

  private:
    [[nodiscard]] std::vector<std::string> events() const;

    SettingsStore& settings_;
    const Clock& clock_;
    const LocaleFormats& formats_;
    std::function<void()> ring_;
};

// True for a line that is about today.
[[nodiscard]] bool isEventOfToday(std::string_view line);

}  // namespace velmora
