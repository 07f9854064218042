#include "app/PlannerAdapters.h"

#include "platform/DateText.h"
#include "platform/Failure.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/SSYear.h"

namespace velmora {
namespace {

void setStyles(CalendarControl& control, const std::vector<DayStyle>& days) {
    for (const DayStyle& day : days)
        ignoringErrors([&] { control.setDayStyle(writeDate(day.day), day.style); });
}

}  // namespace

void DayAdapter::AddTask(const std::string& beginTime, const std::string& endTime,
                         const std::string& text) {
    day_.Tasks().Add(beginTime, endTime, text);
}

void DayAdapter::RemoveAllTasks() {
    day_.Tasks().RemoveAll();
}

DayTask DayAdapter::Task(int index) const {
    return day_.Tasks().Item(index);
}

void DayAdapter::SetTaskTag(int index, const std::string& tag) {
    day_.Tasks().setTagVariant(index, tag);
}

void DayAdapter::SetTask(int index, const DayTask& task) {
    day_.Tasks().setBeginTime(index, task.BeginTime);
    day_.Tasks().setEndTime(index, task.EndTime);
    day_.Tasks().setText(index, task.text);
}

int DayAdapter::TaskCount() const {
    return day_.Tasks().Count();
}

void DayAdapter::SetNotice(const std::string& text) {
    day_.setNotice(text);
}

int DayAdapter::SelectedTask() const {
    return day_.SelectedIndex();
}

void DayAdapter::SelectTask(int index) {
    day_.setSelectedIndex(index);
}

void DayAdapter::SetFirstTime(const std::string& time) {
    day_.setFirstTime(time);
}

void DayAdapter::SetLastTime(const std::string& time) {
    day_.setLastTime(time);
}

void DayAdapter::Refresh() {
    day_.Refresh();
}

std::string MonthAdapter::Date() const {
    return month_.Date();
}

void MonthAdapter::SetDate(const std::string& date) {
    month_.setDate(date);
}

void MonthAdapter::SetStyleSet(const std::string& name, const StyleSet& look) {
    month_.setStyleSet(name, look);
}

void MonthAdapter::SetDayStyle(const std::string& date, const std::string& style) {
    month_.setDayStyle(date, style);
}

void MonthAdapter::SetDayStyles(const std::vector<DayStyle>& days) {
    setStyles(month_, days);
}

void MonthAdapter::Refresh() {
    month_.Refresh();
}

std::optional<std::string> MonthAdapter::DateAt(int x, int y) const {
    if (const auto date = month_.dateAt(QPoint(x, y)))
        return writeDate(*date);
    return std::nullopt;
}

std::string YearAdapter::Date() const {
    return year_.Date();
}

void YearAdapter::SetDate(const std::string& date) {
    year_.setDate(date);
}

void YearAdapter::SetStyleSet(const std::string& name, const StyleSet& look) {
    year_.setStyleSet(name, look);
}

void YearAdapter::SetDayStyle(const std::string& date, const std::string& style) {
    year_.setDayStyle(date, style);
}

void YearAdapter::SetDayStyles(const std::vector<DayStyle>& days) {
    setStyles(year_, days);
}

}  // namespace velmora
