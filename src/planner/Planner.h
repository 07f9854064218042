#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "core/SettingsStore.h"
#include "planner/AppointmentRow.h"
#include "planner/AppointmentStore.h"
#include "planner/PlannerControls.h"
#include "planner/UnstoredTasks.h"
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
// calendars. Every step is on its own: one that fails is skipped.
//
// What can not be read or stored, since another program locks the file, the disk is full or the
// file may only be read, is said on the status line and in the day view. TryAgain() does it later.
// A new block that could not be stored stays in view, without a tag, and is kept over a change of
// the day; a changed one goes back to what is stored, and a removed one comes back.
class Planner {
  public:
    Planner(AppointmentStore& store, const PlannerControls& controls, StatusLine& status,
            SettingsStore& settings, const Clock& clock, const LocaleFormats& formats);

    // Called again and again by a timer: does what could not be done before, at growing intervals
    // and without waiting for a lock. Nothing while a block is being edited.
    void TryAgain();

    // The program ends, or may: stores what could not be stored before. What still can not be is
    // kept in the settings, from which TakeOver() gets it back at the next start.
    void KeepUnstored();
    void TakeOver();

    // The date on show, or chosen last: as the controls gave it, or "MM/dd/yy" once loaded.
    [[nodiscard]] const std::string& SelectedDate() const { return selectedDate_; }

    // The styles of days, once at the end of start-up.
    void SetCalendarStyleSets();

    // First and last time of the day view, from "PlannerEnd" and "PlannerStart".
    void SetTimeLimits();

    // Colours all days that hold rows, as a walk over all of them would. Clears none.
    void UpdateDays();

    // The same at the start, when a window is to be shown soon: colours the days around the date of
    // the month, in which all are that the month shows. UpdateDays() must follow before another
    // month is seen.
    void BeginColours();

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
    void colour(const std::vector<DayStyle>& days);
    void fillDay();
    void putAside();
    void showUnstored();
    void storeTask(int index);
    void writeTask(int index);
    void beginAddition(int index);
    void beginChange(int index);
    void addRow(std::chrono::year_month_day day, const DayTask& task, Moment tag);
    void storeAgain();
    [[nodiscard]] bool hasUnstoredBlocks() const;
    void removeRow(const std::string& tag);
    void tell(const std::string& text);
    void help(const std::string& text);
    [[nodiscard]] bool bringBack(const AppointmentRow& row);
    void showTask(const AppointmentRow& row);

    AppointmentStore& store_;
    DayControl& day_;
    MonthControl& month_;
    YearControl& year_;
    PlannerDesk& desk_;
    StatusLine& status_;
    SettingsStore& settings_;
    const Clock& clock_;
    const LocaleFormats& formats_;

    std::string selectedDate_;
    std::optional<std::chrono::year_month_day> dayOnShow_;
    bool taskIsNew_ = false;  // the block being edited has no row yet
    bool editIsOpen_ = false;
    std::optional<DayTask> beforeEdit_;  // the block being edited, as it was

    UnstoredTasks unstored_;  // of days that are not on show
    std::string kept_;        // what the settings hold of them
    bool dayIsUnread_ = false;
    bool coloursAreUnread_ = false;
    bool coloursAreBegun_ = false;    // and only begun
    bool blocksAreUnstored_ = false;  // some on show may be
    int callsToWait_ = 0;             // of TryAgain()
    int nextWait_ = 1;
    Moment helpFrom_{};                    // until then the status line keeps what was told last
    std::vector<AppointmentRow> removed_;  // what OnUndoRemoval() brings back, the last one first
};

}  // namespace velmora
