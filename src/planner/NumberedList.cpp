#include "planner/NumberedList.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

#include "platform/CodePage.h"
#include "platform/FatalFailure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

// Beyond any list, and still a whole number of its own as text.
constexpr std::int64_t kHighestCount = 999'999'999'999'999;

std::int64_t countOf(std::string_view text) {
    const double number = readNumber(text);
    return static_cast<std::int64_t>(std::clamp(number, 0.0, static_cast<double>(kHighestCount)));
}

// A number as keys hold it, without zeros in front, and what stands behind it.
std::optional<std::pair<std::int64_t, std::string_view>> splitNumber(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 1 || number > kHighestCount || text.front() == '0')
        return std::nullopt;
    return std::pair(number, text.substr(static_cast<std::size_t>(end - text.data())));
}

std::string_view textOf(const std::optional<std::string>& value) {
    return value ? std::string_view(*value) : std::string_view();
}

bool sameKey(std::string_view a, std::string_view b) {
    return CodePage::western().equalIgnoringCase(a, b);
}

}  // namespace

// The list as it lies in the settings.
struct NumberedList::Stored {
    struct Entry {
        std::optional<std::string> time;
        std::optional<std::string> message;
    };
    std::int64_t count = 0;
    std::map<std::int64_t, Entry> entries;  // those up to the count of which a key is there
};

struct NumberedList::Row {
    std::string time;
    std::string message;
};

NumberedList::NumberedList(SettingsStore& settings, NumberedListShape shape)
    : settings_(settings), shape_(std::move(shape)) {}

std::int64_t NumberedList::count() const {
    return countOf(settings_.Read(shape_.countKey));
}

NumberedList::Stored NumberedList::read() const {
    Stored stored;
    for (Setting& setting : settings_.readAll(shape_.prefix)) {
        if (sameKey(setting.key, shape_.countKey)) {
            stored.count = countOf(setting.value);
            continue;
        }
        const auto found = splitNumber(std::string_view(setting.key).substr(shape_.prefix.size()));
        if (!found)
            continue;
        if (sameKey(found->second, shape_.messageSuffix))
            stored.entries[found->first].message = std::move(setting.value);
        else if (hasTimes() && sameKey(found->second, shape_.timeSuffix))
            stored.entries[found->first].time = std::move(setting.value);
    }
    stored.entries.erase(stored.entries.upper_bound(stored.count), stored.entries.end());
    return stored;
}

std::vector<NumberedEntry> NumberedList::entries() const {
    return entriesOf(read());
}

std::vector<NumberedEntry> NumberedList::entriesOf(const Stored& stored) const {
    std::vector<NumberedEntry> result;
    result.reserve(stored.entries.size());
    std::int64_t next = 1;
    for (const auto& [number, entry] : stored.entries) {
        for (; next < std::min(number, shape_.mostEntries + 1); ++next)
            result.push_back({next, {}, {}});
        result.push_back({number, entry.time.value_or(""), entry.message.value_or("")});
        next = number + 1;
    }
    return result;
}

std::optional<NumberedEntry> NumberedList::find(const Matches& matches) const {
    return findIn(read(), matches);
}

std::optional<NumberedEntry> NumberedList::findIn(const Stored& stored,
                                                  const Matches& matches) const {
    std::vector<NumberedEntry> all = entriesOf(stored);
    const auto found = std::find_if(all.begin(), all.end(), matches);
    return found == all.end() ? std::nullopt : std::optional(std::move(*found));
}

void NumberedList::append(std::string_view time, std::string_view message) {
    replaceOrAppend([](const NumberedEntry&) { return false; }, time, message);
}

void NumberedList::replaceOrAppend(const Matches& matches, std::string_view time,
                                   std::string_view message) {
    settings_.batch([&] {
        const Stored stored = read();
        if (const auto same = findIn(stored, matches)) {
            put(same->number, time, message);
            return;
        }
        const std::int64_t number = std::min(stored.count + 1, kHighestCount);
        settings_.Save(shape_.countKey, std::to_string(number));
        put(number, time, message);
    });
}

bool NumberedList::remove(const Matches& matches) {
    bool removed = false;
    settings_.batch([&] {
        const Stored stored = read();
        const auto found = findIn(stored, matches);
        if (!found)
            return;
        closeUp(stored, found->number);
        removed = true;
    });
    return removed;
}

void NumberedList::put(std::int64_t number, std::string_view time, std::string_view message) {
    if (hasTimes())
        settings_.Save(timeKey(number), time);
    settings_.Save(messageKey(number), message);
}

std::vector<NumberedList::Row> NumberedList::rowsWithout(std::int64_t removed,
                                                         const Stored& stored) const {
    std::vector<Row> rows;
    bool rowEnded = true;  // the next text begins a row
    const auto row = [&]() -> Row& {
        if (std::exchange(rowEnded, false))
            rows.emplace_back();
        if (std::ssize(rows) > shape_.mostEntries)
            throw FatalFailure("More than " + std::to_string(shape_.mostEntries) +
                               " entries can not be moved up. Nothing was removed.");
        return rows.back();
    };
    for (const auto& [number, entry] : stored.entries) {
        if (number == removed)
            continue;
        if (const auto time = trimBlanks(textOf(entry.time)); !time.empty())
            row().time = time;
        if (const auto message = trimBlanks(textOf(entry.message)); !message.empty()) {
            row().message = message;
            rowEnded = true;
        }
    }
    return rows;
}

// Only keys that change are written; the result is that of taking all away and writing the rows.
void NumberedList::closeUp(const Stored& stored, std::int64_t removed) {
    std::vector<Row> rows = rowsWithout(removed, stored);
    const std::int64_t count = std::max<std::int64_t>(stored.count - 1, 0);
    // Behind these are nothing but empty entries, and a missing key reads as one.
    const std::int64_t highest = stored.entries.empty() ? 0 : stored.entries.rbegin()->first;
    const std::int64_t last = std::min({count, highest, shape_.mostEntries});
    rows.resize(static_cast<std::size_t>(last));

    static const Stored::Entry kNone;
    for (std::int64_t number = 1; number <= last; ++number) {
        const Row& row = rows[static_cast<std::size_t>(number - 1)];
        const auto found = stored.entries.find(number);
        const Stored::Entry& before = found == stored.entries.end() ? kNone : found->second;
        if (hasTimes() && before.time != row.time)
            settings_.Save(timeKey(number), row.time);
        if (before.message != row.message)
            settings_.Save(messageKey(number), row.message);
    }
    for (auto left = stored.entries.upper_bound(last); left != stored.entries.end(); ++left) {
        if (left->second.time)
            settings_.remove(timeKey(left->first));
        if (left->second.message)
            settings_.remove(messageKey(left->first));
    }
    settings_.Save(shape_.countKey, std::to_string(count));
}

std::string NumberedList::timeKey(std::int64_t number) const {
    return shape_.prefix + std::to_string(number) + std::string(shape_.timeSuffix);
}

std::string NumberedList::messageKey(std::int64_t number) const {
    return shape_.prefix + std::to_string(number) + std::string(shape_.messageSuffix);
}

}  // namespace velmora
