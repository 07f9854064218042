#include "platform/calendar/DayLayout.h"

#include <algorithm>
#include <numeric>

namespace velmora {
namespace {

using namespace std::chrono;

TimeSpan drawnSpan(TimeSpan span, minutes shortest) {
    const minutes end = std::min(std::max(span.end, span.begin + shortest), kDay);
    return {std::min(span.begin, std::max(minutes(0), end - shortest)), end};
}

// A run of blocks each of which overlaps one before it. All share their number of columns.
class Cluster {
  public:
    explicit Cluster(std::vector<PlacedBlock>& blocks) : blocks_(blocks) {}

    [[nodiscard]] bool reaches(minutes time) const { return time < end_; }

    void add(std::size_t index) {
        PlacedBlock& block = blocks_[index];
        const auto free = std::find_if(columnEnds_.begin(), columnEnds_.end(),
                                       [&](minutes end) { return end <= block.drawn.begin; });
        block.column = static_cast<int>(free - columnEnds_.begin());
        if (free == columnEnds_.end())
            columnEnds_.push_back(block.drawn.end);
        else
            *free = block.drawn.end;
        end_ = std::max(end_, block.drawn.end);
        members_.push_back(index);
    }

    // Ends the cluster and makes room for the next.
    void close() {
        for (const std::size_t index : members_)
            blocks_[index].columns = static_cast<int>(columnEnds_.size());
        members_.clear();
        columnEnds_.clear();
        end_ = minutes(0);
    }

  private:
    std::vector<PlacedBlock>& blocks_;
    std::vector<std::size_t> members_;
    std::vector<minutes> columnEnds_;
    minutes end_{0};
};

}  // namespace

std::vector<PlacedBlock> placeSideBySide(const std::vector<TimeSpan>& spans, minutes shortest) {
    std::vector<PlacedBlock> blocks(spans.size());
    for (std::size_t i = 0; i < spans.size(); ++i)
        blocks[i].drawn = drawnSpan(spans[i], shortest);
    std::vector<std::size_t> order(spans.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return blocks[a].drawn.begin < blocks[b].drawn.begin;
    });
    Cluster cluster(blocks);
    for (const std::size_t index : order) {
        if (!cluster.reaches(blocks[index].drawn.begin))
            cluster.close();
        cluster.add(index);
    }
    cluster.close();
    return blocks;
}

}  // namespace velmora
