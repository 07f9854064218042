#include "planner/AlarmTick.h"

#include "planner/ClockTime.h"
#include "planner/ListShapes.h"
#include "platform/Failure.h"

namespace velmora {

AlarmTick::AlarmTick(SettingsStore& settings, const Clock& clock, const AlarmSound& sound,
                     AlertStack& alerts, AlarmWindows& windows, const EventLoop& loop)
    : settings_(settings),
      clock_(clock),
      sound_(sound),
      alerts_(alerts),
      windows_(windows),
      loop_(loop) {}

void AlarmTick::run() {
    ignoringErrors([this] { ringDated(); });
    ignoringErrors([this] { ringWeekly(); });
}

void AlarmTick::ringDated() {
    NumberedList list(settings_, alarmsOf(dateOf(clock_.now())));
    const std::int64_t last = list.count();
    std::int64_t next = 1;
    while (const auto alarm = nextDue(list, next, last)) {
        ring(list, *alarm);
        next = alarm->number + 1;
    }
}

void AlarmTick::ring(NumberedList& list, const NumberedEntry& alarm) {
    ignoringErrors([this] { sound_.ring(); });
    ignoringErrors([&] { alerts_.add(alarm.message); });
    // Another copy of the program may have closed the list up since; then another alarm has the
    // number.
    ignoringErrors(
        [&] { list.remove([&](const NumberedEntry& entry) { return entry == alarm; }); });
}

void AlarmTick::ringWeekly() {
    const NumberedList list(settings_, weeklyTasksOf(weekdayNameOf(dateOf(clock_.now()))));
    const std::int64_t last = list.count();
    std::int64_t next = 1;
    while (const auto task = nextDue(list, next, last)) {
        ignoringErrors([this] { sound_.ring(); });
        ignoringErrors([&] {
            windows_.warnAboveAll("Alarm", "Velmora Weekly Task Alarm\r\n\r\n" + task->message);
        });
        if (loop_.closing())
            return;
        next = task->number + 1;
    }
}

std::optional<NumberedEntry> AlarmTick::nextDue(const NumberedList& list, std::int64_t first,
                                                std::int64_t last) const {
    return list.find([&](const NumberedEntry& entry) {
        return entry.number >= first && entry.number <= last && !entry.time.empty() &&
               shownTime(entry.time) == ClockTime::of(clock_.now()).text();
    });
}

}  // namespace velmora
