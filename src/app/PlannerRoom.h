#pragma once

#include <QList>
#include <QObject>
#include <functional>
#include <memory>
#include <string>

#include "app/PlannerAdapters.h"
#include "app/WeekWindow.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PaneSwitch.h"
#include "core/PatientCommand.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "phonebook/EntryWriter.h"
#include "planner/AppointmentCount.h"
#include "planner/AppointmentStore.h"
#include "planner/Planner.h"
#include "planner/PlannerControls.h"
#include "planner/PlannerFolder.h"
#include "planner/ScheduleTimes.h"
#include "planner/Scheduling.h"
#include "planner/forms/Schedule.h"
#include "planner/forms/YearPane.h"
#include "planner/sqlite/PlannerFiles.h"
#include "planner/sqlite/SqliteAppointments.h"
#include "platform/access/ChildAccessReader.h"
#include "platform/qt/QtUserInput.h"

class QAction;
class QMenu;

namespace velmora {

class SSYear;

// The main form around the planner's controls.
class CalendarPlannerDesk final : public PlannerDesk, public ScheduleDesk {
  public:
    // All must outlive the desk. `endProgram` shows a failure and closes the program.
    CalendarPlannerDesk(Calendar& calendar, YearPane& yearPane, PaneSwitch& panes,
                        std::function<void()> openSchedule, WeekWindow& week,
                        std::function<void(const std::string&)> endProgram);

    void SetLongDate(const std::string& text) override { calendar_.setDateLine(text); }
    void ShowYearPane() override;
    void HideYearPane() override;
    void CloseWeekAtAGlance() override { week_.close(); }

    void ShowPlannerPane() override { panes_.show(Pane::Planner); }
    void OpenSchedule() override { openSchedule_(); }
    [[nodiscard]] std::string SelectedLine() const override;
    void SetCurrentEntry(const PhonebookRecord&) override {}  // nothing reads it yet
    void EndProgram(const std::string& utf8Text) override { endProgram_(utf8Text); }

  private:
    Calendar& calendar_;
    YearPane& yearPane_;
    PaneSwitch& panes_;
    std::function<void()> openSchedule_;
    WeekWindow& week_;
    std::function<void(const std::string&)> endProgram_;
};

// Builds the planner and connects it with the main window.
class PlannerRoom {
  public:
    // All must outlive the room.
    PlannerRoom(World& world, const SharedState& state, Calendar& calendar, PaneSwitch& panes,
                EntryWriter& entries, std::function<void(const std::string& utf8Text)> endProgram);
    ~PlannerRoom();
    PlannerRoom(const PlannerRoom&) = delete;
    PlannerRoom& operator=(const PlannerRoom&) = delete;

    void bindCommands(CommandSet& commands);

    // The nine commands of the scheduling menu.
    [[nodiscard]] QList<QAction*> schedulingCommands() const;

    // The user is about to schedule something, which does not work in an empty planner: the status
    // line says so.
    void warnOfEmptyPlanner();

    // Steps of the start-up list.
    void openDatabase();
    void setDayLimits() { planner_.SetTimeLimits(); }
    void colourCalendars();
    void showToday() { planner_.GoToToday(); }

    [[nodiscard]] AppointmentStore& store() { return store_; }
    [[nodiscard]] PlannerPlaces& places() { return places_; }

    // Shows the day and colours the calendars after somebody else has changed the table.
    void showAnew();

    // The preferences name this folder for the planner; it may be empty.
    void moveTo(const std::string& folder);

    // Stores what is being typed into the day view.
    void commitEditors();

  private:
    void runPatiently(const std::function<void()>& work);
    void connectControls();
    void makeSchedulingMenu();
    void openSchedule();
    void popUpSchedulingMenu();
    // Twice a second: moves the line of the present time, and today's mark at midnight, and does
    // what a lock or a full disk has held up.
    void tick();
    void showNow();

    World& world_;
    Calendar& calendar_;
    SSYear* SSYear1;  // the year
    YearPane Picture6;

    DayAdapter day_;
    MonthAdapter month_;
    YearAdapter year_;
    ScheduleTexts scheduleTexts_;
    ScheduleTimes scheduleTimes_;
    std::unique_ptr<Schedule> scheduleForm_;  // made when it is wanted
    WeekWindow week_;
    CalendarPlannerDesk desk_;

    QtUserInput input_;
    PatientCommand patient_;
    access::ChildAccessReader accessReader_;
    PlannerFiles places_;
    SqliteAppointmentSource source_;
    AppointmentStore store_;
    AppointmentStore countingStore_;
    AppointmentCount count_;
    Planner planner_;
    PlannerFolder folder_;
    Scheduling scheduling_;
    QMenu* Chmenu = nullptr;  // the nine scheduling commands
    WorkOwner colouring_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
