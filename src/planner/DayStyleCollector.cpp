#include "planner/DayStyleCollector.h"

#include <algorithm>

#include "planner/StoredText.h"

namespace velmora {

namespace {

std::uint32_t keyOf(std::chrono::year_month_day day) {
    return static_cast<std::uint32_t>(int(day.year())) << 16 | unsigned(day.month()) << 8 |
           unsigned(day.day());
}

}  // namespace

void DayStyleCollector::add(std::string_view storedDate, std::string_view utf8Style) {
    const auto day = readStoredDay(storedDate);
    if (!day)
        return;
    const auto [place, isNew] = dayPlaces_.try_emplace(keyOf(*day), days_.size());
    if (isNew)
        days_.push_back({*day, {}});
    auto& styles = days_[place->second].styles;
    const StyleNumber style = numberOf(utf8Style);
    if (!styles.empty() && styles.back() == style)
        return;
    styles.erase(std::remove(styles.begin(), styles.end(), style), styles.end());
    styles.push_back(style);
}

DayStyleCollector::StyleNumber DayStyleCollector::numberOf(std::string_view utf8Style) {
    if (lastStyle_ < styles_.size() && styles_[lastStyle_] == utf8Style)
        return lastStyle_;
    const auto [place, isNew] =
        styleNumbers_.try_emplace(std::string(utf8Style), static_cast<StyleNumber>(styles_.size()));
    if (isNew)
        styles_.emplace_back(utf8Style);
    return lastStyle_ = place->second;
}

std::vector<DayStyle> DayStyleCollector::take() {
    std::vector<DayStyle> result;
    result.reserve(days_.size());
    for (const Day& day : days_)
        for (const StyleNumber style : day.styles)
            result.push_back({day.day, codePage_.fromUtf8(styles_[style])});
    days_.clear();
    dayPlaces_.clear();
    return result;
}

}  // namespace velmora
