#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "phonebook/RecordView.h"
#include "phonebook/SearchFields.h"
#include "platform/CodePage.h"

namespace velmora {

// The letters of the books at the beginning of a line: "Y" and "W".
inline constexpr char kYellowLetter = 'Y';
inline constexpr char kWhiteLetter = 'W';

// A line of a list that holds entries of both books: the book's letter, ": ", the entry's line.
[[nodiscard]] std::string lineWithBook(char bookLetter, std::string_view entryLine);

// The entry's line in a line that begins so; empty where none does.
[[nodiscard]] std::string entryLineOf(std::string_view lineWithBook);

// What the two custom fields are called.
struct CustomCaptions {
    std::string custom1;
    std::string custom2;
};

// Writes the lines of the hits.
class HitWriter {
  public:
    // `codePage` must outlive the writer.
    HitWriter(CustomCaptions captions, const CodePage& codePage);

    // Adds a line for each of the fields in which the text was found: book and entry, a tab, where
    // it was found, and the field's value with its trailing blanks. Nothing for a record that is
    // never shown.
    void addLines(char bookLetter, RecordView record, FieldSet found,
                  std::vector<std::string>& lines) const;

  private:
    [[nodiscard]] std::string_view matchText(const SearchField& field, bool company) const;

    CustomCaptions captions_;
    const CodePage& codePage_;
};

// Removes the lines of records without a name.
void Filterit(std::vector<std::string>& lines);

}  // namespace velmora
