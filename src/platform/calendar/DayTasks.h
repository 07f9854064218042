#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/calendar/DayTask.h"

namespace velmora {

// The blocks of a day view in the order in which they were added, however their times lie. Indices
// count from 0; one that is out of range is a Failure.
class DayTasks {
  public:
    // Tells a block from all others, also after indices have moved. Never given twice.
    using Id = std::uint64_t;

    // `changed` is called after each change that can be seen. One tag in the place of another can
    // not; the first one, and its loss, can: a block without one is not stored.
    explicit DayTasks(std::function<void()> changed = [] {}) : changed_(std::move(changed)) {}

    void Add(std::string BeginTime, std::string EndTime, std::string Text);
    void RemoveAll();
    void Remove(int index);

    [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()); }
    [[nodiscard]] const DayTask& Item(int index) const { return entries_[checked(index)].task; }

    void setBeginTime(int index, std::string time);
    void setEndTime(int index, std::string time);
    void setText(int index, std::string text);
    void setTagVariant(int index, std::string tag);

    [[nodiscard]] Id idOf(int index) const { return entries_[checked(index)].id; }
    // -1 for a block that is gone.
    [[nodiscard]] int indexOf(Id id) const;

  private:
    struct Entry {
        Id id;
        DayTask task;
    };

    [[nodiscard]] std::size_t checked(int index) const;

    std::function<void()> changed_;
    std::vector<Entry> entries_;
    Id nextId_ = 1;
};

}  // namespace velmora
