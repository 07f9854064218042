#include "phonebook/NameTable.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace velmora {
namespace {

// A number for a name, from its bytes one after the other (FNV-1a); two names have the same as good
// as never.
class NumberOfName {
  public:
    void add(char byte) {
        constexpr std::uint64_t kPrime = 0x100000001B3;
        value_ = (value_ ^ static_cast<unsigned char>(byte)) * kPrime;
    }
    void addUpper(std::string_view text, const CodePage& codePage) {
        for (const char byte : text)
            add(codePage.upper(byte));
    }
    [[nodiscard]] std::uint64_t value() const { return value_; }

  private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

}  // namespace

void NameTable::clear() {
    records_.clear();
    isSorted_ = true;
}

// The bytes are those of WantedName::key().
void NameTable::add(RecordNumber number, RecordView record) {
    NumberOfName name;
    if (const std::string_view last = record.text(Field::Last); !last.empty()) {
        name.addUpper(last, codePage_);
        name.add('\0');
        name.addUpper(record.text(Field::First), codePage_);
    } else if (const std::string_view company = record.text(Field::Company); !company.empty()) {
        name.addUpper(company, codePage_);
    } else {
        return;
    }
    records_.emplace_back(name.value(), number);
    isSorted_ = false;
}

const std::vector<RecordNumber>& NameTable::of(const WantedName& name) {
    if (!std::exchange(isSorted_, true))
        std::sort(records_.begin(), records_.end());
    NumberOfName wanted;
    for (const char byte : name.key())
        wanted.add(byte);
    found_.clear();
    const auto first = std::lower_bound(records_.begin(), records_.end(),
                                        std::pair(wanted.value(), RecordNumber(0)));
    for (auto at = first; at != records_.end() && at->first == wanted.value(); ++at)
        found_.push_back(at->second);
    return found_;
}

}  // namespace velmora
