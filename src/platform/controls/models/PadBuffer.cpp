#include "platform/controls/models/PadBuffer.h"

#include <algorithm>
#include <utility>

namespace velmora {
namespace {

// Beyond this the oldest steps are forgotten.
constexpr std::size_t kMostKept = 200'000'000;

bool isBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

}  // namespace

PadBuffer::Change PadBuffer::replace(std::size_t position, std::size_t length,
                                     std::string_view with, Kind kind, Selection before) {
    const bool hasNext = position + length < size();
    const bool nextIsFeed = hasNext && bytes_[position + length] == '\n';
    const bool previousIsReturn = position > 0 && bytes_[position - 1] == '\r';
    const bool beginsWithFeed = with.empty() ? nextIsFeed : with.front() == '\n';
    if ((length == 0 && with.empty()) || (!(previousIsReturn && beginsWithFeed) &&
                                          !(nextIsFeed && !with.empty() && with.back() == '\r')))
        return apply(position, length, with, kind, before);
    std::string apart;
    if (previousIsReturn && beginsWithFeed)
        apart += '\n';
    apart += with;
    if (nextIsFeed && !with.empty() && with.back() == '\r')
        apart += '\n';
    return apply(position, length, apart, kind, before);
}

PadBuffer::Change PadBuffer::append(std::string_view bytes, Selection before) {
    return apply(size(), 0, bytes, Kind::Other, before);
}

PadBuffer::Change PadBuffer::apply(std::size_t position, std::size_t length, std::string_view with,
                                   Kind kind, Selection before) {
    const std::string removed = bytes_.substr(position, length);
    record({position, removed, std::string(with), before, kind});
    bytes_.replace(position, length, with);
    return {position, removed, with.size()};
}

bool PadBuffer::joinsLast(const Step& step) {
    if (!open_ || done_ == 0 || done_ != steps_.size() || steps_.back().kind != step.kind)
        return false;
    Step& last = steps_.back();
    if (step.kind == Kind::Typing) {
        if (!step.removed.empty() || step.position != last.position + last.inserted.size() ||
            step.inserted.empty() || last.inserted.empty())
            return false;
        // A word goes with the blanks behind it.
        if (isBlank(last.inserted.back()) && !isBlank(step.inserted.front()))
            return false;
        last.inserted += step.inserted;
        return true;
    }
    if (!step.inserted.empty() || !last.inserted.empty() || step.removed.empty() ||
        last.removed.empty())
        return false;
    if (step.position + step.removed.size() == last.position) {
        if (!isBlank(last.removed.front()) && isBlank(step.removed.back()))
            return false;
        last.removed.insert(0, step.removed);
        last.position = step.position;
        return true;
    }
    if (step.position != last.position ||
        (isBlank(last.removed.back()) && !isBlank(step.removed.front())))
        return false;
    last.removed += step.removed;
    return true;
}

void PadBuffer::record(Step step) {
    kept_ += step.removed.size() + step.inserted.size();
    const bool goesOn = step.kind != Kind::Other;
    if (!joinsLast(step)) {
        for (std::size_t i = done_; i < steps_.size(); ++i)
            kept_ -= steps_[i].removed.size() + steps_[i].inserted.size();
        steps_.resize(done_);
        steps_.push_back(std::move(step));
        std::size_t old = 0;
        while (kept_ > kMostKept && old + 1 < steps_.size()) {
            kept_ -= steps_[old].removed.size() + steps_[old].inserted.size();
            ++old;
        }
        steps_.erase(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(old));
        done_ = steps_.size();
    }
    open_ = goesOn;
}

std::optional<PadBuffer::Replay> PadBuffer::undo() {
    open_ = false;
    if (!canUndo())
        return std::nullopt;
    const Step& step = steps_[--done_];
    bytes_.replace(step.position, step.inserted.size(), step.removed);
    return Replay{{step.position, step.inserted, step.removed.size()}, step.before};
}

std::optional<PadBuffer::Replay> PadBuffer::redo() {
    open_ = false;
    if (!canRedo())
        return std::nullopt;
    const Step& step = steps_[done_++];
    bytes_.replace(step.position, step.removed.size(), step.inserted);
    const std::size_t behind = step.position + step.inserted.size();
    return Replay{{step.position, step.removed, step.inserted.size()}, {behind, behind}};
}

void PadBuffer::forgetHistory() {
    steps_.clear();
    done_ = 0;
    kept_ = 0;
    open_ = false;
}

bool PadBuffer::isPair(std::size_t position) const {
    return position + 1 < size() && bytes_[position] == '\r' && bytes_[position + 1] == '\n';
}

std::size_t PadBuffer::snapped(std::size_t position) const {
    const std::size_t inside = std::min(position, size());
    return inside > 0 && isPair(inside - 1) ? inside - 1 : inside;
}

std::size_t PadBuffer::lineBegin(std::size_t position) const {
    while (position > 0 && bytes_[position - 1] != '\r' && bytes_[position - 1] != '\n')
        --position;
    return position;
}

std::size_t PadBuffer::lineEnd(std::size_t position) const {
    while (position < size() && bytes_[position] != '\r' && bytes_[position] != '\n')
        ++position;
    return position;
}

}  // namespace velmora
