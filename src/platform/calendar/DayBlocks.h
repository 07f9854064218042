#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/calendar/DayLayout.h"
#include "platform/calendar/DayTasks.h"
#include "platform/calendar/TimeColumn.h"

namespace velmora {

// A block of a day: the time that it takes, and where it is drawn.
struct DayBlock {
    DayTasks::Id id;
    TimeSpan span;
    PlacedBlock place;
};

// The tasks of a day as blocks in time, in the order of the tasks. They are laid out when they are
// first asked for after a change.
class DayBlocks {
  public:
    // `changed` is called after each change of the tasks.
    explicit DayBlocks(std::function<void()> changed);

    [[nodiscard]] DayTasks& tasks() { return tasks_; }
    [[nodiscard]] const DayTasks& tasks() const { return tasks_; }

    // First and last time of the day; see TimeColumn.
    void setFirstTime(std::string_view time);
    void setLastTime(std::string_view time);

    // A block is drawn at least that long.
    void setShortest(std::chrono::minutes shortest);

    [[nodiscard]] const std::vector<DayBlock>& all() const;
    // Throws Failure for an index without a block.
    [[nodiscard]] const DayBlock& at(int index) const;

    // First and last time, widened to the blocks that lie outside them.
    [[nodiscard]] TimeSpan shown() const;

    // When the first block by time begins; nothing without blocks.
    [[nodiscard]] std::optional<std::chrono::minutes> firstBegin() const;

    // How many blocks take time of a slot.
    [[nodiscard]] int countIn(std::chrono::minutes slot) const;

    // The indices by the time at which the blocks begin.
    [[nodiscard]] std::vector<int> inTime() const;

  private:
    void layOut() const;

    std::function<void()> changed_;
    DayTasks tasks_;
    TimeColumn column_;
    std::chrono::minutes shortest_{0};

    mutable bool stale_ = true;
    mutable TimeSpan shown_{std::chrono::minutes(0), kDay};
    mutable std::vector<DayBlock> blocks_;
};

}  // namespace velmora
