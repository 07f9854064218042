#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "phonebook/BookRecords.h"
#include "phonebook/RecordView.h"

namespace velmora {

// The texts of an entry's fields as readers see them; valid as long as the bytes are, wherever they
// lie. A field that was never set is empty.
class EntryTexts {
  public:
    [[nodiscard]] std::string_view text(Field field) const {
        return texts_[static_cast<std::size_t>(field)];
    }
    void set(Field field, std::string_view text) { texts_[static_cast<std::size_t>(field)] = text; }

  private:
    std::array<std::string_view, kFieldCount> texts_;
};

// Some fields of all records of a book, in memory and without their padding: for runs that look at
// the records in another order than that in which they lie. It knows the book as it was when its
// records were added.
class KeptTexts {
  public:
    // `fields`: those that are kept.
    explicit KeptTexts(std::vector<Field> fields) : fields_(std::move(fields)) {}

    void clear();

    // So many records are to be added.
    void reserve(RecordNumber records) { places_.reserve(static_cast<std::size_t>(records)); }

    // Records come in the order of the book, from 1 without a gap.
    void add(RecordView record);

    // Of a record that was added; valid until the next call of add() or clear().
    [[nodiscard]] EntryTexts of(RecordNumber number) const;

  private:
    std::vector<Field> fields_;
    std::vector<std::size_t> places_;  // of the records in the bytes
    std::string bytes_;                // of each field its length and its text
};

}  // namespace velmora
