#include "platform/calendar/DayTasks.h"

#include <utility>

#include "platform/Failure.h"

namespace velmora {

std::size_t DayTasks::checked(int index) const {
    if (index < 0 || index >= Count())
        throw Failure("There is no task number " + std::to_string(index) + ".");
    return static_cast<std::size_t>(index);
}

void DayTasks::Add(std::string BeginTime, std::string EndTime, std::string Text) {
    entries_.push_back(
        {nextId_++, {std::move(BeginTime), std::move(EndTime), std::move(Text), std::string()}});
    changed_();
}

void DayTasks::RemoveAll() {
    entries_.clear();
    changed_();
}

void DayTasks::Remove(int index) {
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(checked(index)));
    changed_();
}

void DayTasks::setBeginTime(int index, std::string time) {
    entries_[checked(index)].task.BeginTime = std::move(time);
    changed_();
}

void DayTasks::setEndTime(int index, std::string time) {
    entries_[checked(index)].task.EndTime = std::move(time);
    changed_();
}

void DayTasks::setText(int index, std::string text) {
    entries_[checked(index)].task.text = std::move(text);
    changed_();
}

void DayTasks::setTagVariant(int index, std::string tag) {
    std::string& present = entries_[checked(index)].task.TagVariant;
    const bool seen = present.empty() != tag.empty();
    present = std::move(tag);
    if (seen)
        changed_();
}

int DayTasks::indexOf(Id id) const {
    for (std::size_t i = 0; i < entries_.size(); ++i)
        if (entries_[i].id == id)
            return static_cast<int>(i);
    return -1;
}

}  // namespace velmora
