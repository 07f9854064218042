#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "core/SettingsStore.h"
#include "planner/AppointmentRow.h"
#include "planner/AppointmentStore.h"
#include "planner/PlannerControls.h"
#include "platform/Clock.h"
#include "platform/Format.h"
#include "platform/StatusLine.h"

namespace velmora {

// The controls that the planner works on; they outlive it.
struct PlannerControls {
    DayControl& day;
    MonthControl& month;
    YearControl& year;
    PlannerDesk& desk;
};

// The planner pane: shows the rows of a day, stores what is done to them, and colours the
// calendars. Every step is on its own: one that fails is skipped, and nothing is said.
class Planner {
  public:
    Planner(AppointmentStore& store, const PlannerControls& controls, StatusLine& status,
            const SettingsStore& settings, const Clock& clock, const LocaleFormats& formats);

    // The date on show, or chosen last: as the controls gave it, or "MM/dd/yy" once loaded.
    [[nodiscard]] const std::string& SelectedDate() const { return selectedDate_; }

    // The styles of days, once at the end of start-up.
    void SetCalendarStyleSets();

    // First and last time of the day view, from "PlannerEnd" and "PlannerStart".
    void SetTimeLimits();

    // Colours all days that hold rows. Clears none.
    void UpdateDays();

    // Fills the day view with the rows of SelectedDate(). An open editor must have ended before.
    void LoadDayTasks();

    // To be called before an edit or a removal is reported: when the day on show is not the date
    // of the month (the year was left by its caption), the month goes there. The day view is then
    // filled anew and its blocks have the same indexes as before.
    void AlignMonthWithDayOnShow();

    // Events of the day view. `exists` is true exactly when the block has a tag; an `index` of -1
    // means that there is nothing to store.
    void OnTaskEditBegin(int index, bool exists);
    void OnTaskEditEnd(int index, bool keepRefresh, bool save);
    void OnTaskRemove();

    // Brings back the appointment that OnTaskRemove() took away last, with its tag, date, texts and
    // style, shows its day and selects its block. Asked again, the one before it. Says so on the
    // status line where there is none, or where it can not be stored; it can then be asked again.
    void OnUndoRemoval();
    void OnDayPointerMoved();

    // Events of the month.
    void OnMonthSelection(const std::string& date);
    void OnMonthGotFocus();
    void OnMonthLostFocus();

    // Something was dropped on the month. True when the menu `Chmenu` is to pop up.
    [[nodiscard]] bool OnMonthDrop(int x, int y, bool selectedEntryDropped);

    // `totoday`.
    void GoToToday();

    // `Command1` "Yea&r", and the events of the year.
    void OpenYear();
    void OnYearSelection(const std::string& date);
    void OnYearDoubleClick();
    void OnYearCaptionClick();

    // Paints the day view and the month anew.
    void RefreshControls();

  private:
    [[nodiscard]] std::chrono::year pivotYear() const;
    void storeTask(int index);
    void beginAddition(int index);
    void beginChange(int index);
    [[nodiscard]] bool storeAgain(const AppointmentRow& row);
    void showTask(const AppointmentRow& row);

    AppointmentStore& store_;
    DayControl& day_;
    MonthControl& month_;
    YearControl& year_;
    PlannerDesk& desk_;
    StatusLine& status_;
    const SettingsStore& settings_;
    const Clock& clock_;
    const LocaleFormats& formats_;

    std::string selectedDate_;
    std::optional<std::chrono::year_month_day> dayOnShow_;
    std::vector<AppointmentRow> removed_;  // what OnUndoRemoval() brings back, the last one first
    bool taskIsNew_ = false;               // the block being edited has no row yet
};

}  // namespace velmora
