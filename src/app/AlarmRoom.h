#pragma once

#include <QObject>
#include <memory>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/forms/Calendar.h"
#include "planner/AlarmEditor.h"
#include "planner/AlarmSound.h"
#include "planner/AlarmTick.h"
#include "planner/AlertStack.h"
#include "planner/AnnouncedAlarms.h"
#include "planner/forms/Alarm.h"
#include "planner/forms/DesktopAlarmWindows.h"
#include "platform/qt/QtSound.h"

namespace velmora {

// Builds the alarms and connects them with the main window, whose timer rings them.
class AlarmRoom {
  public:
    // All must outlive the room.
    AlarmRoom(World& world, Calendar& calendar, Notices& notices);

    void bindCommands(CommandSet& commands);

    void bringAlertToFront() { windows_.bringAlertToFront(); }

    [[nodiscard]] Sound& player() { return sound_; }

    // Also rung by the events of the day.
    [[nodiscard]] const AlarmSound& sound() const { return alarmSound_; }

  private:
    void presentForm();

    World& world_;
    Calendar& calendar_;
    QtSound sound_;
    AlarmSound alarmSound_;
    DesktopAlarmWindows windows_;
    AnnouncedAlarms announced_;
    AlertStack alerts_;
    AlarmTick tick_;
    AlarmEditor editor_;
    std::unique_ptr<Alarm> form_;  // made when it is first asked for
    QObject connections_;          // ends them all before what they call is gone
};

}  // namespace velmora
