#include "planner/ClockTime.h"

#include <algorithm>

#include "platform/Format.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr int kMinutesOfHour = 60;
constexpr int kMinutesOfDay = 24 * kMinutesOfHour;

}  // namespace

ClockTime ClockTime::of(Moment moment) {
    const auto minutes = std::chrono::floor<std::chrono::minutes>(timeOfDay(moment)).count();
    return {static_cast<int>(minutes / kMinutesOfHour), static_cast<int>(minutes % kMinutesOfHour)};
}

ClockTime ClockTime::fromText(std::string_view text) {
    const std::size_t colon = std::min(text.find(':'), text.size());
    const std::string_view minutes = colon < text.size() ? text.substr(colon + 1, 2) : "";
    return {std::clamp(readWhole(text.substr(0, colon)), 0, 23),
            std::clamp(readWhole(minutes), 0, 59)};
}

std::string ClockTime::text() const {
    return twoDigits(hour) + ":" + twoDigits(minute);
}

ClockTime ClockTime::plusMinutes(int minutes) const {
    const int sum = (hour * kMinutesOfHour + minute + minutes) % kMinutesOfDay;
    return {sum / kMinutesOfHour, sum % kMinutesOfHour};
}

std::string twoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string shownTime(std::string_view stored) {
    static const LocaleFormats kEnglish;  // the pattern has no words of a language
    return std::string(trimBlanks(formatTimeText(stored, "hh:mm", kEnglish)));
}

}  // namespace velmora
