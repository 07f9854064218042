#pragma once

#include <functional>

#include "planner/PlannerControls.h"

namespace velmora {

class SSDay;
class SSMonth;
class SSYear;

// The day view as the planner sees it.
class DayAdapter final : public DayControl {
  public:
    explicit DayAdapter(SSDay& day) : day_(day) {}

    void AddTask(const std::string& beginTime, const std::string& endTime,
                 const std::string& text) override;
    void RemoveAllTasks() override;
    [[nodiscard]] DayTask Task(int index) const override;
    void SetTaskTag(int index, const std::string& tag) override;
    void SetTask(int index, const DayTask& task) override;
    [[nodiscard]] int TaskCount() const override;
    void SetNotice(const std::string& text) override;
    [[nodiscard]] int SelectedTask() const override;
    void SelectTask(int index) override;
    void SetFirstTime(const std::string& time) override;
    void SetLastTime(const std::string& time) override;
    void Refresh() override;

  private:
    SSDay& day_;
};

// The month as the planner sees it.
class MonthAdapter final : public MonthControl {
  public:
    explicit MonthAdapter(SSMonth& month) : month_(month) {}

    [[nodiscard]] std::string Date() const override;
    void SetDate(const std::string& date) override;
    void SetStyleSet(const std::string& name, const StyleSet& look) override;
    void SetDayStyle(const std::string& date, const std::string& style) override;
    void SetDayStyles(const std::vector<DayStyle>& days) override;
    void Refresh() override;
    [[nodiscard]] std::optional<std::string> DateAt(int x, int y) const override;

  private:
    SSMonth& month_;
};

// The year as the planner sees it.
class YearAdapter final : public YearControl {
  public:
    explicit YearAdapter(SSYear& year) : year_(year) {}

    [[nodiscard]] std::string Date() const override;
    void SetDate(const std::string& date) override;
    void SetStyleSet(const std::string& name, const StyleSet& look) override;
    void SetDayStyle(const std::string& date, const std::string& style) override;
    void SetDayStyles(const std::vector<DayStyle>& days) override;

  private:
    SSYear& year_;
};

}  // namespace velmora
