#pragma once

#include <cstdint>
#include <optional>

#include "core/SettingsStore.h"
#include "planner/AlarmSound.h"
#include "planner/AlarmWindows.h"
#include "planner/AlertStack.h"
#include "planner/NumberedList.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"

namespace velmora {

// The look at the clock that rings alarms, two or three times in each minute.
//
// An alarm of today whose minute it is rings and leaves its list. The list closes up while the look
// goes on, so an alarm right behind one that rang is passed over and left to the next look. Weekly
// tasks of the minute ring at each look, with a box that the look waits for. Other looks run while
// the box is open: this one keeps nothing but local values and touches no dated alarm behind it.
// Errors stop nothing and reach nobody.
class AlarmTick {
  public:
    // All must outlive the object.
    AlarmTick(SettingsStore& settings, const Clock& clock, const AlarmSound& sound,
              AlertStack& alerts, AlarmWindows& windows, const EventLoop& loop);

    void run();

  private:
    void ringDated();
    void ringWeekly();
    void ring(NumberedList& list, const NumberedEntry& alarm);

    // The first entry from `first` to `last` whose time it is.
    [[nodiscard]] std::optional<NumberedEntry> nextDue(const NumberedList& list, std::int64_t first,
                                                       std::int64_t last) const;

    SettingsStore& settings_;
    const Clock& clock_;
    const AlarmSound& sound_;
    AlertStack& alerts_;
    AlarmWindows& windows_;
    const EventLoop& loop_;
};

}  // namespace velmora
