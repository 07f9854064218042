#pragma once

#include <string>
#include <string_view>

#include "phonebook/RecordView.h"
#include "platform/CodePage.h"

namespace velmora {

// Which records a company is looked for in. A person who works there must never be hit.
enum class CompanyRule {
    NoLastName,  // those without a last name
    NoNames,     // those with neither a last nor a first name
};

// The name that identifies an entry: last and first name of a person, the company of an entry
// that is just a company. Case and padding do not count.
class EntryKey {
  public:
    // `codePage` must outlive the key.
    static EntryKey ofListLine(std::string_view line, const CodePage& codePage);
    static EntryKey ofRecord(RecordView record, const CodePage& codePage);

    [[nodiscard]] bool isPerson() const { return isPerson_; }

    // True for a key without any name; it matches nothing.
    [[nodiscard]] bool isNone() const { return name_.empty() && first_.empty(); }

    [[nodiscard]] bool matches(RecordView record, CompanyRule rule = CompanyRule::NoLastName) const;

    friend bool operator==(const EntryKey& a, const EntryKey& b) {
        return a.isPerson_ == b.isPerson_ && a.name_ == b.name_ && a.first_ == b.first_;
    }

  private:
    EntryKey(bool isPerson, std::string_view name, std::string_view first,
             const CodePage& codePage);

    [[nodiscard]] bool fieldIs(std::string_view rawField, std::string_view upperName) const;

    const CodePage* codePage_;
    bool isPerson_;
    std::string name_;   // upper-cased last name or company
    std::string first_;  // upper-cased
};

}  // namespace velmora
