#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "planner/DayStyle.h"
#include "platform/calendar/DayTask.h"
#include "platform/calendar/StyleSet.h"

// What the planner asks of the three controls and of the main form around them. Texts are
// code-page text, dates "MM/dd/yyyy". Where an operation is said to refuse, it throws Failure and
// changes nothing.
namespace velmora {

// `SSDay1`: the blocks of one day in a column of time slots.
class DayControl {
  public:
    virtual ~DayControl() = default;

    // Blocks count from 0 and keep the order in which they were added, whatever their times; none
    // is refused.
    virtual void AddTask(const std::string& beginTime, const std::string& endTime,
                         const std::string& text) = 0;
    virtual void RemoveAllTasks() = 0;

    // Refuse an index without a block.
    [[nodiscard]] virtual DayTask Task(int index) const = 0;
    virtual void SetTaskTag(int index, const std::string& tag) = 0;

    // Gives a block the times and the text of another; its tag stays.
    virtual void SetTask(int index, const DayTask& task) = 0;

    [[nodiscard]] virtual int TaskCount() const = 0;

    // What the view says beside its blocks, when something is to be said of the day as a whole.
    virtual void SetNotice(const std::string& text) = 0;

    // The index of the selected block, -1 without one.
    [[nodiscard]] virtual int SelectedTask() const = 0;
    virtual void SelectTask(int index) = 0;

    // First and last time of the column, as "7:00 AM". Refuses what is no time of day.
    virtual void SetFirstTime(const std::string& time) = 0;
    virtual void SetLastTime(const std::string& time) = 0;

    // Paints anew; no row is read.
    virtual void Refresh() = 0;
};

// What the month and the year have in common.
class DateControl {
  public:
    virtual ~DateControl() = default;

    [[nodiscard]] virtual std::string Date() const = 0;

    // Selects a day and reports the selection before it returns, also when it was selected
    // already. Refuses a text that is no date and a day out of the control's range.
    virtual void SetDate(const std::string& date) = 0;

    // Makes a style, or changes it.
    virtual void SetStyleSet(const std::string& name, const StyleSet& look) = 0;

    // Gives a day a style. Refuses an unknown style, and as SetDate() does.
    virtual void SetDayStyle(const std::string& date, const std::string& style) = 0;

    // Gives days their styles one by one; passes over what SetDayStyle() refuses. No other day
    // changes. Paints once.
    virtual void SetDayStyles(const std::vector<DayStyle>& days) = 0;
};

// `SSMonth1`: holds the planner's date, from the year 100 to 9999.
class MonthControl : public DateControl {
  public:
    virtual void Refresh() = 0;

    // The date under a point in the control's own coordinates; nothing where none is.
    [[nodiscard]] virtual std::optional<std::string> DateAt(int x, int y) const = 0;
};

// `SSYear1`: a quick way to a far date, from the year 101 to 9998.
class YearControl : public DateControl {};

// The main form around the controls.
class PlannerDesk {
  public:
    virtual ~PlannerDesk() = default;

    // `Label1`, the long date above the day view.
    virtual void SetLongDate(const std::string& text) = 0;

    // `Picture6`, the pane of the year; shown, it lies in front.
    virtual void ShowYearPane() = 0;
    virtual void HideYearPane() = 0;

    // Nothing when the form is not open.
    virtual void CloseWeekAtAGlance() = 0;
};

}  // namespace velmora
