#pragma once

#include <array>
#include <string_view>

#include "phonebook/RecordView.h"
#include "platform/CodePage.h"

namespace velmora {

// The tabs of the phonebook: 0 to 25 are "A" to "Z", 26 is "#".
inline constexpr int kBucketCount = 27;
inline constexpr int kSymbolBucket = 26;

struct Bucket {
    std::string_view name;      // "AName" to "ZName", "#"; its first character is the letter
    std::string_view countKey;  // "ANu" to "ZNu", "SyNu"
};

// Throws Failure for an index outside 0 to 26.
[[nodiscard]] const Bucket& bucketAt(int index);

// The tab of a text by its first character, blanks at its ends aside: 26 for all that is no
// letter from A to Z, and for the empty text.
[[nodiscard]] int bucketOfText(std::string_view text, const CodePage& codePage);

// The tab of an entry: that of its last name or, without one, of its company.
[[nodiscard]] int bucketOf(RecordView record, const CodePage& codePage);

// Says which records a tab may show. Looks at one byte of most records: a tombstone may pass.
class BucketFilter {
  public:
    // `bucketName` is that of a Bucket; its first character decides.
    BucketFilter(std::string_view bucketName, const CodePage& codePage);

    [[nodiscard]] bool passes(RecordView record) const {
        const bool person = !record.isEmpty(Field::Last);
        const char first = record.firstByte(person ? Field::Last : Field::Company);
        return accepted_[static_cast<unsigned char>(first)];
    }

  private:
    std::array<bool, 256> accepted_{};
};

}  // namespace velmora
