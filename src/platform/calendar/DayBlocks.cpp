#include "platform/calendar/DayBlocks.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/Failure.h"

namespace velmora {

using namespace std::chrono;

DayBlocks::DayBlocks(std::function<void()> changed)
    : changed_(std::move(changed)), tasks_([this] {
          stale_ = true;
          changed_();
      }) {}

void DayBlocks::setFirstTime(std::string_view time) {
    column_.setFirst(time);
    stale_ = true;
}

void DayBlocks::setLastTime(std::string_view time) {
    column_.setLast(time);
    stale_ = true;
}

void DayBlocks::setShortest(minutes shortest) {
    if (shortest == shortest_)
        return;
    shortest_ = shortest;
    stale_ = true;
}

void DayBlocks::layOut() const {
    stale_ = false;
    std::vector<TimeSpan> spans;
    spans.reserve(static_cast<std::size_t>(tasks_.Count()));
    for (int i = 0; i < tasks_.Count(); ++i)
        spans.push_back(column_.spanOf(tasks_.Item(i)));
    const std::vector<PlacedBlock> places = placeSideBySide(spans, shortest_);
    std::vector<TimeSpan> drawn;
    drawn.reserve(places.size());
    blocks_.clear();
    for (std::size_t i = 0; i < places.size(); ++i) {
        drawn.push_back(places[i].drawn);
        blocks_.push_back({tasks_.idOf(static_cast<int>(i)), spans[i], places[i]});
    }
    shown_ = column_.shown(drawn);
}

const std::vector<DayBlock>& DayBlocks::all() const {
    if (stale_)
        layOut();
    return blocks_;
}

const DayBlock& DayBlocks::at(int index) const {
    if (index < 0 || index >= tasks_.Count())
        throw Failure("There is no block number " + std::to_string(index) + ".");
    return all()[static_cast<std::size_t>(index)];
}

TimeSpan DayBlocks::shown() const {
    (void)all();
    return shown_;
}

std::optional<minutes> DayBlocks::firstBegin() const {
    const auto first = std::min_element(
        all().begin(), all().end(),
        [](const DayBlock& a, const DayBlock& b) { return a.span.begin < b.span.begin; });
    return first == blocks_.end() ? std::nullopt : std::optional(first->span.begin);
}

int DayBlocks::countIn(minutes slot) const {
    return static_cast<int>(
        std::count_if(all().begin(), all().end(), [slot](const DayBlock& block) {
            return block.span.begin < slot + kSlot && block.span.end > slot;
        }));
}

std::vector<int> DayBlocks::inTime() const {
    std::vector<int> order(all().size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [this](int a, int b) {
        return blocks_[static_cast<std::size_t>(a)].span.begin <
               blocks_[static_cast<std::size_t>(b)].span.begin;
    });
    return order;
}

}  // namespace velmora
