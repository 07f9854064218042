#pragma once

#include <array>
#include <string>
#include <vector>

#include "planner/WeekLoad.h"
#include "platform/calendar/DayTasks.h"

namespace velmora::test {

// Keeps what it is told to show; the days are held from index 0.
class FakeWeekView final : public WeekView {
  public:
    struct Day {
        std::string caption;
        std::string notice;
        std::vector<DayTask> tasks;
    };

    void SetTitle(const std::string& text) override { title = text; }
    void RemoveAllTasks() override {
        ++removals;
        for (Day& day : days)
            day.tasks.clear();
    }
    void AddTask(int day, const std::string& beginTime, const std::string& endTime,
                 const std::string& text) override {
        at(day).tasks.push_back({beginTime, endTime, text, ""});
    }
    void SetTaskTag(int day, int index, const std::string& tag) override {
        at(day).tasks.at(static_cast<std::size_t>(index)).TagVariant = tag;
    }
    void RemoveTasksOf(int day) override { at(day).tasks.clear(); }
    void SetDayNotice(int day, const std::string& text) override { at(day).notice = text; }
    void SetDayCaption(int day, const std::string& text) override { at(day).caption = text; }

    [[nodiscard]] std::vector<std::string> captions() const {
        std::vector<std::string> result;
        for (const Day& day : days)
            result.push_back(day.caption);
        return result;
    }

    // The texts of one day, from 1.
    [[nodiscard]] std::vector<std::string> texts(int day) const {
        std::vector<std::string> result;
        for (const DayTask& task : days.at(static_cast<std::size_t>(day - 1)).tasks)
            result.push_back(task.text);
        return result;
    }

    std::string title;
    std::array<Day, kWeekDays> days;
    int removals = 0;

  private:
    Day& at(int day) { return days.at(static_cast<std::size_t>(day - 1)); }
};

}  // namespace velmora::test
