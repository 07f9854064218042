#include "planner/DayStyleCollector.h"

#include <algorithm>
#include <optional>

#include "planner/StoredText.h"

namespace velmora {

void DayStyleCollector::add(std::string_view storedDate, std::string_view utf8Style) {
    if (const auto date = readStoredDay(storedDate)) {
        Day& day = dayAt(*date);
        const Number style = numberOf(utf8Style);
        if (day.latest == kNone || named_[day.latest].style != style)
            makeLatest(day, style);
    }
}

DayStyleCollector::Day& DayStyleCollector::dayAt(std::chrono::year_month_day day) {
    const auto year = static_cast<std::size_t>(int(day.year()));
    if (year >= years_.size())
        years_.resize(year + 1);
    if (!years_[year]) {
        years_[year] = std::make_unique<Year>();
        years_[year]->fill(kNone);
    }
    Number& place = (*years_[year])[(unsigned(day.month()) - 1) * 31 + unsigned(day.day()) - 1];
    if (place == kNone) {
        place = static_cast<Number>(days_.size());
        days_.push_back({day, kNone});
    }
    return days_[place];
}

// The style moves from wherever it stands in the day's chain to its head.
void DayStyleCollector::makeLatest(Day& day, Number style) {
    Number* link = &day.latest;
    while (*link != kNone && named_[*link].style != style)
        link = &named_[*link].earlier;
    if (*link == kNone) {
        named_.push_back({style, day.latest});
        day.latest = static_cast<Number>(named_.size() - 1);
        return;
    }
    const Number moved = *link;
    *link = named_[moved].earlier;
    named_[moved].earlier = day.latest;
    day.latest = moved;
}

DayStyleCollector::Number DayStyleCollector::numberOf(std::string_view utf8Style) {
    if (lastStyle_ != kNone && styles_[lastStyle_] == utf8Style)
        return lastStyle_;
    const auto place = styleNumbers_.find(utf8Style);
    if (place != styleNumbers_.end())
        return lastStyle_ = place->second;
    lastStyle_ = static_cast<Number>(styles_.size());
    styles_.emplace_back(utf8Style);
    styleNumbers_.emplace(utf8Style, lastStyle_);
    return lastStyle_;
}

std::vector<DayStyle> DayStyleCollector::result() const {
    std::vector<std::string> names;
    for (const std::string& style : styles_)
        names.push_back(codePage_.fromUtf8(style));
    std::vector<DayStyle> result;
    result.reserve(named_.size());
    for (const Day& day : days_) {
        const auto first = static_cast<std::ptrdiff_t>(result.size());
        for (Number at = day.latest; at != kNone; at = named_[at].earlier)
            result.push_back({day.day, names[named_[at].style]});
        std::reverse(result.begin() + first, result.end());
    }
    return result;
}

}  // namespace velmora
