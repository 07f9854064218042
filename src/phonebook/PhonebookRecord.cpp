#include "phonebook/PhonebookRecord.h"

#include <algorithm>

#include "platform/Text.h"

namespace velmora {

PhonebookRecord::PhonebookRecord(std::span<const char> bytes) : PhonebookRecord() {
    std::copy_n(bytes.begin(), std::min(bytes.size(), kRecordSize), bytes_.begin());
}

std::string_view PhonebookRecord::raw(Field field) const {
    const FieldPlace place = placeOf(field);
    return {bytes_.data() + place.offset, place.width};
}

std::string_view PhonebookRecord::text(Field field) const {
    return fieldText(raw(field));
}

void PhonebookRecord::assign(Field field, std::string_view value) {
    const FieldPlace place = placeOf(field);
    const auto target = bytes_.begin() + static_cast<std::ptrdiff_t>(place.offset);
    const auto end = std::copy_n(value.begin(), std::min(value.size(), place.width), target);
    std::fill(end, target + static_cast<std::ptrdiff_t>(place.width), ' ');
}

}  // namespace velmora
