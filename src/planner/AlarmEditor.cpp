#include "planner/AlarmEditor.h"

#include <algorithm>
#include <utility>

#include "planner/ListShapes.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kFirstMessage = "Alarm triggered";
constexpr const char* kMessageOfNone = "Alarm Set For This Time.";

NumberedList::Matches at(const std::string& time) {
    return [&time](const NumberedEntry& entry) { return shownTime(entry.time) == time; };
}

}  // namespace

AlarmEditor::AlarmEditor(SettingsStore& settings, const Clock& clock,
                         std::function<std::chrono::year_month_day()> shownDay)
    : settings_(settings), clock_(clock), shownDay_(std::move(shownDay)) {}

void AlarmEditor::Open() {
    time_ = ClockTime::of(clock_.now());
    message_ = kFirstMessage;
    fill();
}

void AlarmEditor::AddOrChange() {
    if (message_.empty())
        message_ = kMessageOfNone;
    const std::string time = time_.text();
    list().replaceOrAppend(at(time), time, message_);
    fill();
}

void AlarmEditor::Pick(const std::string& line) {
    const auto alarm = list().find(at(line));
    if (!alarm)
        return;
    message_ = alarm->message;
    time_ = ClockTime::fromText(line);
}

void AlarmEditor::Remove(const std::string& line) {
    if (trimBlanks(line).empty())
        return;
    message_.clear();
    const auto known = std::find_if(shown_.begin(), shown_.end(), at(line));
    const bool removed = known != shown_.end() && list().remove([&](const NumberedEntry& entry) {
        return entry.time == known->time && entry.message == known->message;
    });
    fill();
    if (removed)
        return;
    if (const auto changed = list().find(at(line)))
        message_ = changed->message;
}

NumberedList AlarmEditor::list() const {
    return {settings_, alarmsOf(shownDay_())};
}

void AlarmEditor::fill() {
    times_.clear();
    shown_ = list().entries();
    for (const NumberedEntry& entry : shown_)
        if (std::string time = shownTime(entry.time); !time.empty())
            times_.push_back(std::move(time));
}

}  // namespace velmora
