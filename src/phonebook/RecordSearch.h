#pragma once

#include <string>
#include <string_view>

#include "phonebook/RecordView.h"
#include "phonebook/SearchFields.h"
#include "platform/CodePage.h"

namespace velmora {

// Looks which fields of a record hold a text, whatever its case. Both are taken as they are,
// padding included: a blank is found in every padded field.
class RecordSearch {
  public:
    // Only `fields` are looked at. `codePage` must outlive the search. REQUIRES: !text.empty().
    RecordSearch(std::string_view text, FieldSet fields, const CodePage& codePage);

    // Makes no copy of the record.
    [[nodiscard]] FieldSet fieldsThatHold(RecordView record) const;

  private:
    void lookForPivot(char pivot, RecordView record, FieldSet& found) const;
    [[nodiscard]] bool standsAt(const char* place) const;

    const CodePage& codePage_;
    FieldSet fields_;
    std::string upperText_;
    std::size_t pivotAt_ = 0;  // the byte of the text that is looked for first
    std::string pivots_;       // the bytes that are it, in either case
};

}  // namespace velmora
