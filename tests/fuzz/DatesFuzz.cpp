// Reads any text as a stored day, a moment, a date and a time. What can be read lies in its bounds,
// and comes back from what is written of it.

#include <string>

#include "fuzz/Fuzzing.h"
#include "planner/ClockTime.h"
#include "planner/StoredText.h"
#include "planner/UnstoredTasks.h"
#include "platform/DateText.h"
#include "platform/Format.h"

namespace velmora {
namespace {

using fuzz::require;
using std::chrono::year;
using std::chrono::year_month_day;

void checkDay(year_month_day day) {
    require(day.ok(), "a day that is one");
    require(readStoredDay(storedDay(day)) == day, "a stored day comes back");
}

void checkDate(std::string_view text, year pivot) {
    if (const auto day = readStoredDay(text)) {
        checkDay(*day);
        require(storedDay(*day) == text, "only stored days are read as such");
    }
    if (const auto day = readDate(text, pivot)) {
        checkDay(*day);
        require(int(day->year()) >= 100 && int(day->year()) <= 9999, "the year is in its bounds");
        require(readDate(writeDate(*day), pivot) == day, "a date comes back");
        require(readDate(storedDay(*day), pivot) == day, "a stored day is a date");
    }
}

void checkMoment(std::string_view text, year pivot) {
    const auto moment = readMoment(text, pivot);
    if (!moment)
        return;
    const std::string stored = storedMoment(*moment);
    require(stored.size() == 19, "the length of a stored moment");
    require(readMoment(stored, pivot) == moment, "a stored moment comes back");
}

void checkTime(std::string_view text) {
    if (const auto time = readTimeOfDay(text)) {
        require(time->count() >= 0 && *time < std::chrono::days(1), "a time is one of a day");
        const std::string shown = formatTimeText(text, "hh:nn:ss", LocaleFormats());
        require(readTimeOfDay(shown) == time, "a time comes back");
    } else {
        require(formatTimeText(text, "hh:nn", LocaleFormats()) == text, "no time stays as it is");
    }
    const ClockTime clock = ClockTime::fromText(text);
    require(clock.hour >= 0 && clock.hour < 24 && clock.minute >= 0 && clock.minute < 60,
            "the hands of a clock");
    require(ClockTime::fromText(clock.text()) == clock, "the hands come back");
    require(shownTime(shownTime(text)) == shownTime(text), "a time that is shown is shown so");
}

void checkPattern(std::string_view pattern, Moment moment) {
    constexpr std::size_t kLongestName = 9;  // "September", "Wednesday"
    require(formatMoment(moment, pattern, LocaleFormats()).size() <=
                kLongestName * (pattern.size() + 1),
            "a pattern does not grow without bounds");
}

void checkUnstored(std::string_view text) {
    const UnstoredTasks tasks = UnstoredTasks::read(text);
    const std::string written = tasks.text();
    require(UnstoredTasks::read(written).text() == written, "what is not stored comes back");
    for (const auto& [day, all] : tasks.all())
        require(day.ok() && !all.empty(), "each day has something");
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    fuzz::Input input(data, size);
    const year pivot(100 + static_cast<int>(input.upTo(9899)));
    const std::string_view text = input.rest();
    checkDate(text, pivot);
    checkMoment(text, pivot);
    checkTime(text);
    const auto moment = readMoment(text.substr(0, text.find('|')), pivot);
    checkPattern(text.substr(std::min(text.find('|'), text.size())), moment.value_or(Moment()));
    checkUnstored(text);
    return 0;
}
