#pragma once

#include <string>

#include "core/DataLocations.h"
#include "planner/AppointmentStore.h"
#include "planner/PlannerControls.h"
#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/Format.h"

namespace velmora {

// How many days the week shows: those behind the date of the month.
inline constexpr int kWeekDays = 6;

// What the week is shown in. Texts are code-page text, days count from 1 to kWeekDays.
class WeekView {
  public:
    virtual ~WeekView() = default;

    virtual void SetTitle(const std::string& text) = 0;
    virtual void RemoveAllTasks() = 0;
    virtual void RemoveTasksOf(int day) = 0;

    // Tasks of a day count from 0, in the order in which they were added.
    virtual void AddTask(int day, const std::string& beginTime, const std::string& endTime,
                         const std::string& text) = 0;
    virtual void SetTaskTag(int day, int index, const std::string& tag) = 0;
    virtual void SetDayCaption(int day, const std::string& text) = 0;

    // What is said of the day as a whole; nothing for the empty text.
    virtual void SetDayNotice(int day, const std::string& text) = 0;
};

// Loads the week: the appointments of the six days that follow the date of the month. Which
// database is read is decided at each load by the settings, whatever the planner works on, and
// nothing of it is kept or locked afterwards.
class WeekLoad {
  public:
    // All must outlive this object.
    WeekLoad(const DataLocations& locations, const AppointmentSource& source,
             const CodePage& codePage, const MonthControl& month, const Clock& clock,
             const LocaleFormats& formats);

    // Whether a lock of another program is waited for, for a moment.
    enum class Locks { WaitFor, PassBy };

    // Fills `view` anew. Every step is on its own: without a database there are six empty days
    // under their captions. A day that can not be read is empty and says so; false comes back
    // then, and it is worth trying again. Never throws.
    bool Load(WeekView& view, Locks locks = Locks::WaitFor) const;

  private:
    const DataLocations& locations_;
    const AppointmentSource& source_;
    const CodePage& codePage_;
    const MonthControl& month_;
    const Clock& clock_;
    const LocaleFormats& formats_;
};

}  // namespace velmora
