#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "phonebook/BookRecords.h"
#include "phonebook/EntryTexts.h"
#include "phonebook/RecordView.h"
#include "platform/CodePage.h"

namespace velmora {

// A name from a list of names, as everything that goes through a whole book looks it up: what
// stands before the first comma is the last name, what begins with the second character behind it
// the first name; without a comma it is a company. Case does not count.
class WantedName {
  public:
    // `codePage` must outlive the name.
    WantedName(std::string_view line, const CodePage& codePage);

    [[nodiscard]] bool isPerson() const { return isPerson_; }

    // A name that begins with a comma fits none; a company none with a last name.
    [[nodiscard]] bool fits(RecordView record) const;
    [[nodiscard]] bool fits(const EntryTexts& entry) const;

    // Equal for all names that fit the same records.
    [[nodiscard]] std::string key() const;

  private:
    [[nodiscard]] bool fits(std::string_view last, std::string_view first,
                            std::string_view company) const;

    const CodePage* codePage_;
    bool isPerson_ = false;
    std::string last_;  // upper-cased, as the others
    std::string first_;
    std::string company_;
};

// Which records of a book have which name, so that a run over many names need not read the whole
// book for each. It knows the book as it was when its records were added; whoever uses it looks at
// the record again.
//
// What reports, exports, letters and imports look up here differs only by what they then ask of the
// record.
class NameIndex {
  public:
    // `codePage` must outlive the index.
    explicit NameIndex(const CodePage& codePage) : codePage_(codePage) {}

    void clear() { records_.clear(); }

    // So many records are to be added.
    void reserve(RecordNumber records) { records_.reserve(static_cast<std::size_t>(records)); }

    // Each record comes once. Those that come in the order of the book come fastest.
    void add(RecordNumber number, RecordView record);

    // The records that may fit, in the order of the book.
    [[nodiscard]] const std::vector<RecordNumber>& of(const WantedName& name) const;

    // Those that may be called as this record is.
    [[nodiscard]] const std::vector<RecordNumber>& of(RecordView record) const;

  private:
    [[nodiscard]] std::string keyOf(RecordView record) const;
    [[nodiscard]] const std::vector<RecordNumber>& at(const std::string& key) const;

    const CodePage& codePage_;
    std::unordered_map<std::string, std::vector<RecordNumber>> records_;
    const std::vector<RecordNumber> none_;
};

}  // namespace velmora
