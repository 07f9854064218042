#include "phonebook/NameIndex.h"

#include <algorithm>

#include "platform/Text.h"

namespace velmora {
namespace {

// NULs tell the parts apart; a company has none before it.
std::string personKey(const std::string& upperLast, const std::string& upperFirst) {
    return upperLast + '\0' + upperFirst;
}

}  // namespace

WantedName::WantedName(std::string_view line, const CodePage& codePage) : codePage_(&codePage) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) {
        company_ = codePage.upper(trimBlanks(line));
        return;
    }
    constexpr std::size_t kCommaAndBlank = 2;
    isPerson_ = true;
    last_ = codePage.upper(trimBlanks(line.substr(0, comma)));
    first_ = codePage.upper(trimBlanks(line.substr(std::min(comma + kCommaAndBlank, line.size()))));
}

bool WantedName::fits(RecordView record) const {
    return fits(record.text(Field::Last), record.text(Field::First), record.text(Field::Company));
}

bool WantedName::fits(const EntryTexts& entry) const {
    return fits(entry.text(Field::Last), entry.text(Field::First), entry.text(Field::Company));
}

bool WantedName::fits(std::string_view last, std::string_view first,
                      std::string_view company) const {
    const auto is = [&](std::string_view text, const std::string& upper) {
        return codePage_->equalIgnoringCase(text, upper);
    };
    if (isPerson_)
        return !last_.empty() && is(last, last_) && is(first, first_);
    return !company_.empty() && last.empty() && is(company, company_);
}

std::string WantedName::key() const {
    return isPerson_ ? personKey(last_, first_) : company_;
}

std::string NameIndex::keyOf(RecordView record) const {
    const auto upper = [&](Field field) { return codePage_.upper(record.text(field)); };
    return record.isEmpty(Field::Last) ? upper(Field::Company)
                                       : personKey(upper(Field::Last), upper(Field::First));
}

void NameIndex::add(RecordNumber number, RecordView record) {
    const std::string key = keyOf(record);
    if (key.empty())
        return;
    std::vector<RecordNumber>& numbers = records_[key];
    numbers.insert(std::upper_bound(numbers.begin(), numbers.end(), number), number);
}

const std::vector<RecordNumber>& NameIndex::of(const WantedName& name) const {
    return at(name.key());
}

const std::vector<RecordNumber>& NameIndex::of(RecordView record) const {
    return at(keyOf(record));
}

const std::vector<RecordNumber>& NameIndex::at(const std::string& key) const {
    const auto found = records_.find(key);
    return found == records_.end() ? none_ : found->second;
}

}  // namespace velmora
