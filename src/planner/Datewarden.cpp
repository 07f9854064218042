#include "planner/Datewarden.h"

#include <algorithm>

#include "planner/ListShapes.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kSuggestedText = "New Event Today!";
constexpr const char* kDefaultText = "Event Set For This Date.";
constexpr int kMonths = static_cast<int>(kMonthNames.size());

}  // namespace

Datewarden::Datewarden(SettingsStore& settings, Messages& messages, const Clock& clock)
    : occasions_(settings), messages_(messages), clock_(clock) {
    Open();
}

void Datewarden::Open() {
    const auto today = dateOf(clock_.now());
    day_ = {unsigned(today.month()), unsigned(today.day())};
    text_ = kSuggestedText;
}

void Datewarden::setMonth(int month) {
    day_.month = static_cast<unsigned>(std::clamp(month, 1, kMonths));
    setDay(day());
}

void Datewarden::setDay(int day) {
    day_.day = static_cast<unsigned>(std::clamp(day, 1, highestDay()));
}

std::string Datewarden::monthLabel() const {
    return std::string(kMonthNames[day_.month - 1]);
}

std::string Datewarden::dayLabel() const {
    return (day_.day < 10 ? "0" : "") + std::to_string(day_.day);
}

void Datewarden::Add() {
    if (trimBlanks(text_).empty())
        text_ = kDefaultText;
    occasions_.Add(day_, text_);
}

void Datewarden::Click(std::string_view line) {
    const OccasionLine clicked = splitOccasionLine(line);
    text_ = clicked.text;
    setMonth(static_cast<int>(clicked.day.month));
    setDay(static_cast<int>(clicked.day.day));
}

bool Datewarden::Remove(std::string_view line) {
    if (line.empty() ||
        !messages_.ask("Remove Event?", "Are you sure you wish to remove this entry?", Answer::No))
        return false;
    occasions_.Remove(line);
    return true;
}

}  // namespace velmora
