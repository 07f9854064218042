#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "planner/PlannerControls.h"
#include "platform/DateText.h"
#include "platform/Failure.h"

namespace velmora::test {

// Keeps its blocks and limits; takes any time of day as a limit.
class FakeDayControl final : public DayControl {
  public:
    void AddTask(const std::string& beginTime, const std::string& endTime,
                 const std::string& text) override {
        tasks.push_back({beginTime, endTime, text, ""});
    }
    void RemoveAllTasks() override {
        ++removals;
        tasks.clear();
    }
    [[nodiscard]] DayTask Task(int index) const override { return tasks.at(checked(index)); }
    void SetTaskTag(int index, const std::string& tag) override {
        tasks[checked(index)].TagVariant = tag;
    }
    void SetTask(int index, const DayTask& task) override {
        DayTask& block = tasks[checked(index)];
        block = {task.BeginTime, task.EndTime, task.text, block.TagVariant};
    }
    [[nodiscard]] int TaskCount() const override { return static_cast<int>(tasks.size()); }
    void SetNotice(const std::string& text) override { notice = text; }
    [[nodiscard]] int SelectedTask() const override { return selected; }
    void SelectTask(int index) override { selected = index; }
    void SetFirstTime(const std::string& time) override { limits.push_back("first " + time); }
    void SetLastTime(const std::string& time) override {
        limits.push_back("last " + time);
        if (refusesLastTime)
            throw Failure("no such time");
    }
    void Refresh() override { ++refreshes; }

    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> result;
        for (const DayTask& task : tasks)
            result.push_back(task.text);
        return result;
    }

    std::vector<DayTask> tasks;
    std::vector<std::string> limits;
    std::string notice;
    int selected = -1;
    int refreshes = 0;
    int removals = 0;
    bool refusesLastTime = false;

  private:
    [[nodiscard]] std::size_t checked(int index) const {
        if (index < 0 || static_cast<std::size_t>(index) >= tasks.size())
            throw Failure("no such task");
        return static_cast<std::size_t>(index);
    }
};

// A calendar over a range of years. What a style was set on is kept by date, "MM/dd/yyyy".
template <typename Interface>
class FakeCalendar : public Interface {
  public:
    FakeCalendar(int firstYear, int lastYear) : firstYear_(firstYear), lastYear_(lastYear) {}

    [[nodiscard]] std::string Date() const override { return date; }
    void SetDate(const std::string& text) override {
        date = writeDate(inRange(text));
        if (onSelection)
            onSelection(date);
    }
    void SetStyleSet(const std::string& style, const StyleSet& look) override {
        looks[style] = look;
    }
    void SetDayStyle(const std::string& text, const std::string& style) override {
        const auto day = inRange(text);
        if (!looks.count(style))
            throw Failure("no such style");
        styles[writeDate(day)] = style;
        if (order)
            order->push_back(name + " " + writeDate(day) + " " + style);
    }
    void SetDayStyles(const std::vector<DayStyle>& days) override {
        ++paintings;
        for (const DayStyle& each : days) {
            try {
                SetDayStyle(writeDate(each.day), each.style);
            } catch (const Failure&) {
                ++refused;
            }
        }
    }

    [[nodiscard]] std::string styleOf(const std::string& day) const {
        const auto found = styles.find(day);
        return found == styles.end() ? std::string() : found->second;
    }

    std::string name;
    std::string date = "03/12/2026";
    std::function<void(const std::string&)> onSelection;
    std::map<std::string, StyleSet> looks;
    std::map<std::string, std::string> styles;
    std::vector<std::string>* order = nullptr;  // where each setting of a style is recorded
    int paintings = 0;
    int refused = 0;

  private:
    [[nodiscard]] std::chrono::year_month_day inRange(const std::string& text) const {
        const auto day = readDate(text, std::chrono::year(2026));
        if (!day || int(day->year()) < firstYear_ || int(day->year()) > lastYear_)
            throw Failure("no such date");
        return *day;
    }

    int firstYear_;
    int lastYear_;
};

// Its dates lie in a row of ten pixels each, the first under (0, 0).
class FakeMonthControl final : public FakeCalendar<MonthControl> {
  public:
    FakeMonthControl() : FakeCalendar(100, 9999) { name = "month"; }

    void Refresh() override { ++refreshes; }
    [[nodiscard]] std::optional<std::string> DateAt(int x, int y) const override {
        const auto place = static_cast<std::size_t>(x / 10);
        if (x < 0 || y < 0 || place >= datesInView.size())
            return std::nullopt;
        return datesInView[place];
    }

    std::vector<std::string> datesInView{"03/01/2026", "03/02/2026"};
    int refreshes = 0;
};

class FakeYearControl final : public FakeCalendar<YearControl> {
  public:
    FakeYearControl() : FakeCalendar(101, 9998) { name = "year"; }
};

class FakePlannerDesk final : public PlannerDesk {
  public:
    void SetLongDate(const std::string& text) override { longDate = text; }
    void ShowYearPane() override { yearPaneShows = true; }
    void HideYearPane() override { yearPaneShows = false; }
    void CloseWeekAtAGlance() override { ++weekClosed; }

    std::string longDate;
    bool yearPaneShows = false;
    int weekClosed = 0;
};

}  // namespace velmora::test
