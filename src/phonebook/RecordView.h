#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "phonebook/PhonebookRecord.h"
#include "platform/Text.h"

namespace velmora {

// A record that lies in somebody else's memory, such as the block of a scan: looked at without
// copying. Valid as long as those bytes are.
class RecordView {
  public:
    // `bytes` points to kRecordSize bytes.
    explicit RecordView(const char* bytes) : bytes_(bytes) {}

    // A PhonebookRecord is looked at wherever a view is asked for.
    RecordView(const PhonebookRecord& record) : bytes_(record.bytes().data()) {}

    [[nodiscard]] std::span<const char, kRecordSize> bytes() const {
        return std::span<const char, kRecordSize>(bytes_, kRecordSize);
    }

    // The bytes of a field, all of its width.
    [[nodiscard]] std::string_view raw(Field field) const {
        const FieldPlace place = placeOf(field);
        return {bytes_ + place.offset, place.width};
    }

    // A field as readers see it: padding and leading blanks off.
    [[nodiscard]] std::string_view text(Field field) const { return fieldText(raw(field)); }

    // The first byte that a reader of the field sees; 0 for an empty field.
    [[nodiscard]] char firstByte(Field field) const {
        const FieldPlace place = placeOf(field);
        const char first = bytes_[place.offset];
        if (first != ' ' && first != '\0')
            return first;
        const std::string_view shown = text(field);
        return shown.empty() ? '\0' : shown.front();
    }

    // True for a field of blanks and NULs only.
    [[nodiscard]] bool isEmpty(Field field) const {
        return std::ranges::all_of(raw(field),
                                   [](char byte) { return byte == ' ' || byte == '\0'; });
    }

    [[nodiscard]] bool isAllNul(Field field) const {
        return std::ranges::all_of(raw(field), [](char byte) { return byte == '\0'; });
    }

  private:
    const char* bytes_;
};

}  // namespace velmora
