#include "platform/calendar/TimeColumn.h"

#include <algorithm>
#include <optional>

#include "platform/Failure.h"
#include "platform/Format.h"

namespace velmora {
namespace {

using namespace std::chrono;

minutes roundedDown(minutes time, minutes step) {
    return time - time % step;
}

minutes roundedUp(minutes time, minutes step) {
    return roundedDown(time + step - minutes(1), step);
}

minutes snapped(minutes time) {
    const auto half = minutes(kDragStep.count() / 2);
    return time < minutes(0) ? minutes(0) : roundedDown(time + half, kDragStep);
}

std::optional<minutes> readMinutes(std::string_view text) {
    const auto time = readTimeOfDay(text);
    if (!time)
        return std::nullopt;
    return floor<minutes>(*time);
}

minutes limit(std::string_view text) {
    const auto time = readMinutes(text);
    if (!time)
        throw Failure("A limit of the day view has to be a time of day.");
    return *time;
}

}  // namespace

std::string writeTime(minutes time) {
    const auto within = std::clamp(time, minutes(0), kDay - minutes(1));
    return formatMoment(Moment(local_days(year(2000) / 1 / 1)) + within, "hh:nn AM/PM",
                        LocaleFormats());
}

void TimeColumn::setFirst(std::string_view time) {
    first_ = limit(time);
    settle();
}

void TimeColumn::setLast(std::string_view time) {
    last_ = limit(time);
    settle();
}

void TimeColumn::settle() {
    const minutes end = last_ == minutes(0) ? kDay : roundedUp(last_ + minutes(1), hours(1));
    if (first_ <= last_ || last_ == minutes(0))
        limits_ = {roundedDown(first_, kSlot), end};
}

TimeSpan TimeColumn::shown(const std::vector<TimeSpan>& spans) const {
    TimeSpan shown = limits_;
    for (const TimeSpan& span : spans) {
        shown.begin = std::min(shown.begin, roundedDown(span.begin, kSlot));
        shown.end = std::max(shown.end, roundedUp(span.end, kSlot));
    }
    return shown;
}

TimeSpan TimeColumn::spanOf(const DayTask& task) const {
    const minutes begin = readMinutes(task.BeginTime).value_or(limits_.begin);
    const minutes end = readMinutes(task.EndTime).value_or(minutes(0));
    return {begin, end > begin ? end : std::min(begin + kSlot, kDay)};
}

TimeSpan dragged(TimeSpan span, Grip grip, minutes by, TimeSpan bounds) {
    switch (grip) {
        case Grip::Begin:
            span.begin =
                std::clamp(snapped(span.begin + by), bounds.begin,
                           std::max(bounds.begin, roundedUp(span.end, kDragStep) - kDragStep));
            break;
        case Grip::End:
            span.end = std::clamp(
                snapped(span.end + by),
                std::min(bounds.end, roundedDown(span.begin, kDragStep) + kDragStep), bounds.end);
            break;
        case Grip::Whole: {
            const minutes length = span.end - span.begin;
            const minutes latest = std::max(bounds.begin, bounds.end - length);
            span.begin = std::clamp(snapped(span.begin + by), bounds.begin, latest);
            span.end = std::min(span.begin + length, kDay);
            break;
        }
    }
    return span;
}

}  // namespace velmora
