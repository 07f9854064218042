#pragma once

#include <array>
#include <string>
#include <string_view>

#include "phonebook/RecordView.h"

namespace velmora {

// The forms in which a caller's number may stand in an entry. They are made for a number of ten
// digits ("5165551212"); a shorter one gives forms with pieces missing.
class CallerNumber {
  public:
    explicit CallerNumber(std::string number);

    // As it came.
    [[nodiscard]] const std::string& number() const { return forms_[0]; }

    // As it came, "555-1212", "(516) 555-1212", "516 555-1212", "516-555-1212".
    [[nodiscard]] const std::array<std::string, 5>& forms() const { return forms_; }

    // Whether one of the four numbers of an entry that may call (its telephone, work, fax and other
    // number) is one of the forms to the letter.
    [[nodiscard]] bool isIn(RecordView record) const;

  private:
    [[nodiscard]] bool isForm(std::string_view number) const;

    std::array<std::string, 5> forms_;
};

}  // namespace velmora
