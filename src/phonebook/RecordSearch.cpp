#include "phonebook/RecordSearch.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace velmora {
namespace {

// The field in which each byte of a record lies.
constexpr std::array<std::uint8_t, kRecordSize> fieldOfByte() {
    std::array<std::uint8_t, kRecordSize> result{};
    for (std::size_t i = 0; i < kFieldCount; ++i)
        for (std::size_t at = 0; at < kFieldPlaces[i].width; ++at)
            result[kFieldPlaces[i].offset + at] = static_cast<std::uint8_t>(i);
    return result;
}

constexpr std::array<std::uint8_t, kRecordSize> kFieldOfByte = fieldOfByte();

}  // namespace

RecordSearch::RecordSearch(std::string_view text, FieldSet fields, const CodePage& codePage)
    : codePage_(codePage), fields_(fields), upperText_(codePage.upper(text)) {
    // Most bytes of a record are blanks, so a blank is the last to look for.
    const std::size_t shown = upperText_.find_first_not_of(' ');
    pivotAt_ = shown == std::string::npos ? 0 : shown;
    for (unsigned code = 0; code < 256; ++code)
        if (codePage.upper(static_cast<char>(code)) == upperText_[pivotAt_])
            pivots_ += static_cast<char>(code);
}

FieldSet RecordSearch::fieldsThatHold(RecordView record) const {
    FieldSet found;
    for (const char pivot : pivots_)
        lookForPivot(pivot, record, found);
    return found;
}

// Leaps from one pivot to the next; upper-casing every byte of the record takes many times longer.
void RecordSearch::lookForPivot(char pivot, RecordView record, FieldSet& found) const {
    const char* const begin = record.bytes().data();
    const char* const end = begin + kRecordSize;
    for (const char* at = begin; at < end; ++at) {
        at = static_cast<const char*>(std::memchr(at, pivot, static_cast<std::size_t>(end - at)));
        if (!at)
            return;
        const auto field = static_cast<Field>(kFieldOfByte[static_cast<std::size_t>(at - begin)]);
        const std::string_view raw = record.raw(field);
        const char* const fieldEnd = raw.data() + raw.size();
        const auto before = static_cast<std::size_t>(at - raw.data());
        const auto behind = static_cast<std::size_t>(fieldEnd - at);
        const bool fits = upperText_.size() - pivotAt_ <= behind;
        if (!fits || found.has(field) || !fields_.has(field)) {
            at = fieldEnd - 1;
        } else if (before >= pivotAt_ && standsAt(at - pivotAt_)) {
            found.add(field);
            at = fieldEnd - 1;
        }
    }
}

bool RecordSearch::standsAt(const char* place) const {
    return std::all_of(upperText_.begin(), upperText_.end(),
                       [&](char byte) { return codePage_.upper(*place++) == byte; });
}

}  // namespace velmora
